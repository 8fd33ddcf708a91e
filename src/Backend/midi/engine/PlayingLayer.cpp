#include "Backend/midi/engine/PlayingLayer.h"

#include "Backend/core/xml/Text.h"
#include "Backend/midi/NoteRange.h"
#include "Backend/midi/engine/MidiEngine.h"
#include "Backend/midi/engine/Transposition.h"

#include <algorithm>

namespace Backend::MidiEngine {

namespace {

constexpr char CHANNELS = 16;

char transposeNote(const Layers::Layer& layer, std::int32_t note) {
    const std::int32_t transposed = layer.key.isNote() ? transposeDiatonic(note, layer.key.getNumber() % 12,
                                                                           Text::lowByte(layer.transpose.getValue()))
                                                       : layer.transpose.applyTo(note);
    return static_cast<char>(foldIntoNoteRange(transposed));
}

char scaleVelocity(const Layers::Layer& layer, char velocity) {
    std::int32_t scaled = layer.velocity.getValue();
    if (layer.velocity.isRelative()) {
        const double ratio = static_cast<double>(layer.compress.getNumerator()) / layer.compress.getDenominator();
        scaled = wrappingAdd(scaled, static_cast<std::int32_t>(ratio * velocity));
    }
    return static_cast<char>(std::clamp(scaled, 0, 127));
}

}

PlayingLayer::PlayingLayer(const Layers::Layer& layer, MidiEngine& engine)
    : m_engine(engine),
      m_layer(layer),
      // A channel that does not exist becomes the first one.
      m_channel(layer.channel < 0 || layer.channel >= CHANNELS ? char{0} : layer.channel),
      m_isDefaultChannel(layer.channel < 0) {
    for (std::size_t note = 0; note < m_sentNotes.size(); ++note)
        m_sentNotes[note] = transposeNote(layer, static_cast<std::int32_t>(note));
    for (std::size_t velocity = 0; velocity < m_sentVelocities.size(); ++velocity)
        m_sentVelocities[velocity] = scaleVelocity(layer, static_cast<char>(velocity));
    if (m_layer.mono)
        m_heldNotes.makeRoom();
    if (m_layer.arpeggio)
        m_layer.arpeggio->setMidiEngine(&engine);
}

void PlayingLayer::noteOn(const MirelMidiMessage& message) {
    if (!acceptsNote(message))
        return;
    if (m_layer.toggle.getState() != NoteToggle::OFF)
        startToggledNote(message);
    else if (m_layer.mono)
        startMonoNote(message);
    else
        playNote(message);
}

void PlayingLayer::startMonoNote(const MirelMidiMessage& message) {
    std::optional<MirelMidiMessage> deferredOff;
    if (!m_heldNotes.isEmpty())
        deferredOff = endPreviousMonoNote(message, m_heldNotes.last());
    m_heldNotes.add(message.getD1(), message.getD2());
    playNote(message);
    if (deferredOff)
        playNote(*deferredOff);
}

void PlayingLayer::startToggledNote(const MirelMidiMessage& message) {
    const char note = message.getD1();
    if (isToggled(note) && m_layer.toggle.getState() != NoteToggle::TYPE2) {
        setToggled(note, false);
        sendNoteOff(message);
        m_heldNotes.remove(note);
        return;
    }
    std::optional<MirelMidiMessage> deferredOff;
    if (!m_heldNotes.isEmpty()) {
        const HeldNotes::HeldNote previous = m_heldNotes.last();
        setToggled(previous.note, false);
        deferredOff = endPreviousMonoNote(message, previous);
        m_heldNotes.remove(previous.note);
    }
    if (isToggled(note)) {
        setToggled(note, false);
        sendNoteOff(message);
    }
    setToggled(note, true);
    if (m_layer.mono)
        m_heldNotes.add(note, message.getD2());
    playNote(message);
    if (deferredOff)
        playNote(*deferredOff);
}

std::optional<MirelMidiMessage> PlayingLayer::endPreviousMonoNote(const MirelMidiMessage& message,
                                                                  HeldNotes::HeldNote previous) {
    MirelMidiMessage off(message);
    off.setToNoteOff();
    off.setD1(previous.note);
    off.setD2(previous.velocity);
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
    if (m_layer.toggle.getState() != NoteToggle::OFF || !acceptsNote(message))
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
    if (!m_layer.acceptsZone(message.getZone()))
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
    copy.setD1(m_sentNotes[static_cast<unsigned char>(message.getD1())]);
    copy.setD2(m_sentVelocities[static_cast<unsigned char>(message.getD2())]);
    if (m_layer.arpeggio)
        m_layer.arpeggio->noteEvent(copy, m_layer.sequenceSetting);
    else
        m_engine.playMidiInternal(copy, m_layer.useNoteStack);
}

bool PlayingLayer::route(MirelMidiMessage& message) const {
    const char output =
        m_layer.output == MirelMidiMessage::DEFAULT_OUTPUT ? m_engine.getDefaultMidiOutputByte() : m_layer.output;
    message.setOutput(output);
    message.setChannel(m_channel);
    message.setDefaultChannel(m_isDefaultChannel);
    return m_engine.isOutputEnabled(output);
}

void PlayingLayer::reset() {
    if (m_layer.arpeggio)
        m_layer.arpeggio->reset(m_layer.sequenceSetting);
    m_noteToggles.reset();
    m_heldNotes.clear();
}

}
