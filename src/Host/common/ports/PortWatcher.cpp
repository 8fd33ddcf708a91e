#include "Host/common/ports/PortWatcher.h"

#include "Platform/MonotonicClock.h"
#include "Platform/PreciseWait.h"

#include <atomic>
#include <utility>

namespace Host {

struct PortWatcher::State {
    State(std::function<void()> toCall, std::int64_t microseconds) : look(std::move(toCall)), interval(microseconds) {}

    std::function<void()> look;
    const std::int64_t interval;
    std::atomic<bool> isStopped{false};
    Platform::PreciseWait wait;

    void run() {
        for (;;) {
            wait.waitUntil(Platform::monotonicMicroseconds() + interval);
            if (isStopped)
                break;
            look();
        }
        look = nullptr;
    }
};

PortWatcher::PortWatcher(std::function<void()> look, std::chrono::milliseconds interval)
    : m_state(std::make_shared<State>(std::move(look), std::chrono::microseconds(interval).count())),
      m_thread("port watcher", [state = m_state] { state->run(); }) {}

PortWatcher::~PortWatcher() {
    stop();
}

void PortWatcher::wake() {
    m_state->wait.wake();
}

bool PortWatcher::stop(std::chrono::milliseconds limit) {
    m_state->isStopped = true;
    m_state->wait.wake();
    return m_thread.waitUntilEnded(std::chrono::steady_clock::now() + limit);
}

}
