#pragma once

#include "Host/common/clock/ClockMessage.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>

namespace Host {

// Clock messages on their way from the input that is the clock master to the player, who never waits for an input.
class ClockInput {
public:
    static constexpr std::size_t CAPACITY = 1024;

    // [any, rt] From now on this input, by its index, is heard; a negative one is nobody.
    void listenTo(int input) { m_input.store(input); }

    // [any] What an input says. Other inputs than the one listened to are ignored, and a full queue drops the message,
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
    std::mutex m_inputs;  // Among inputs alone.
    std::array<ClockMessage, CAPACITY> m_ring{};
    std::atomic<std::uint32_t> m_in{0};
    std::atomic<std::uint32_t> m_out{0};
};

}
