#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <cstdint>
#include <vector>

namespace Backend::MidiEngine {

// The velocity of the last Note On of each note, by input, channel, zone and number. Entries stay until the table is
// cleared. Every note goes through it, so it is a flat table with open addressing.
class NoteVelocities {
public:
    NoteVelocities() : m_entries(USUAL_CAPACITY) {}

    // [locked, rt while makeRoomForMore has made room]
    void store(const MirelMidiMessage& noteOn) {
        const std::uint32_t key = keyOf(noteOn);
        Entry& entry = m_entries[placeOf(key)];
        if (entry.generation != m_generation) {
            entry = {key, m_generation, noteOn.getD2()};
            growIfCrowded();
            return;
        }
        entry.velocity = noteOn.getD2();
    }

    // [locked, rt] 0 if there was no such Note On.
    [[nodiscard]] char find(const MirelMidiMessage& message) const {
        const Entry& entry = m_entries[placeOf(keyOf(message))];
        return entry.generation == m_generation ? entry.velocity : char{0};
    }

    // [locked, rt]
    void clear();

    // [locked] Allocates, so that this many more notes can be stored without allocating.
    void makeRoomForMore(std::size_t count) {
        while (isCrowdedBy(m_used + count))
            grow();
    }

private:
    // An entry of another generation is free.
    struct Entry {
        std::uint32_t key = 0;
        std::uint32_t generation = 0;
        char velocity = 0;
    };

    static constexpr std::size_t USUAL_CAPACITY = 4096;  // A power of two, like all capacities.

    // The default channel shares its entries with channel 0, because its events carry that number.
    static std::uint32_t keyOf(const MirelMidiMessage& message) {
        return std::uint32_t{static_cast<unsigned char>(message.getInput())} << 24 |
               std::uint32_t{static_cast<unsigned char>(message.getZone())} << 16 |
               std::uint32_t{static_cast<unsigned char>(message.getChannel())} << 8 |
               std::uint32_t{static_cast<unsigned char>(message.getD1())};
    }

    // Where a key's entry is, or would go.
    std::size_t placeOf(std::uint32_t key) const {
        std::size_t place = (key * std::uint64_t{0x9E3779B97F4A7C15} >> 32) & m_mask;
        while (m_entries[place].generation == m_generation && m_entries[place].key != key)
            place = (place + 1) & m_mask;
        return place;
    }

    bool isCrowdedBy(std::size_t count) const { return count * 2 > m_entries.size(); }

    void growIfCrowded() {
        if (isCrowdedBy(++m_used))
            grow();
    }

    void grow();

    std::vector<Entry> m_entries;
    std::size_t m_mask = USUAL_CAPACITY - 1;  // One less than the capacity.
    std::uint32_t m_generation = 1;
    std::size_t m_used = 0;
};

}
