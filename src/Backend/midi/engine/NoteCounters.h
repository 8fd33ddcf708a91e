#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Backend::MidiEngine {

// How many times each note sounds on each output and channel. A flat table, so that counting needs no search. All of it
// is [locked, rt].
class NoteCounters {
public:
    static constexpr std::size_t OUTPUTS = 128;
    static constexpr std::size_t CHANNELS = 16;
    static constexpr std::size_t NOTES = 128;

    // The counter of a note event; null if its output, channel or note is outside the table.
    std::int32_t* find(const MirelMidiMessage& message) {
        const std::size_t output = static_cast<unsigned char>(message.getOutput());
        const std::size_t channel = static_cast<unsigned char>(message.getChannel());
        const std::size_t note = static_cast<unsigned char>(message.getD1());
        if (output >= OUTPUTS || channel >= CHANNELS || note >= NOTES)
            return nullptr;
        return &m_counts[(output * CHANNELS + channel) * NOTES + note];
    }

    // Removes each sounding note from the table and passes it to ended(output, channel, note), in that order.
    template <typename Ended>
    void takeAll(Ended ended) {
        for (std::size_t index = 0; index < m_counts.size(); ++index) {
            if (m_counts[index] <= 0)
                continue;
            m_counts[index] = 0;
            ended(static_cast<char>(index / (CHANNELS * NOTES)), static_cast<char>(index / NOTES % CHANNELS),
                  static_cast<char>(index % NOTES));
        }
    }

private:
    std::array<std::int32_t, OUTPUTS * CHANNELS * NOTES> m_counts{};
};

static_assert(sizeof(NoteCounters) == 1 << 20);

}
