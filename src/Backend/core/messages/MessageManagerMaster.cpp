#include "Backend/core/messages/MessageManagerMaster.h"

#include "Backend/core/messages/MessageManager.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Platform/xml/XmlReader.h"

namespace Backend {

void MessageManagerMaster::start() {
    m_thread.start("mirel backend", [this] { run(); });
}

void MessageManagerMaster::stop() {
    m_thread.stop(QUIT_BACKEND_WORKER);
    disposeLeftovers();
}

void MessageManagerMaster::postMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    m_thread.postUntilAccepted(message, wParam, lParam);
}

bool MessageManagerMaster::tryPostMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    return m_thread.post(message, wParam, lParam);
}

void MessageManagerMaster::addMessageManager(MessageManager* manager) {
    m_messageManagers.push_back(manager);
}

Platform::AutoResetEvent& MessageManagerMaster::getWaitEvent() {
    return m_waitEvent;
}

bool MessageManagerMaster::currentThreadIsManagerThread() const {
    return Platform::currentThreadId() == m_thread.id();
}

void MessageManagerMaster::waitUntilIdle() {
    m_thread.waitUntilIdle();
}

bool MessageManagerMaster::isIdle() const {
    return m_thread.isIdle();
}

void MessageManagerMaster::run() {
    // Files are read on this thread.
    Platform::enterXmlThread();
    MSG message;
    while (m_thread.get(message)) {
        // The parser's apartment ends with the thread, but objects that outlive it may still hold documents.
        if (message.message == QUIT_BACKEND_WORKER)
            return;
        if (MessageManager* manager = findManager(message))
            manager->handleMessage(message);
    }
    Platform::leaveXmlThread();
}

MessageManager* MessageManagerMaster::findManager(const MSG& message) const {
    for (MessageManager* manager : m_messageManagers) {
        if (manager->wantMessage(message.message))
            return manager;
    }
    return nullptr;
}

void MessageManagerMaster::disposeLeftovers() {
    MSG message;
    while (m_thread.tryGet(message)) {
        if (MessageManager* manager = findManager(message))
            manager->disposeMessage(message);
    }
}

}
