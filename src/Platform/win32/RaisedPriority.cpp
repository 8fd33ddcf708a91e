#include "Platform/RaisedPriority.h"

#include <windows.h>

#include <timeapi.h>

namespace Platform {

namespace {

constexpr UINT MILLISECOND = 1;

}

struct RaisedPriority::State {
    bool raised = false;
    bool fineTimers = false;
    int oldPriority = THREAD_PRIORITY_NORMAL;
};

RaisedPriority::RaisedPriority() : m_state(std::make_unique<State>()) {
    m_state->fineTimers = timeBeginPeriod(MILLISECOND) == TIMERR_NOERROR;
    m_state->oldPriority = GetThreadPriority(GetCurrentThread());
    m_state->raised = SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_TIME_CRITICAL) != 0;
}

RaisedPriority::~RaisedPriority() {
    if (m_state->raised)
        SetThreadPriority(GetCurrentThread(), m_state->oldPriority);
    if (m_state->fineTimers)
        timeEndPeriod(MILLISECOND);
}

bool RaisedPriority::isRaised() const {
    return m_state->raised;
}

}
