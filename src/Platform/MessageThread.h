#pragma once

#include "Platform/WindowTypes.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace Platform {

// [any, rt] The id by which the system knows the calling thread.
DWORD currentThreadId();

// A thread with a queue of messages, each a number and two machine words. What one thread posts arrives in the order
// of posting.
class MessageThread {
public:
    // What a queue holds at most; a post to a full queue fails.
    static constexpr std::size_t CAPACITY = 10000;

    MessageThread();

    // Ends a running thread as by join; its body must be on its way out.
    ~MessageThread();

    MessageThread(const MessageThread&) = delete;
    MessageThread& operator=(const MessageThread&) = delete;

    // [any] Runs body on a new thread that debuggers see under this name (at most 15 bytes are shown). The id is valid
    // before the body begins. A thread that runs already is left alone. A thread that was joined may start again, with
    // an empty queue.
    void start(const char* name, std::function<void()> body);

    // [any, rt] 0 before the first start; kept after the end.
    DWORD id() const;

    // [any, rt] True between start and join.
    bool isRunning() const;

    // [any, rt] Appends to the queue. False, and nothing is kept, while the thread does not run or its queue is full.
    [[nodiscard]] bool post(UINT message, WPARAM wParam, LPARAM lParam);

    // [any] Posts, and while that fails sleeps 10 milliseconds and tries again, for ever. Windows of the calling thread
    // answer what is sent to them meanwhile.
    void postUntilAccepted(UINT message, WPARAM wParam, LPARAM lParam);

    // [this thread] Blocks until a message comes and takes it. False for WM_QUIT.
    [[nodiscard]] bool get(MSG& message);

    // [any] Takes the oldest message if there is one, without blocking. For leftovers after join.
    [[nodiscard]] bool tryGet(MSG& message);

    // [another thread] Waits without a time limit until the queue is empty and the thread is back in get(), or until
    // the thread has ended.
    void waitUntilIdle();

    // [any, rt] Whether the queue is empty and the thread waits in get(), or does not run.
    [[nodiscard]] bool isIdle() const;

    // [another thread] Waits without a time limit for the body to return.
    void join();

    // [another thread] Posts the message that ends the body, as postUntilAccepted does unless the body has returned
    // already, and joins. Does nothing if the thread does not run.
    void stop(UINT message);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}
