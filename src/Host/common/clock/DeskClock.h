#pragma once

#include "Host/common/clock/ClockFollower.h"
#include "Host/common/clock/ClockMessage.h"

#include <cstdint>

namespace Host {

// Turns the time of a monotonic clock into the slices that the desk plays, in ppq. Each slice begins where the last one
// ended: a change of tempo or source moves nothing, and a clock read late makes a longer slice. For one thread; it
// reads no clock itself. All of it is [rt].
class DeskClock {
public:
    struct Slice {
        std::int32_t from;
        std::int32_t to;

        bool operator==(const Slice&) const = default;
    };

    static constexpr int DEFAULT_TEMPO = 120;
    static constexpr int LOWEST_TEMPO = 20;
    static constexpr int HIGHEST_TEMPO = 250;
    // The most that one slice catches up. Longer gaps (the computer slept) are skipped, as nobody wants to hear them
    // all at once.
    static constexpr std::int64_t MAX_CATCH_UP_MICROSECONDS = 2000000;
    // Shortly before its numbers run out, the time line starts again from 0. That takes weeks, and sounds like a reset
    // of what plays then.
    static constexpr std::int32_t LAST_PPQ = 2000000000;

    // The time line begins at this moment.
    explicit DeskClock(std::int64_t microseconds);

    // Beats per minute of the internal clock, from the next slice on. A tempo out of range is ignored.
    void setTempo(int beatsPerMinute);

    // Whether the time comes from clock messages, from the next slice on.
    void setExternal(bool isExternal) { m_wantsExternal = isExternal; }

    // A message from the clock master. These are followed even while the internal clock runs, so that the time is known
    // at once when the source changes.
    void take(const ClockMessage& message);

    // The slice up to this moment. Empty while an external clock is stopped.
    Slice advance(std::int64_t microseconds);

    // While an external clock is stopped: lets the next slices pass two ppq in two steps, so that waiting events play.
    void nudge() { m_nudges = 2; }

    // The tempo of the external clock, as far as it is known.
    double externalTempo() const { return m_follower.tempo(); }

private:
    double internalPpq(std::int64_t microseconds) const;
    void applyChanges(std::int64_t microseconds);
    std::int32_t internalTo(std::int64_t microseconds) const;
    std::int32_t externalTo(std::int64_t microseconds);

    std::int32_t m_ppq;           // The end of the last slice.
    std::int64_t m_microseconds;  // When that was.
    bool m_isExternal = false;
    bool m_wantsExternal = false;
    int m_tempo = DEFAULT_TEMPO;
    int m_wantedTempo = DEFAULT_TEMPO;
    int m_nudges = 0;

    // The internal clock was at m_originPpq at this time, in milliseconds.
    std::int32_t m_originPpq;
    double m_originMilliseconds;

    // The external position that corresponds to m_originPpq.
    double m_originPosition = 0;
    ClockFollower m_follower;
};

}
