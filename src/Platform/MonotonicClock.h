#pragma once

#include <cstdint>

namespace Platform {

// [any, rt] Microseconds on a clock that only moves forward, whatever happens to the time of day. Its origin is
// arbitrary.
std::int64_t monotonicMicroseconds();

}
