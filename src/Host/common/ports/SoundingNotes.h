#pragma once

#include "Host/common/ports/OutputEvent.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace Host {

// What sounds on one output after everything sent to it. For one thread at a time.
class SoundingNotes {
public:
    // [any] Records an event that was sent.
    void sent(const OutputEvent& event);

    // [any] Passes on what ends everything that sounds, a note-off for each note and a release for each pedal that is
    // down, and then considers everything silent.
    void end(std::int64_t microseconds, const std::function<void(const OutputEvent&)>& ending);

private:
    static constexpr std::size_t CHANNELS = 16;
    static constexpr std::size_t NOTES = 128;

    // How many more times a note was started than ended, since a port may stack equal notes.
    std::array<std::array<std::uint8_t, NOTES>, CHANNELS> m_notes{};
    std::array<bool, CHANNELS> m_pedalIsDown{};
};

}
