#include "Platform/AutoResetEvent.h"

#include "Platform/AddressWait.h"

#include <atomic>
#include <cstdint>

namespace Platform {

// Without a lock, because the player's thread sets events: whoever is about to wait for one never holds it up.
struct AutoResetEvent::State {
    static constexpr std::uint32_t UNSET = 0;
    static constexpr std::uint32_t SET = 1;

    std::atomic<std::uint32_t> word{UNSET};
};

AutoResetEvent::AutoResetEvent() : m_state(std::make_shared<State>()) {}

AutoResetEvent::~AutoResetEvent() = default;

void AutoResetEvent::set() {
    // The waiter may go on and destroy the event before it is woken.
    const std::shared_ptr<State> state = m_state;
    if (state->word.exchange(State::SET) == State::UNSET)
        wakeOne(state->word);
}

void AutoResetEvent::wait() {
    while (m_state->word.exchange(State::UNSET) == State::UNSET)
        waitWhileEqual(m_state->word, State::UNSET);
}

void AutoResetEvent::waitAnsweringWindows() {
    wait();
}

}
