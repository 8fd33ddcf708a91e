#pragma once

#include "Backend/midi/engine/HeldNotes.h"
#include "Backend/midi/engine/TargetSet.h"
#include "Backend/midi/layers/Layer.h"

#include <array>
#include <bitset>
#include <optional>

namespace Backend::MidiEngine {

class MidiEngine;

// A layer in the engine: its rule, and the notes it holds while playing. Everything except the construction is [player,
// rt, locked].
class PlayingLayer {
public:
    // [locked] Copies the layer deeply and connects its arpeggio to the engine.
    PlayingLayer(const Layers::Layer& layer, MidiEngine& engine);

    PlayingLayer(PlayingLayer&&) = default;

    const Layers::Layer& getLayer() const { return m_layer; }
    ArpeggioManagement::Arpeggio* getArpeggio() const { return m_layer.arpeggio.get(); }

    // An event whose output and channel are both the default. targets: where this event has been sent so far.
    void noteOn(const MirelMidiMessage& message);
    void noteOff(const MirelMidiMessage& message);
    void otherEvent(const MirelMidiMessage& message, TargetSet& targets);

    // One ppq for its arpeggio, which must exist.
    void timeEvent(std::int32_t ppq) { m_layer.arpeggio->timeEvent(ppq, m_layer.sequenceSetting); }

    // Ends its arpeggio and forgets held and toggled notes.
    void reset();

private:
    bool acceptsNote(const MirelMidiMessage& message) const {
        return m_layer.acceptsNote(message.getD1(), message.getD2(), message.getZone());
    }

    void startToggledNote(const MirelMidiMessage& message);
    void startMonoNote(const MirelMidiMessage& message);

    // The Note Off for the note that a mono layer gives up for a new one. Without an arpeggio the caller sends it after
    // the new note, for a legato join; with one it has already been sent.
    [[nodiscard]] std::optional<MirelMidiMessage> endPreviousMonoNote(const MirelMidiMessage& message,
                                                                      HeldNotes::HeldNote previous);

    void sendNoteOff(const MirelMidiMessage& message);

    // Sends a note by the layer's rule, or gives it to the arpeggio.
    void playNote(const MirelMidiMessage& message);

    // Sets output and channel by the layer's rule. False if the output can't be used.
    bool route(MirelMidiMessage& message) const;

    bool isToggled(char note) const { return m_noteToggles[static_cast<unsigned char>(note)]; }
    void setToggled(char note, bool on) { m_noteToggles[static_cast<unsigned char>(note)] = on; }

    MidiEngine& m_engine;
    Layers::Layer m_layer;
    char m_channel;  // The channel the layer sends on; with m_isDefaultChannel the default one.
    bool m_isDefaultChannel;
    std::array<char, 128> m_sentNotes;       // What the rule turns each note into,
    std::array<char, 256> m_sentVelocities;  // and each byte of a velocity.
    HeldNotes m_heldNotes;                   // Of a mono layer.
    std::bitset<256> m_noteToggles;
};

}
