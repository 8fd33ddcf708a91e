#pragma once

#include "Backend/midi/HeldNotes.h"
#include "Backend/midi/Layer.h"
#include "Backend/midi/TargetSet.h"

#include <bitset>
#include <optional>

namespace Backend::MidiEngine {

class MidiEngine;

// A layer in the engine: its rule with what it holds while it plays. Everything here runs under the engine's lock, on
// the player's thread.
class PlayingLayer {
public:
    // Copies the layer deeply and lets its arpeggio play through the engine.
    PlayingLayer(const Layers::Layer& layer, MidiEngine& engine);

    PlayingLayer(PlayingLayer&&) = default;

    const Layers::Layer& getLayer() const { return m_layer; }
    ArpeggioManagement::Arpeggio* getArpeggio() const { return m_layer.arpeggio.get(); }

    // An event whose output and channel are both the default. targets is what this event was sent to so far.
    void noteOn(const MirelMidiMessage& message);
    void noteOff(const MirelMidiMessage& message);
    void otherEvent(const MirelMidiMessage& message, TargetSet& targets);

    // One ppq for its arpeggio, which it must have.
    void timeEvent(std::int32_t ppq) { m_layer.arpeggio->timeEvent(ppq, m_layer.sequenceSetting); }

    // Ends its arpeggio and forgets held and toggled notes.
    void reset();

private:
    bool acceptsNote(const MirelMidiMessage& message) const;
    bool acceptsZone(const MirelMidiMessage& message) const {
        return m_layer.zone < 0 || message.getZone() < 0 || m_layer.zone == message.getZone();
    }

    void startToggledNote(const MirelMidiMessage& message);
    void startPlainNote(const MirelMidiMessage& message);

    // The Note Off of the note that a mono layer gives up for a new one. Without an arpeggio it is to be sent after the
    // new note, for a legato join; with one it has been sent.
    std::optional<MirelMidiMessage> endPreviousMonoNote(const MirelMidiMessage& message, char previousNote,
                                                        char previousVelocity);
    bool hasPreviousMonoNote() const { return m_layer.mono && !m_heldNotes.isEmpty(); }

    // Remembers a note that starts. Only a mono layer ever asks what is held.
    void hold(const MirelMidiMessage& message);

    void sendNoteOff(const MirelMidiMessage& message);

    // Sends a note by the layer's rule, or gives it to the arpeggio.
    void playNote(const MirelMidiMessage& message);

    // Sets output and channel by the layer's rule. False if the output can't be played on.
    bool route(MirelMidiMessage& message) const;

    char transposeNote(char note) const;
    char scaleVelocity(char velocity) const;

    bool isToggled(char note) const { return m_noteToggles[static_cast<unsigned char>(note)]; }
    void setToggled(char note, bool on) { m_noteToggles[static_cast<unsigned char>(note)] = on; }

    MidiEngine& m_engine;
    Layers::Layer m_layer;
    double m_velocityRatio;
    HeldNotes m_heldNotes;  // Of a mono layer.
    std::bitset<256> m_noteToggles;
};

}
