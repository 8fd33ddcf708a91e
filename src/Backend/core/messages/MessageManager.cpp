#include "Backend/core/messages/MessageManager.h"

#include "Backend/core/messages/MessageManagerMaster.h"

namespace Backend {

MessageManager::MessageManager(MessageManagerMaster& master) : m_master(master) {}

bool MessageManager::currentThreadIsManagerThread() const {
    return m_master.currentThreadIsManagerThread();
}

void MessageManager::postWords(UINT number, WPARAM wParam, LPARAM lParam) {
    m_master.postMessage(number, wParam, lParam);
}

bool MessageManager::tryPostWords(UINT number, WPARAM wParam, LPARAM lParam) {
    return m_master.tryPostMessage(number, wParam, lParam);
}

void MessageManager::waitForAnswer() {
    m_master.getWaitEvent().wait();
}

}
