#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace Host {

// A thread that may hang in the system for ever. Nobody waits for it without a limit; one that doesn't end in time is
// left to itself. So its body must own all that it touches.
class AbandonableThread {
public:
    // Runs the body at once, on a thread that debuggers see under this name.
    AbandonableThread(const char* name, std::function<void()> body);

    // Leaves a thread that still runs to itself.
    ~AbandonableThread();
    AbandonableThread(const AbandonableThread&) = delete;
    AbandonableThread& operator=(const AbandonableThread&) = delete;

    // [another thread] Waits until the body has returned, but not beyond the deadline. False if it still runs.
    bool waitUntilEnded(std::chrono::steady_clock::time_point deadline);

private:
    std::shared_ptr<std::atomic<bool>> m_hasEnded;
    std::thread m_thread;
};

}
