#pragma once

#include <cstdint>

namespace Backend {

// [any] Moves a note into 0 to 127 by whole octaves: -1 becomes 11, 128 becomes 116.
constexpr std::int32_t foldIntoNoteRange(std::int32_t note) {
    if (note < 0) {
        const auto octavesBelow = static_cast<std::int32_t>(static_cast<std::uint32_t>(~note) / 12);
        return note + octavesBelow * 12 + 12;
    }
    if (note > 127)
        return note - 12 - (note - 128) / 12 * 12;
    return note;
}

// [any] A 32-bit sum that wraps, as those of offsets and times do.
constexpr std::int32_t wrappingAdd(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

}
