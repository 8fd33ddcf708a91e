#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace Host {

// A thread that may hang in the system. Nobody waits for it without a limit, and if it doesn't end in time it is
// abandoned, so its body must own everything it touches.
class AbandonableThread {
public:
    // Runs the body at once, on a thread that debuggers see under this name.
    AbandonableThread(const char* name, std::function<void()> body);

    // Abandons a thread that is still running.
    ~AbandonableThread();
    AbandonableThread(const AbandonableThread&) = delete;
    AbandonableThread& operator=(const AbandonableThread&) = delete;

    // [another thread] Waits until the body has returned, but not beyond the deadline. False if it is still running.
    bool waitUntilEnded(std::chrono::steady_clock::time_point deadline);

private:
    std::shared_ptr<std::atomic<bool>> m_hasEnded;
    std::thread m_thread;
};

}
