#pragma once

#include <cstdint>

namespace Platform {

// [any, rt] Microseconds of a clock that only goes forward, whatever happens to the time of day. Its origin means
// nothing.
std::int64_t monotonicMicroseconds();

}
