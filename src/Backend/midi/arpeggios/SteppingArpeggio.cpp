#include "Backend/midi/arpeggios/SteppingArpeggio.h"

#include "Backend/midi/ArpeggioTarget.h"

#include <algorithm>

namespace Backend::ArpeggioManagement::Arpeggios {

using SequenceManagement::SequenceSetting;

void SteppingArpeggio::noteEvent(const MidiEngine::MirelMidiMessage& message, SequenceSetting& sequence) {
    if (!m_midiEngine)
        return;
    if (message.isNoteOn())
        addNote(message);
    else
        releaseNote(message.getD1(), sequence);
}

void SteppingArpeggio::addNote(const MidiEngine::MirelMidiMessage& message) {
    const char d1 = message.getD1();
    // After all notes that come before it, and after those of the same number.
    const auto place = std::find_if(m_notes.begin(), m_notes.end(),
                                    [&](const ArpeggioNote& note) { return isBefore(d1, note.getD1()); });
    const bool isHeld = place != m_notes.begin() && std::prev(place)->getD1() == d1;
    if ((isHeld && !keepsSameNote()) || m_notes.size() >= MAX_NOTES)
        return;
    const auto index = static_cast<std::size_t>(place - m_notes.begin());
    m_notes.emplace(place, message);
    if (m_current != AT_END && index <= m_current)
        ++m_current;
}

void SteppingArpeggio::releaseNote(char d1, SequenceSetting& sequence) {
    const auto note = std::find_if(m_notes.begin(), m_notes.end(),
                                   [d1](const ArpeggioNote& candidate) { return candidate.getD1() == d1; });
    if (note == m_notes.end())
        return;
    if (note->playing) {
        note->state = ArpeggioNote::RELEASED;
        return;
    }
    const auto index = static_cast<std::size_t>(note - m_notes.begin());
    if (index == m_current)
        m_current = isAtLast() ? 0 : m_current + 1;
    removeNote(index);
    if (m_notes.empty())
        reset(sequence);
}

// The current note stays the same one, wherever it ends up.
void SteppingArpeggio::removeNote(std::size_t index) {
    m_notes.erase(m_notes.begin() + static_cast<std::ptrdiff_t>(index));
    if (m_current == AT_END)
        return;
    if (m_current == index)
        m_current = AT_END;
    else if (m_current > index)
        --m_current;
}

void SteppingArpeggio::timeEvent(std::int32_t ppq, SequenceSetting& sequence) {
    if (m_notes.empty())
        return;
    if (m_current == AT_END)
        goToFirst();
    const Clocks clocks = readClocks(ppq);

    // A released note that still sounds lasts until its end or the beat.
    if (areAllReleased() && (!isAnySounding() || clocks.onBeat)) {
        reset(sequence);
        return;
    }
    if (clocks.noteEnd)
        endCurrentNote(sequence);
    if (m_notes.empty()) {
        reset(sequence);
        return;
    }
    startCurrentNote(ppq, clocks.onBeat, sequence);
}

void SteppingArpeggio::endCurrentNote(SequenceSetting& sequence) {
    if (m_notes[m_current].state == ArpeggioNote::RELEASED) {
        const std::size_t ended = m_current;
        sendNoteOff(m_notes[ended], sequence);
        advance(sequence);
        removeNote(ended);
    }
    if (m_current == AT_END)
        return;
    ArpeggioNote& note = m_notes[m_current];
    if (note.state == ArpeggioNote::PLAYED && note.playing) {
        sendNoteOff(note, sequence);
        note.playing = false;
        advance(sequence);
    }
}

void SteppingArpeggio::startCurrentNote(std::int32_t ppq, bool onBeat, SequenceSetting& sequence) {
    ArpeggioNote& note = m_notes[m_current];
    const bool startsTheGrid = note.state == ArpeggioNote::HELD && m_midiEngine->getStartTime() < 0;
    if (!startsTheGrid && (note.state == ArpeggioNote::RELEASED || !onBeat))
        return;
    sendNoteOn(note, ppq, sequence);
    note.state = ArpeggioNote::PLAYED;
    startRunning(ppq);
}

void SteppingArpeggio::advance(SequenceSetting& sequence) {
    if (!isAtLast()) {
        stepForward();
        return;
    }
    sequence.getSequence().advance();
    goToFirst();
}

bool SteppingArpeggio::areAllReleased() const {
    return std::all_of(m_notes.begin(), m_notes.end(),
                       [](const ArpeggioNote& note) { return note.state == ArpeggioNote::RELEASED; });
}

bool SteppingArpeggio::isAnySounding() const {
    return std::any_of(m_notes.begin(), m_notes.end(), [](const ArpeggioNote& note) { return note.playing; });
}

void SteppingArpeggio::reset(SequenceSetting& sequence) {
    if (!m_midiEngine)
        return;
    for (ArpeggioNote& note : m_notes)
        if (note.playing)
            sendNoteOff(note, sequence);
    m_notes.clear();
    m_current = AT_END;
    m_runningSince = -1;
    m_lastNoteOn = -1;
    m_midiEngine->updateStartTime();
    sequence.getSequence().setPosition(0);
}

}
