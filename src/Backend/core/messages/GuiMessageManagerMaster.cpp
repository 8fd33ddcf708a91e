#include "Backend/core/messages/GuiMessageManagerMaster.h"

#include "Backend/core/messages/GuiMessageManager.h"
#include "Platform/MessageThread.h"
#include "Platform/WindowSink.h"

namespace Backend {

void GuiMessageManagerMaster::setThreadId(DWORD threadId) {
    m_threadId.store(threadId);
}

void GuiMessageManagerMaster::addMessageManager(GuiMessageManager* manager) {
    m_messageManagers.push_back(manager);
}

bool GuiMessageManagerMaster::wantMessage(unsigned int message) const {
    return findManager(message) != nullptr;
}

LRESULT GuiMessageManagerMaster::handleMessage(HWND, unsigned int message, WPARAM wParam, LPARAM lParam) {
    if (GuiMessageManager* manager = findManager(message))
        manager->handleMessage(message, wParam, lParam);
    return 0;
}

bool GuiMessageManagerMaster::postMessage(HWND window, unsigned int message, WPARAM wParam, LPARAM lParam) {
    return Platform::postToWindow(window, message, wParam, lParam);
}

bool GuiMessageManagerMaster::currentThreadIsManagerThread() const {
    return Platform::currentThreadId() == m_threadId.load();
}

GuiMessageManager* GuiMessageManagerMaster::findManager(unsigned int message) const {
    for (GuiMessageManager* manager : m_messageManagers) {
        if (manager->wantMessage(message))
            return manager;
    }
    return nullptr;
}

}
