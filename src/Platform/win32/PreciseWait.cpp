#include "Platform/PreciseWait.h"

#include "Platform/MonotonicClock.h"

#include <windows.h>

#include <algorithm>
#include <array>

#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
#define CREATE_WAITABLE_TIMER_HIGH_RESOLUTION 0x00000002
#endif

namespace Platform {

struct PreciseWait::State {
    State()
        : timer(CreateWaitableTimerExW(nullptr, nullptr, CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, TIMER_ALL_ACCESS)),
          woken(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {
        // Before Windows 10 1803 there are only timers of normal resolution.
        if (!timer)
            timer = CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
    }

    ~State() {
        CloseHandle(timer);
        CloseHandle(woken);
    }

    State(const State&) = delete;
    State& operator=(const State&) = delete;

    HANDLE timer;
    HANDLE woken;
};

PreciseWait::PreciseWait() : m_state(std::make_unique<State>()) {}

PreciseWait::~PreciseWait() = default;

void PreciseWait::waitUntil(std::int64_t microseconds) {
    const std::int64_t rest = std::max<std::int64_t>(0, microseconds - monotonicMicroseconds());
    LARGE_INTEGER due;
    due.QuadPart = -10 * rest;  // Relative, in units of 100 nanoseconds.
    if (rest == 0 || !SetWaitableTimer(m_state->timer, &due, 0, nullptr, nullptr, FALSE)) {
        WaitForSingleObject(m_state->woken, static_cast<DWORD>(rest / 1000));
        return;
    }
    const std::array<HANDLE, 2> handles = {m_state->woken, m_state->timer};
    WaitForMultipleObjects(static_cast<DWORD>(handles.size()), handles.data(), FALSE, INFINITE);
    CancelWaitableTimer(m_state->timer);
}

void PreciseWait::wake() {
    SetEvent(m_state->woken);
}

}
