#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <cstdint>
#include <memory_resource>
#include <unordered_map>

namespace Backend::MidiEngine {

// The velocity of the last Note On of each note, told apart by input, channel, zone and number. Entries stay until the
// table is cleared. What clearing frees is kept for the next entries.
class NoteVelocities {
public:
    void store(const MirelMidiMessage& noteOn) { m_velocities[keyOf(noteOn)] = noteOn.getD2(); }

    // 0 if there was no such Note On.
    char find(const MirelMidiMessage& message) const {
        const auto entry = m_velocities.find(keyOf(message));
        return entry == m_velocities.end() ? char{0} : entry->second;
    }

    void clear() { m_velocities.clear(); }

private:
    // The default channel shares its entries with channel 0, as its events carry this number.
    static std::uint32_t keyOf(const MirelMidiMessage& message) {
        return std::uint32_t{static_cast<unsigned char>(message.getInput())} << 24 |
               std::uint32_t{static_cast<unsigned char>(message.getZone())} << 16 |
               std::uint32_t{static_cast<unsigned char>(message.getChannel())} << 8 |
               std::uint32_t{static_cast<unsigned char>(message.getD1())};
    }

    std::pmr::unsynchronized_pool_resource m_memory;
    std::pmr::unordered_map<std::uint32_t, char> m_velocities{&m_memory};
};

}
