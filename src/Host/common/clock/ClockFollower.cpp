#include "Host/common/clock/ClockFollower.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Host {

namespace {

constexpr double TICKS_PER_QUARTER = 24;
constexpr double MILLISECONDS_PER_MINUTE = 60000;
constexpr double SHORTEST_PERIOD = MILLISECONDS_PER_MINUTE / TICKS_PER_QUARTER / 1000;
constexpr double LONGEST_PERIOD = MILLISECONDS_PER_MINUTE / TICKS_PER_QUARTER / 10;

// The smoothing loop: how much of a tick's error moves the phase, and how much the period. It settles on a new tempo
// within about a quarter note and leaves two fifths of the jitter.
constexpr double PHASE_GAIN = 0.3;
constexpr double PERIOD_GAIN = 0.05;

// A tick off by more than this part of a period is not jitter; this many in a row on one side mean another tempo or
// another phase.
constexpr double FAR_OFF = 0.5;
constexpr int FAR_OFF_TICKS = 4;

// How many ticks the position may run ahead of the last one, and how many it may wait before it.
constexpr double AHEAD = 2;
constexpr double BEHIND = 1;

}

double ClockFollower::silence() const {
    return std::max(SILENCE_MILLISECONDS, 4 * m_period);
}

bool ClockFollower::isRunning(double milliseconds) const {
    return m_isLocked && milliseconds - m_lastTicks.front() < silence();
}

double ClockFollower::tempo() const {
    return MILLISECONDS_PER_MINUTE / (TICKS_PER_QUARTER * m_period);
}

// The first tick of a run is placed at the current position.
void ClockFollower::lock(double milliseconds) {
    m_isLocked = true;
    m_intervals = 0;
    m_farOff = 0;
    m_smoothTick = milliseconds;
    m_tickPosition = m_told;
}

void ClockFollower::tick(double milliseconds) {
    if (!m_mayRun)
        return;
    if (!isRunning(milliseconds)) {
        lock(milliseconds);
    } else {
        m_tickPosition += PPQ_PER_TICK;
        follow(milliseconds);
    }
    std::move_backward(m_lastTicks.begin(), m_lastTicks.end() - 1, m_lastTicks.end());
    m_lastTicks.front() = milliseconds;
}

void ClockFollower::follow(double milliseconds) {
    const double error = milliseconds - (m_smoothTick + m_period);
    const bool isFarOff = std::abs(error) > FAR_OFF * m_period;
    if (!isFarOff)
        m_farOff = 0;
    else if (error > 0)
        m_farOff = std::max(m_farOff, 0) + 1;
    else
        m_farOff = std::min(m_farOff, 0) - 1;
    const bool isNew = m_intervals < GUESSED_FROM;
    m_intervals += isNew ? 1 : 0;
    if (isNew || std::abs(m_farOff) >= FAR_OFF_TICKS) {
        // Start again from what the last ticks show.
        m_period = (milliseconds - m_lastTicks[m_intervals - 1]) / static_cast<double>(m_intervals);
        m_smoothTick = milliseconds;
        m_farOff = 0;
    } else {
        const double kept = std::clamp(error, -FAR_OFF * m_period, FAR_OFF * m_period);
        m_smoothTick += m_period + PHASE_GAIN * kept;
        m_period += PERIOD_GAIN * kept;
    }
    m_period = std::clamp(m_period, SHORTEST_PERIOD, LONGEST_PERIOD);
}

void ClockFollower::start(double) {
    m_mayRun = true;
    m_isLocked = false;
}

void ClockFollower::stop(double milliseconds) {
    position(milliseconds);
    m_mayRun = false;
    m_isLocked = false;
}

double ClockFollower::position(double milliseconds) {
    if (!m_isLocked)
        return m_told;
    const double ticks = std::clamp((milliseconds - m_smoothTick) / m_period, -BEHIND, AHEAD);
    m_told = std::max(m_told, m_tickPosition + ticks * PPQ_PER_TICK);
    return m_told;
}

}
