#pragma once

#include "Platform/AutoResetEvent.h"
#include "Platform/MessageThread.h"
#include "Platform/WindowTypes.h"

#include <vector>

namespace Backend {

class MessageManager;

// The backend worker: the one thread on which all backend state lives, and the managers that handle its messages. Stop
// it before destroying it.
class MessageManagerMaster {
public:
    MessageManagerMaster() = default;
    MessageManagerMaster(const MessageManagerMaster&) = delete;
    MessageManagerMaster& operator=(const MessageManagerMaster&) = delete;

    // [any] Starts the worker. Its id is known from here on.
    void start();

    // [any but the worker] Ends the worker once it has handled what was posted before, and waits for that without a
    // time limit. Messages posted later are given to their managers to dispose of. Does nothing without a worker.
    void stop();

    // [any] Posts to the worker. While the queue takes nothing (it is full, or the worker has not started), retries
    // every 10 milliseconds without a limit.
    void postMessage(unsigned int message, WPARAM wParam, LPARAM lParam);

    // [any, rt] Posts without waiting. Returns false while the queue takes nothing; the caller then still owns the
    // payload.
    [[nodiscard]] bool tryPostMessage(unsigned int message, WPARAM wParam, LPARAM lParam);

    // [any, before start] Appends a manager, which must outlive the worker. The first that wants a message gets it.
    void addMessageManager(MessageManager* manager);

    // [any] The event on which blocking calls wait. Only one thread at a time may be in such a call, never the worker.
    Platform::AutoResetEvent& getWaitEvent();

    // [any] Whether the calling thread is the worker.
    bool currentThreadIsManagerThread() const;

    // [any but the worker] Waits until the worker has handled everything that was posted, or is not running.
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
