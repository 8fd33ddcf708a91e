#include "Platform/AutoResetEvent.h"

#include <condition_variable>
#include <mutex>

namespace Platform {

struct AutoResetEvent::State {
    std::mutex mutex;
    std::condition_variable changed;
    bool isSet = false;
};

AutoResetEvent::AutoResetEvent() : m_state(std::make_unique<State>()) {}

AutoResetEvent::~AutoResetEvent() = default;

void AutoResetEvent::set() {
    const std::lock_guard lock(m_state->mutex);
    m_state->isSet = true;
    m_state->changed.notify_one();
}

void AutoResetEvent::wait() {
    std::unique_lock lock(m_state->mutex);
    m_state->changed.wait(lock, [this] { return m_state->isSet; });
    m_state->isSet = false;
}

void AutoResetEvent::waitAnsweringWindows() {
    wait();
}

}
