#pragma once

#include <cstdint>

namespace Backend::SequenceManagement {

// One offset in a node of a sequence.
struct SequenceItem {
    static constexpr std::int32_t DEFAULT_LENGTH = 1920;

    std::int32_t noteOffset = 0;  // Half-steps.
    std::int32_t velocityOffset = 0;
    std::int32_t length = DEFAULT_LENGTH;  // In ppq. Kept in the text; playing ignores it.
    bool rest = false;                     // Plays nothing.

    bool operator==(const SequenceItem&) const = default;
};

}
