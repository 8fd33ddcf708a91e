#include "Backend/core/messages/MessageManager.h"

#include "Backend/core/messages/MessageManagerMaster.h"

namespace Backend {

MessageManager::MessageManager(MessageManagerMaster& master) : m_master(master) {}

void MessageManager::disposeMessage(const MSG&) {}

bool MessageManager::currentThreadIsManagerThread() const {
    return m_master.currentThreadIsManagerThread();
}

}
