// The time slices of the engine.
#include "Backend/midi/engine/MidiEngine.h"

#include <algorithm>
#include <limits>

namespace Backend::MidiEngine {

namespace {

// How many ticks a backward window plays at each of its ends.
constexpr std::int64_t TICKS_AROUND_A_STEP_BACK = 10;

constexpr std::int64_t NEVER = std::numeric_limits<std::int64_t>::max();

}

void MidiEngine::playTimeSlice(std::int32_t from, std::int32_t to) {
    CriticalSectionLock lock(m_criticalSection);
    m_midiPlayerRunning = true;
    postWaitingUpdates();
    drainPendingMessages(to);
    const std::int64_t first = from;
    const std::int64_t last = to;
    if (last < first) {
        walk(first, first + TICKS_AROUND_A_STEP_BACK, to);
        walk(last - TICKS_AROUND_A_STEP_BACK, last, -1);
    } else if (last - first < MAX_TIME_SLICE) {
        walk(first, last, from);
    }
    keepUnplayedMessages();
}

void MidiEngine::drainPendingMessages(std::int32_t to) {
    // A time below zero, from a window that ended there, counts as none.
    for (MirelMidiMessage& message : m_timedMessages)
        if (message.getPpq() < 0)
            message.setPpq(to);

    m_takenMessages.swap(m_pendingMessages);
    bool anyRequest = false;
    m_takenFrom = std::numeric_limits<std::int32_t>::max();
    for (MirelMidiMessage& message : m_takenMessages) {
        if (message.getPpq() < 0)
            message.setPpq(to);
        m_takenFrom = std::min(m_takenFrom, message.getPpq());
        anyRequest |= message.isMirelReset() || message.isMirelHardReset();
    }
    if (anyRequest)
        carryOutResets();

    // This request is not in the queue, because its sender does not take the lock; it comes after everything in there.
    if (m_hardResetRequested.load(std::memory_order_acquire) && m_hardResetRequested.exchange(false)) {
        hardReset();
        m_isSliceAwaited = false;
        m_hardResetEvent.set();
    }
}

void MidiEngine::carryOutResets() {
    for (const MirelMidiMessage& message : m_takenMessages) {
        if (message.isMirelReset()) {
            reset();
            m_isSliceAwaited = false;
            m_resetEvent.set();
        } else if (message.isMirelHardReset()) {
            hardReset();
            m_isSliceAwaited = false;
            m_hardResetEvent.set();
        }
    }
    m_takenMessages.truncate(std::remove_if(
        m_takenMessages.begin(), m_takenMessages.end(),
        [](const MirelMidiMessage& message) { return message.isMirelReset() || message.isMirelHardReset(); }));
}

void MidiEngine::keepUnplayedMessages() {
    if (m_timedMessages.isEmpty()) {
        m_timedMessages.swap(m_takenMessages);
        return;
    }
    for (const MirelMidiMessage& message : m_takenMessages)
        m_timedMessages.add(message);
    m_takenMessages.truncate(m_takenMessages.begin());
}

// Skips ticks at which no message is due and no arpeggio holds notes; nothing can happen in them.
void MidiEngine::walk(std::int64_t first, std::int64_t last, std::int32_t earliest) {
    std::int64_t ppq = std::max<std::int64_t>(first, 0);  // Nothing plays at negative times.
    last = std::min<std::int64_t>(last, std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1);
    std::int64_t nextDue = ppq;
    for (; ppq < last; ++ppq) {
        if (nextDue <= ppq)
            nextDue = playDueMessages(static_cast<std::int32_t>(ppq), earliest);
        if (isAnyArpeggioHolding())
            playArpeggios(static_cast<std::int32_t>(ppq));
        else
            ppq = std::max(ppq, std::min(nextDue, last) - 1);
    }
}

std::int64_t MidiEngine::playDueMessages(std::int32_t ppq, std::int32_t earliest) {
    const std::int64_t nextTimed = playDueMessages(m_timedMessages, ppq, earliest);
    const std::int64_t nextTaken = ppq < m_takenFrom ? m_takenFrom : playDueMessages(m_takenMessages, ppq, earliest);
    return std::min(nextTimed, nextTaken);
}

std::int64_t MidiEngine::playDueMessages(MessageList& messages, std::int32_t ppq, std::int32_t earliest) {
    std::int64_t nextDue = NEVER;
    MirelMidiMessage* kept = messages.begin();
    for (MirelMidiMessage& message : messages) {
        const std::int32_t time = message.getPpq();
        if (time <= ppq && time >= earliest) {
            playMidi(message);
            continue;
        }
        if (time >= earliest)
            nextDue = std::min<std::int64_t>(nextDue, time);
        if (kept != &message)
            *kept = message;
        ++kept;
    }
    messages.truncate(kept);
    return nextDue;
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
