#include "Platform/MonotonicClock.h"

#include <ctime>

namespace Platform {

std::int64_t monotonicMicroseconds() {
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000000 + now.tv_nsec / 1000;
}

}
