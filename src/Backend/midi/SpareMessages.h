#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace Backend::MidiEngine {

// Messages on the heap that one thread allocates ahead for another, which must send some but may not allocate.
class SpareMessages {
public:
    static constexpr std::size_t CAPACITY = 1024;

    // As many as there is room for.
    SpareMessages() { refill(); }
    SpareMessages(const SpareMessages&) = delete;
    SpareMessages& operator=(const SpareMessages&) = delete;

    // [one thread at a time; rt if post is] Copies the message into a spare and hands that to post(MirelMidiMessage*),
    // which returns whether it now owns it. False if it does not, or if no spare is left.
    template <typename Post>
    [[nodiscard]] bool give(const MirelMidiMessage& message, Post post) {
        const std::uint32_t given = m_given.load(std::memory_order_relaxed);
        if (given == m_made.load(std::memory_order_acquire))
            return false;
        auto& spare = m_spares[given % CAPACITY];
        *spare = message;
        if (!post(spare))
            return false;
        m_given.store(given + 1, std::memory_order_release);
        return true;
    }

    // [another thread, one at a time] Replaces the spares that were given away.
    void refill() {
        std::uint32_t made = m_made.load(std::memory_order_relaxed);
        for (; made - m_given.load(std::memory_order_acquire) < CAPACITY; ++made) {
            m_spares[made % CAPACITY] = std::make_unique<MirelMidiMessage>();
            m_made.store(made + 1, std::memory_order_release);
        }
    }

private:
    std::array<std::unique_ptr<MirelMidiMessage>, CAPACITY> m_spares;

    // Counts since the beginning; they wrap.
    std::atomic<std::uint32_t> m_made{0};
    std::atomic<std::uint32_t> m_given{0};
};

}
