#pragma once

#include "Host/common/clock/ClockMessage.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>

namespace Host {

// Passes clock messages from the input that is the clock master to the player, which never waits for an input.
class ClockInput {
public:
    static constexpr std::size_t CAPACITY = 1024;

    // [any, rt] Accepts clock messages from this input (by index) from now on; a negative index accepts none.
    void listenTo(int input) { m_input.store(input); }

    // [any] A message from an input. Ignored unless the input is the one listened to; dropped if the queue is full,
    // which happens only while nobody plays.
    void push(int input, const ClockMessage& message) {
        if (input != m_input.load())
            return;
        const std::lock_guard lock(m_inputs);
        const std::uint32_t in = m_in.load(std::memory_order_relaxed);
        if (in - m_out.load(std::memory_order_acquire) == CAPACITY)
            return;
        m_ring[in % CAPACITY] = message;
        m_in.store(in + 1, std::memory_order_release);
    }

    // [player, rt] Takes the oldest; false if there is none.
    [[nodiscard]] bool pop(ClockMessage& message) {
        const std::uint32_t out = m_out.load(std::memory_order_relaxed);
        if (m_in.load(std::memory_order_acquire) == out)
            return false;
        message = m_ring[out % CAPACITY];
        m_out.store(out + 1, std::memory_order_release);
        return true;
    }

private:
    std::atomic<int> m_input{-1};
    std::mutex m_inputs;  // Excludes inputs from each other only.
    std::array<ClockMessage, CAPACITY> m_ring{};
    std::atomic<std::uint32_t> m_in{0};
    std::atomic<std::uint32_t> m_out{0};
};

}
