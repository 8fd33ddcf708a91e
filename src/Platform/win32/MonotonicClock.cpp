#include "Platform/MonotonicClock.h"

#include <windows.h>

namespace Platform {

namespace {

std::int64_t ticksPerSecond() {
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return frequency.QuadPart;
}

}

std::int64_t monotonicMicroseconds() {
    static const std::int64_t FREQUENCY = ticksPerSecond();
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    // Whole seconds separately, so that no product overflows 64 bits.
    return now.QuadPart / FREQUENCY * 1000000 + now.QuadPart % FREQUENCY * 1000000 / FREQUENCY;
}

}
