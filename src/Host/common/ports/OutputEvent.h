#pragma once

#include <cstdint>

namespace Host {

// A short MIDI message on its way to an output: its bytes in one word, status lowest, and when it was played
// (monotonicMicroseconds()).
struct OutputEvent {
    std::uint32_t bytes = 0;
    std::int64_t microseconds = 0;

    std::uint8_t status() const { return static_cast<std::uint8_t>(bytes & 0xff); }
    std::uint8_t d1() const { return static_cast<std::uint8_t>(bytes >> 8 & 0xff); }
    std::uint8_t d2() const { return static_cast<std::uint8_t>(bytes >> 16 & 0xff); }
    std::uint8_t kind() const { return status() & 0xf0; }
    std::uint8_t channel() const { return status() & 0x0f; }
    bool isNoteOn() const { return kind() == 0x90 && d2() > 0; }
    bool isNoteOff() const { return kind() == 0x80 || (kind() == 0x90 && d2() == 0); }

    bool operator==(const OutputEvent&) const = default;
};

}
