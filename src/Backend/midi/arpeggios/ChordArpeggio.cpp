#include "Backend/midi/arpeggios/ChordArpeggio.h"

#include "Backend/midi/ArpeggioTarget.h"

#include <algorithm>

namespace Backend::ArpeggioManagement::Arpeggios {

using SequenceManagement::SequenceSetting;

void ChordArpeggio::noteEvent(const MidiEngine::MirelMidiMessage& message, SequenceSetting&) {
    if (!m_midiEngine)
        return;
    if (message.isNoteOn()) {
        if (m_notes.size() < MAX_NOTES)
            m_notes.emplace_back(message);
        return;
    }
    for (ArpeggioNote& note : m_notes)
        if (note.getD1() == message.getD1())
            note.state = ArpeggioNote::RELEASED;
}

void ChordArpeggio::timeEvent(std::int32_t ppq, SequenceSetting& sequence) {
    if (!m_midiEngine || m_notes.empty())
        return;
    const Clocks clocks = readClocks(ppq);
    if (clocks.noteEnd)
        endNotes(ppq, sequence);
    if (sequence.getSequence().hasNodes() && clocks.onBeat && !areAllReleased() && m_runningSince >= 0)
        sequence.getSequence().advance();

    if (startNotes(ppq, clocks.onBeat, sequence))
        std::erase_if(m_notes, [](const ArpeggioNote& note) { return note.finished; });
    else if (!isAnySounding() || clocks.onBeat)
        reset(sequence);  // Released notes that still sound last until their end or the beat.
}

void ChordArpeggio::endNotes(std::int32_t ppq, SequenceSetting& sequence) {
    for (ArpeggioNote& note : m_notes) {
        const bool released = note.state == ArpeggioNote::RELEASED;
        if (note.playing) {
            note.lastPpq = ppq;
            sendNoteOff(note, sequence);
            note.playing = released;  // A finished note keeps its mark; it is not sent again.
        }
        if (released)
            note.finished = true;
    }
}

bool ChordArpeggio::startNotes(std::int32_t ppq, bool onBeat, SequenceSetting& sequence) {
    // Read once, so that all notes of a first chord start together without waiting for a beat.
    const bool firstOfAll = m_midiEngine->getStartTime() < 0;
    bool allReleased = true;
    for (ArpeggioNote& note : m_notes) {
        if (note.lastPpq < 0)
            note.lastPpq = ppq;
        if (note.state == ArpeggioNote::RELEASED)
            continue;
        allReleased = false;
        if (firstOfAll) {
            sendNoteOn(note, ppq, sequence);
            startRunning(ppq);
            continue;
        }
        if (onBeat && m_runningSince < 0)
            startRunning(ppq);
        if (note.playing || !onBeat)
            continue;
        note.lastPpq = ppq;
        sendNoteOn(note, ppq, sequence);
    }
    return !allReleased;
}

bool ChordArpeggio::areAllReleased() const {
    return std::all_of(m_notes.begin(), m_notes.end(),
                       [](const ArpeggioNote& note) { return note.state == ArpeggioNote::RELEASED; });
}

bool ChordArpeggio::isAnySounding() const {
    return std::any_of(m_notes.begin(), m_notes.end(),
                       [](const ArpeggioNote& note) { return note.playing && !note.finished; });
}

void ChordArpeggio::reset(SequenceSetting& sequence) {
    if (!m_midiEngine)
        return;
    for (ArpeggioNote& note : m_notes)
        if (note.playing && !note.finished)
            sendNoteOff(note, sequence);
    m_notes.clear();
    m_runningSince = -1;  // Keeps the time of the last note.
    m_midiEngine->updateStartTime();
    sequence.getSequence().setPosition(0);
}

}
