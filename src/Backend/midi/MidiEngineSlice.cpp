// The time slices of the engine.
#include "Backend/midi/MidiEngine.h"

#include <algorithm>
#include <limits>

namespace Backend::MidiEngine {

namespace {

// How many ticks a window that runs backwards plays at each of its ends.
constexpr std::int64_t TICKS_AROUND_A_STEP_BACK = 10;

constexpr std::int64_t NEVER = std::numeric_limits<std::int64_t>::max();

}

void MidiEngine::playTimeSlice(std::int32_t from, std::int32_t to) {
    CriticalSectionLock lock(m_criticalSection);
    m_midiPlayerRunning = true;
    drainPendingMessages(to);
    const std::int64_t first = from;
    const std::int64_t last = to;
    if (last < first) {
        walk(first, first + TICKS_AROUND_A_STEP_BACK, to);
        walk(last - TICKS_AROUND_A_STEP_BACK, last, -1);
    } else if (last - first < MAX_TIME_SLICE) {
        walk(first, last, from);
    }
}

void MidiEngine::drainPendingMessages(std::int32_t to) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_pendingMessages.size(); ++i) {
        MirelMidiMessage& message = m_pendingMessages[i];
        if (message.isMirelReset()) {
            reset();
            m_resetEvent.set();
        } else if (message.isMirelHardReset()) {
            hardReset();
            m_hardResetEvent.set();
        } else {
            if (message.getPpq() < 0)
                message.setPpq(to);
            if (kept != i)
                m_pendingMessages[kept] = message;
            ++kept;
        }
    }
    m_pendingMessages.erase(m_pendingMessages.begin() + static_cast<std::ptrdiff_t>(kept), m_pendingMessages.end());
    m_timedCount = kept;

    // This request is not in the queue, as its sender does not take the lock; it stands behind all that is.
    if (m_hardResetRequested.exchange(false)) {
        hardReset();
        m_hardResetEvent.set();
    }
}

// Ticks at which neither a message is due nor an arpeggio holds notes are passed over; nothing can happen in them.
void MidiEngine::walk(std::int64_t first, std::int64_t last, std::int32_t earliest) {
    std::int64_t ppq = std::max<std::int64_t>(first, 0);  // Nothing plays at negative times.
    last = std::min<std::int64_t>(last, std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1);
    std::int64_t nextDue = findNextDue(ppq, earliest);
    for (; ppq < last; ++ppq) {
        if (!isAnyArpeggioHolding())
            ppq = std::max(ppq, nextDue);
        if (ppq >= last)
            return;
        if (nextDue <= ppq) {
            playDueMessages(static_cast<std::int32_t>(ppq), earliest);
            nextDue = findNextDue(ppq + 1, earliest);
        }
        playArpeggios(static_cast<std::int32_t>(ppq));
    }
}

std::int64_t MidiEngine::findNextDue(std::int64_t ppq, std::int32_t earliest) const {
    std::int64_t due = NEVER;
    for (std::size_t i = 0; i < m_timedCount; ++i) {
        const std::int32_t time = m_pendingMessages[i].getPpq();
        if (time >= earliest)
            due = std::min(due, std::max<std::int64_t>(time, ppq));
    }
    return due;
}

void MidiEngine::playDueMessages(std::int32_t ppq, std::int32_t earliest) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_timedCount; ++i) {
        const std::int32_t time = m_pendingMessages[i].getPpq();
        if (time > ppq || time < earliest) {
            if (kept != i)
                m_pendingMessages[kept] = m_pendingMessages[i];
            ++kept;
        } else {
            playMidi(m_pendingMessages[i]);
        }
    }
    m_pendingMessages.erase(m_pendingMessages.begin() + static_cast<std::ptrdiff_t>(kept),
                            m_pendingMessages.begin() + static_cast<std::ptrdiff_t>(m_timedCount));
    m_timedCount = kept;
}

bool MidiEngine::isAnyArpeggioHolding() const {
    return std::any_of(m_arpeggioLayers.begin(), m_arpeggioLayers.end(),
                       [](const PlayingLayer* layer) { return !layer->getArpeggio()->isIdle(); });
}

void MidiEngine::playArpeggios(std::int32_t ppq) {
    for (PlayingLayer* layer : m_arpeggioLayers)
        if (!layer->getArpeggio()->isIdle())
            layer->timeEvent(ppq);
}

}
