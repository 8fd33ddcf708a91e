#include "Platform/RaisedPriority.h"

#include <pthread.h>
#include <sched.h>
#include <sys/prctl.h>

namespace Platform {

namespace {

// Above everything that doesn't need to keep time, below the sound system's own threads.
constexpr int PRIORITY = 5;

}

struct RaisedPriority::State {
    bool raised = false;
    int oldPolicy = SCHED_OTHER;
    sched_param oldParameters = {};
    int oldSlack = 0;
};

RaisedPriority::RaisedPriority() : m_state(std::make_unique<State>()) {
    // Threads of normal priority are woken late by up to this many nanoseconds, to save power.
    m_state->oldSlack = prctl(PR_GET_TIMERSLACK);
    prctl(PR_SET_TIMERSLACK, 1);
    if (pthread_getschedparam(pthread_self(), &m_state->oldPolicy, &m_state->oldParameters) != 0)
        return;
    sched_param parameters = {};
    parameters.sched_priority = PRIORITY;
    m_state->raised = pthread_setschedparam(pthread_self(), SCHED_FIFO, &parameters) == 0;
}

RaisedPriority::~RaisedPriority() {
    if (m_state->raised)
        pthread_setschedparam(pthread_self(), m_state->oldPolicy, &m_state->oldParameters);
    if (m_state->oldSlack > 0)
        prctl(PR_SET_TIMERSLACK, m_state->oldSlack);
}

bool RaisedPriority::isRaised() const {
    return m_state->raised;
}

}
