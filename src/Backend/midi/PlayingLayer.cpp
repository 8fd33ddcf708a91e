#include "Backend/midi/PlayingLayer.h"

#include "Backend/core/Text.h"
#include "Backend/midi/MidiEngine.h"
#include "Backend/midi/NoteRange.h"
#include "Backend/midi/Transposition.h"

#include <algorithm>

namespace Backend::MidiEngine {

PlayingLayer::PlayingLayer(const Layers::Layer& layer, MidiEngine& engine)
    : m_engine(engine),
      m_layer(layer),
      m_velocityRatio(static_cast<double>(layer.compress.getNumerator()) / layer.compress.getDenominator()) {
    if (m_layer.arpeggio)
        m_layer.arpeggio->setMidiEngine(&engine);
}

bool PlayingLayer::acceptsNote(const MirelMidiMessage& message) const {
    return message.getD1() >= m_layer.minNote.getNumber() && message.getD1() <= m_layer.maxNote.getNumber() &&
           message.getD2() >= m_layer.minVelocity && message.getD2() <= m_layer.maxVelocity && acceptsZone(message);
}

void PlayingLayer::noteOn(const MirelMidiMessage& message) {
    if (!acceptsNote(message))
        return;
    if (m_layer.toggle.getState() == NoteToggle::off)
        startPlainNote(message);
    else
        startToggledNote(message);
}

void PlayingLayer::hold(const MirelMidiMessage& message) {
    if (m_layer.mono)
        m_heldNotes.add(message.getD1(), message.getD2());
}

void PlayingLayer::startPlainNote(const MirelMidiMessage& message) {
    std::optional<MirelMidiMessage> deferredOff;
    if (hasPreviousMonoNote()) {
        const auto previous = m_heldNotes.last();
        deferredOff = endPreviousMonoNote(message, previous.note, previous.velocity);
    }
    hold(message);
    playNote(message);
    if (deferredOff)
        playNote(*deferredOff);
}

void PlayingLayer::startToggledNote(const MirelMidiMessage& message) {
    const char note = message.getD1();
    if (isToggled(note) && m_layer.toggle.getState() != NoteToggle::type2) {
        setToggled(note, false);
        sendNoteOff(message);
        m_heldNotes.remove(note);
        return;
    }
    std::optional<MirelMidiMessage> deferredOff;
    if (hasPreviousMonoNote()) {
        const auto previous = m_heldNotes.last();
        setToggled(previous.note, false);
        deferredOff = endPreviousMonoNote(message, previous.note, previous.velocity);
        m_heldNotes.remove(previous.note);
    }
    if (isToggled(note)) {
        setToggled(note, false);
        sendNoteOff(message);
    }
    setToggled(note, true);
    hold(message);
    playNote(message);
    if (deferredOff)
        playNote(*deferredOff);
}

std::optional<MirelMidiMessage> PlayingLayer::endPreviousMonoNote(const MirelMidiMessage& message, char previousNote,
                                                                  char previousVelocity) {
    MirelMidiMessage off(message);
    off.setToNoteOff();
    off.setD1(previousNote);
    off.setD2(previousVelocity);
    if (!m_layer.arpeggio)
        return off;
    playNote(off);
    return std::nullopt;
}

void PlayingLayer::sendNoteOff(const MirelMidiMessage& message) {
    MirelMidiMessage off(message);
    off.setToNoteOff();
    playNote(off);
}

void PlayingLayer::noteOff(const MirelMidiMessage& message) {
    // A toggled note does not end when its key goes up.
    if (m_layer.toggle.getState() != NoteToggle::off || !acceptsNote(message))
        return;
    if (!m_layer.mono) {
        playNote(message);
        return;
    }
    const bool wasNewest = m_heldNotes.remove(message.getD1());
    if (!wasNewest)
        return;  // Another note has replaced it already.

    const bool isDeferred = !m_layer.arpeggio;
    if (!isDeferred)
        playNote(message);
    if (!m_heldNotes.isEmpty()) {
        MirelMidiMessage older(message);
        older.setToNoteOn();
        older.setD1(m_heldNotes.last().note);
        playNote(older);
    }
    if (isDeferred)
        playNote(message);
}

void PlayingLayer::otherEvent(const MirelMidiMessage& message, TargetSet& targets) {
    if (!acceptsZone(message))
        return;
    MirelMidiMessage copy(message);
    if (!route(copy) || !targets.insert(copy.getOutput(), copy.getChannel()))
        return;
    m_engine.postUpdateControl(message);
    m_engine.playMidiInternal(copy, false);
}

void PlayingLayer::playNote(const MirelMidiMessage& message) {
    MirelMidiMessage copy(message);
    if (!route(copy))
        return;
    copy.setD1(transposeNote(message.getD1()));
    copy.setD2(scaleVelocity(message.getD2()));
    if (m_layer.arpeggio)
        m_layer.arpeggio->noteEvent(copy, m_layer.sequenceSetting);
    else
        m_engine.playMidiInternal(copy, m_layer.useNoteStack);
}

bool PlayingLayer::route(MirelMidiMessage& message) const {
    const char output =
        m_layer.output == MirelMidiMessage::DEFAULT_OUTPUT ? m_engine.getDefaultMidiOutputByte() : m_layer.output;
    if (!m_engine.isOutputEnabled(output))
        return false;
    message.setOutput(output);
    // A channel that does not exist becomes the first one.
    message.setChannel(m_layer.channel >= 16 ? char{0} : m_layer.channel);
    return true;
}

char PlayingLayer::transposeNote(char note) const {
    const std::int32_t transposed =
        m_layer.key.isNote()
            ? transposeDiatonic(note, m_layer.key.getNumber() % 12, Text::lowByte(m_layer.transpose.getValue()))
            : m_layer.transpose.applyTo(note);
    return static_cast<char>(foldIntoNoteRange(transposed));
}

char PlayingLayer::scaleVelocity(char velocity) const {
    std::int32_t scaled = m_layer.velocity.getValue();
    if (m_layer.velocity.isRelative())
        scaled = wrappingAdd(scaled, static_cast<std::int32_t>(m_velocityRatio * velocity));
    return static_cast<char>(std::clamp(scaled, 0, 127));
}

void PlayingLayer::reset() {
    if (m_layer.arpeggio)
        m_layer.arpeggio->reset(m_layer.sequenceSetting);
    m_noteToggles.reset();
    m_heldNotes.clear();
}

}
