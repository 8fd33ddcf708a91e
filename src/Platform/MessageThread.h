#pragma once

#include "Platform/WindowTypes.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace Platform {

// [any, rt] The system's id of the calling thread.
DWORD currentThreadId();

// A thread with a queue of messages, each a number and two machine words. Messages from one thread arrive in the order
// in which it posted them.
class MessageThread {
public:
    // The most a queue holds; posting to a full queue fails.
    static constexpr std::size_t CAPACITY = 10000;

    MessageThread();

    // Joins a running thread; its body must be about to return.
    ~MessageThread();

    MessageThread(const MessageThread&) = delete;
    MessageThread& operator=(const MessageThread&) = delete;

    // [any] Runs body on a new thread that debuggers see under this name (at most 15 bytes are shown). The id is valid
    // before the body begins. Does nothing if the thread is already running. A joined thread may be started again, with
    // an empty queue.
    void start(const char* name, std::function<void()> body);

    // [any, rt] 0 before the first start; kept after the end.
    DWORD id() const;

    // [any, rt] True between start and join.
    bool isRunning() const;

    // [any, rt] Appends to the queue. False, and nothing is kept, if the thread is not running or its queue is full.
    [[nodiscard]] bool post(UINT message, WPARAM wParam, LPARAM lParam);

    // [any] Posts, retrying every 10 milliseconds without a limit until the post succeeds. Windows of the calling
    // thread keep answering what is sent to them.
    void postUntilAccepted(UINT message, WPARAM wParam, LPARAM lParam);

    // [this thread] Blocks until a message comes and takes it. False for WM_QUIT.
    [[nodiscard]] bool get(MSG& message);

    // [any] Takes the oldest message if there is one, without blocking. For leftovers after join.
    [[nodiscard]] bool tryGet(MSG& message);

    // [another thread] Waits without a time limit until the queue is empty and the thread is back in get(), or until
    // the thread has ended.
    void waitUntilIdle();

    // [any, rt] Whether the queue is empty and the thread waits in get(), or is not running.
    [[nodiscard]] bool isIdle() const;

    // [another thread] Waits without a time limit for the body to return.
    void join();

    // [another thread] Posts the message that ends the body, retrying as postUntilAccepted does until the body has
    // returned, then joins. Does nothing if the thread is not running.
    void stop(UINT message);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}
