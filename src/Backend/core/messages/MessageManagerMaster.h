#pragma once

#include "Platform/AutoResetEvent.h"
#include "Platform/MessageThread.h"
#include "Platform/WindowTypes.h"

#include <vector>

namespace Backend {

class MessageManager;

// The backend worker: one thread on which all backend state lives, and the managers that its messages go to. It must
// be stopped before it is destroyed.
class MessageManagerMaster {
public:
    MessageManagerMaster() = default;
    MessageManagerMaster(const MessageManagerMaster&) = delete;
    MessageManagerMaster& operator=(const MessageManagerMaster&) = delete;

    // [any] Starts the worker. Its id is known from here on.
    void start();

    // [any but the worker] Ends the worker once it has handled what was posted before, and waits for that without a
    // time limit. Messages that were posted later are given to their managers to dispose of. Without a worker it does
    // nothing.
    void stop();

    // [any] Posts to the worker. While the queue takes nothing (full, or the worker not started yet) it sleeps 10
    // milliseconds and tries again, for ever.
    void postMessage(unsigned int message, WPARAM wParam, LPARAM lParam);

    // [any, rt] Posts without waiting. False, and what the words bring is still the caller's, while the queue takes
    // nothing.
    [[nodiscard]] bool tryPostMessage(unsigned int message, WPARAM wParam, LPARAM lParam);

    // [any, before start] Appends a manager, which must outlive the worker. The first that wants a message gets it.
    void addMessageManager(MessageManager* manager);

    // [any] The one event on which blocking calls wait. One thread at a time may be in such a call, never the worker.
    Platform::AutoResetEvent& getWaitEvent();

    // [any] Whether the calling thread is the worker.
    bool currentThreadIsManagerThread() const;

    // [any but the worker] Waits until the worker has handled all that was posted, or does not run.
    void waitUntilIdle();

    // [any] Whether the worker has nothing to do.
    bool isIdle() const;

private:
    void run();
    MessageManager* findManager(const MSG& message) const;
    void disposeLeftovers();

    std::vector<MessageManager*> m_messageManagers;
    Platform::AutoResetEvent m_waitEvent;
    Platform::MessageThread m_thread;
};

}
