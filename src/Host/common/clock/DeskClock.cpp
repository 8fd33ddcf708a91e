#include "Host/common/clock/DeskClock.h"

#include "Backend/midi/engine/MidiEngine.h"

#include <algorithm>
#include <cmath>

namespace Host {

using Backend::MidiEngine::MidiEngine;

namespace {

constexpr std::int32_t LONGEST_SLICE = MidiEngine::MAX_TIME_SLICE - 1;
constexpr double PPQ_PER_BEAT = 480;
constexpr double MILLISECONDS_PER_MINUTE = 60000;
static_assert(DeskClock::HIGHEST_TEMPO * DeskClock::MAX_CATCH_UP_MICROSECONDS / 60000000 * 480 <= LONGEST_SLICE,
              "what is made good must fit one slice");

double milliseconds(std::int64_t microseconds) {
    return static_cast<double>(microseconds) / 1000;
}

std::int32_t firstPpq() {
    return MidiEngine::milliseconds2Ppq(0, DeskClock::DEFAULT_TEMPO);
}

}

DeskClock::DeskClock(std::int64_t microseconds)
    : m_ppq(firstPpq()),
      m_microseconds(microseconds),
      m_originPpq(m_ppq),
      m_originMilliseconds(milliseconds(microseconds)) {}

void DeskClock::setTempo(int beatsPerMinute) {
    if (beatsPerMinute >= LOWEST_TEMPO && beatsPerMinute <= HIGHEST_TEMPO)
        m_wantedTempo = beatsPerMinute;
}

void DeskClock::take(const ClockMessage& message) {
    const double time = milliseconds(message.microseconds);
    switch (message.kind) {
        case ClockMessageKind::TICK: m_follower.tick(time); break;
        case ClockMessageKind::START: m_follower.start(time); break;
        case ClockMessageKind::RESUME: m_follower.resume(time); break;
        case ClockMessageKind::STOP: m_follower.stop(time); break;
    }
}

// The position of the internal clock, including its fraction.
double DeskClock::internalPpq(std::int64_t microseconds) const {
    return m_originPpq +
           m_tempo / MILLISECONDS_PER_MINUTE * (milliseconds(microseconds) - m_originMilliseconds) * PPQ_PER_BEAT;
}

std::int32_t DeskClock::internalTo(std::int64_t microseconds) const {
    return m_originPpq - firstPpq() +
           MidiEngine::milliseconds2Ppq(milliseconds(microseconds) - m_originMilliseconds, m_tempo);
}

std::int32_t DeskClock::externalTo(std::int64_t microseconds) {
    const double passed = m_follower.position(milliseconds(microseconds)) - m_originPosition;
    return m_originPpq + static_cast<std::int32_t>(std::floor(passed));
}

// A change takes effect where the last slice ended, including the fraction of a ppq that had passed.
void DeskClock::applyChanges(std::int64_t microseconds) {
    if (m_wantsExternal == m_isExternal && (m_isExternal || m_wantedTempo == m_tempo))
        return;
    const double fraction = m_isExternal ? 0 : std::clamp(internalPpq(m_microseconds) - m_ppq, -0.5, 0.5);
    m_tempo = m_wantedTempo;
    m_isExternal = m_wantsExternal;
    m_originPpq = m_ppq;
    m_originMilliseconds = milliseconds(m_microseconds) - fraction * MILLISECONDS_PER_MINUTE / (m_tempo * PPQ_PER_BEAT);
    m_originPosition = m_follower.position(milliseconds(microseconds));
}

DeskClock::Slice DeskClock::advance(std::int64_t microseconds) {
    microseconds = std::max(microseconds, m_microseconds);
    const std::int64_t late = microseconds - m_microseconds - MAX_CATCH_UP_MICROSECONDS;
    if (late > 0) {
        m_originMilliseconds += milliseconds(late);
        m_microseconds += late;
    }
    applyChanges(microseconds);
    Slice slice{m_ppq, m_isExternal ? externalTo(microseconds) : internalTo(microseconds)};
    if (m_isExternal) {
        if (slice.to <= slice.from && m_nudges > 0 && !m_follower.isRunning(milliseconds(microseconds))) {
            --m_nudges;
            ++m_originPpq;
            ++slice.to;
        }
        if (slice.to - slice.from > LONGEST_SLICE) {
            m_originPpq -= slice.to - slice.from - LONGEST_SLICE;
            slice.to = slice.from + LONGEST_SLICE;
        }
    } else {
        m_nudges = 0;
        slice.to = std::max(slice.to, slice.from);
    }
    if (slice.to > LAST_PPQ) {
        slice.to = firstPpq();
        m_originPpq = slice.to;
        m_originMilliseconds = milliseconds(microseconds);
        m_originPosition = m_follower.position(milliseconds(microseconds));
    }
    m_ppq = slice.to;
    m_microseconds = microseconds;
    return slice;
}

}
