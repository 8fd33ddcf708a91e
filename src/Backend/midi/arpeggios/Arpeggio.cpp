#include "Backend/midi/arpeggios/Arpeggio.h"

#include "Backend/core/xml/ElementWriter.h"
#include "Backend/midi/ArpeggioTarget.h"
#include "Backend/midi/NoteRange.h"
#include "Backend/midi/sequences/SequencePlayer.h"

namespace Backend::ArpeggioManagement {

using SequenceManagement::SequenceSetting;

void Arpeggio::setMidiEngine(MidiEngine::ArpeggioTarget* engine) {
    m_midiEngine = engine;
    m_notes.reserve(MAX_NOTES);
}

void Arpeggio::writeXml(std::ostream& stream, int indent) const {
    writeEmptyElement(stream, indent, getTypeName(), *this);
}

std::string Arpeggio::toString() const {
    return std::string(getDisplayName()) + " Arp " + getBeat().toString() + " Len:" + getLength().toString();
}

Arpeggio::Clocks Arpeggio::readClocks(std::int32_t ppq) const {
    const bool onBeat = isOnBeat(ppq);
    // A note as long as the beat or longer ends with the beat.
    return {m_length < m_beat ? isNoteEnd(ppq) : onBeat, onBeat};
}

bool Arpeggio::isOnBeat(std::int32_t ppq) const {
    if (m_beat <= 0)
        return false;
    return wrappingAdd(ppq, -m_midiEngine->getStartTime()) % m_beat == 0;
}

bool Arpeggio::isNoteEnd(std::int32_t ppq) const {
    if (m_beat <= 0)
        return false;
    std::int64_t last = m_lastNoteOn;
    if (last >= ppq)  // The clock went back.
        last -= ((last - ppq) / m_beat + 1) * m_beat;
    const std::int32_t end = wrappingAdd(static_cast<std::int32_t>(last), m_length);
    return end > 0 && ppq % end == 0;
}

void Arpeggio::sendNote(const ArpeggioNote& note, SequenceSetting& sequence) {
    if (sequence.getSequence().hasNodes())
        SequenceManagement::playThroughSequence(*m_midiEngine, note, sequence);
    else
        m_midiEngine->playMidiInternal(note, false);
}

void Arpeggio::sendNoteOn(ArpeggioNote& note, std::int32_t ppq, SequenceSetting& sequence) {
    note.setToNoteOn();
    m_lastNoteOn = ppq;
    sendNote(note, sequence);
    note.playing = true;
}

void Arpeggio::sendNoteOff(ArpeggioNote& note, SequenceSetting& sequence) {
    note.setToNoteOff();
    sendNote(note, sequence);
}

void Arpeggio::startRunning(std::int32_t ppq) {
    m_runningSince = ppq;
    m_midiEngine->setStartTime(ppq);
}

}
