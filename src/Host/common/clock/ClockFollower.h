#pragma once

#include <array>
#include <cstddef>

namespace Host {

// Follows the timing ticks of a clock master, 24 to the quarter, and tells the position at any moment in ppq: between
// the ticks by interpolation, with the jitter of their arrival smoothed out, never backwards. It reads no clock: times
// are handed in, in milliseconds, and should not run backwards. All of it is [rt].
//
// A stop holds the position, whatever ticks still come, until a start or continue. A start does not move it: the first
// tick after it stands where the last one before the stop stood. A clock that never said either is taken to run. When
// ticks stay away the position stands within two ticks, and goes on from there when they come again.
class ClockFollower {
public:
    static constexpr int PPQ_PER_TICK = 20;
    // After this long without a tick, and at least four tick lengths, the clock counts as stopped.
    static constexpr double SILENCE_MILLISECONDS = 500;

    void tick(double milliseconds);
    void start(double milliseconds);
    void resume(double milliseconds) { start(milliseconds); }
    void stop(double milliseconds);

    // The position at this time; 0 at first. It never goes back.
    double position(double milliseconds);

    // Whether the clock runs at this time.
    bool isRunning(double milliseconds) const;

    // In beats per minute, smoothed; 120 before it is known.
    double tempo() const;

private:
    void lock(double milliseconds);
    void follow(double milliseconds);
    double silence() const;

    // The number of ticks used to guess a tempo when none is known.
    static constexpr std::size_t GUESSED_FROM = 3;

    bool m_mayRun = true;         // True unless stopped.
    bool m_isLocked = false;      // At least one tick has come in this run.
    std::size_t m_intervals = 0;  // Intervals between ticks since the lock, up to GUESSED_FROM.
    int m_farOff = 0;             // Ticks in a row that came far too early (negative) or far too late.
    double m_period = 60000.0 / (24 * 120);
    std::array<double, GUESSED_FROM> m_lastTicks{};  // When they actually came, newest first.
    double m_smoothTick = 0;                         // When the newest should have come.
    double m_tickPosition = 0;
    double m_told = 0;
};

}
