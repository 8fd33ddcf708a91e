#pragma once

#include <cstdint>
#include <memory>

namespace Platform {

// Waits until a moment of the monotonic clock as precisely as the system can, unless woken before. For one waiter at a
// time.
class PreciseWait {
public:
    PreciseWait();
    ~PreciseWait();
    PreciseWait(const PreciseWait&) = delete;
    PreciseWait& operator=(const PreciseWait&) = delete;

    // [the waiter] Sleeps until monotonicMicroseconds() reaches this, or until wake(); a wake() since the last wait
    // counts. Allocates nothing. Returns at once if the moment has passed.
    void waitUntil(std::int64_t microseconds);

    // [any, rt] Ends the current wait, or else the next one.
    void wake();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}
