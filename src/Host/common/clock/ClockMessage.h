#pragma once

#include <cstdint>

namespace Host {

// What a clock master sends.
enum class ClockMessageKind : std::uint8_t { TICK, START, RESUME, STOP };

struct ClockMessage {
    ClockMessageKind kind = ClockMessageKind::TICK;
    std::int64_t microseconds = 0;  // When it came, by monotonicMicroseconds().

    bool operator==(const ClockMessage&) const = default;
};

}
