#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <cstddef>
#include <vector>

namespace Backend::MidiEngine {

// The newest messages up to a given number, with room for all of them from the start. Everything except the
// construction is [locked, rt].
class MessageRing {
public:
    explicit MessageRing(std::size_t capacity) : m_messages(capacity) {}

    bool isEmpty() const { return m_count == 0; }

    // The oldest message. Call it only if there is one.
    const MirelMidiMessage& front() const { return m_messages[m_first]; }

    // Drops the oldest message. Call it only if there is one.
    void popFront() {
        m_first = next(m_first);
        --m_count;
    }

    // Appends, replacing the oldest message if the ring is full.
    void pushBack(const MirelMidiMessage& message) {
        if (m_count == m_messages.size())
            popFront();
        m_messages[(m_first + m_count) % m_messages.size()] = message;
        ++m_count;
    }

private:
    std::size_t next(std::size_t index) const { return (index + 1) % m_messages.size(); }

    std::vector<MirelMidiMessage> m_messages;
    std::size_t m_first = 0;
    std::size_t m_count = 0;
};

}
