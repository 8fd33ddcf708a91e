#pragma once

#include <cstdint>
#include <memory>

namespace Platform {

// Waiting until a moment of the monotonic clock as exactly as the system can, unless somebody wakes the waiter before.
// For one waiter at a time.
class PreciseWait {
public:
    PreciseWait();
    ~PreciseWait();
    PreciseWait(const PreciseWait&) = delete;
    PreciseWait& operator=(const PreciseWait&) = delete;

    // [the waiter] Sleeps until monotonicMicroseconds() reaches this, or until wake(); a wake() since the last wait
    // counts. Allocates nothing. A moment that has passed returns at once.
    void waitUntil(std::int64_t microseconds);

    // [any, rt] Ends the present wait, or the next one.
    void wake();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}
