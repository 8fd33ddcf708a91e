#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace Backend::MidiEngine {

// Messages in the order in which they were added. It keeps the room that it once needed; adding copies a message over
// an old one, which costs less than constructing one. [locked, rt] unless it says otherwise.
class MessageList {
public:
    MessageList() : m_messages(USUAL_COUNT) {}

    std::size_t size() const { return m_count; }
    bool isEmpty() const { return m_count == 0; }
    MirelMidiMessage* begin() { return m_messages.data(); }
    MirelMidiMessage* end() { return m_messages.data() + m_count; }

    // [locked] Allocates if there is no room for one more.
    void add(const MirelMidiMessage& message) {
        makeRoomFor(m_count + 1);
        m_messages[m_count++] = message;
    }

    // [locked] Allocates, so that adding doesn't until there are this many.
    void makeRoomFor(std::size_t count) {
        if (count > m_messages.size())
            m_messages.resize(std::max(count, 2 * m_messages.size()));
    }

    // Drops everything from here on.
    void truncate(const MirelMidiMessage* newEnd) { m_count = static_cast<std::size_t>(newEnd - m_messages.data()); }

    void swap(MessageList& other) {
        m_messages.swap(other.m_messages);
        std::swap(m_count, other.m_count);
    }

private:
    // Room for what waits between two slices, so that adding allocates only in a flood.
    static constexpr std::size_t USUAL_COUNT = 1024;

    std::vector<MirelMidiMessage> m_messages;
    std::size_t m_count = 0;
};

}
