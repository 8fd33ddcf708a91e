#pragma once

#include "Backend/midi/engine/HeldNotes.h"
#include "Backend/midi/engine/TargetSet.h"
#include "Backend/midi/layers/Layer.h"

#include <array>
#include <bitset>
#include <optional>

namespace Backend::MidiEngine {

class MidiEngine;

// A layer in the engine: its rule with what it holds while it plays. All but making it is [player, rt, locked].
class PlayingLayer {
public:
    // [locked] Copies the layer deeply and lets its arpeggio play through the engine.
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
    bool acceptsNote(const MirelMidiMessage& message) const {
        return m_layer.acceptsNote(message.getD1(), message.getD2(), message.getZone());
    }

    void startToggledNote(const MirelMidiMessage& message);
    void startMonoNote(const MirelMidiMessage& message);

    // The Note Off of the note that a mono layer gives up for a new one. Without an arpeggio it is to be sent after the
    // new note, for a legato join; with one it has been sent.
    [[nodiscard]] std::optional<MirelMidiMessage> endPreviousMonoNote(const MirelMidiMessage& message,
                                                                      HeldNotes::HeldNote previous);

    void sendNoteOff(const MirelMidiMessage& message);

    // Sends a note by the layer's rule, or gives it to the arpeggio.
    void playNote(const MirelMidiMessage& message);

    // Sets output and channel by the layer's rule. False if the output can't be played on.
    bool route(MirelMidiMessage& message) const;

    bool isToggled(char note) const { return m_noteToggles[static_cast<unsigned char>(note)]; }
    void setToggled(char note, bool on) { m_noteToggles[static_cast<unsigned char>(note)] = on; }

    MidiEngine& m_engine;
    Layers::Layer m_layer;
    char m_channel;  // What the layer sends on; with m_isDefaultChannel the default channel.
    bool m_isDefaultChannel;
    std::array<char, 128> m_sentNotes;       // What the rule makes of each note,
    std::array<char, 256> m_sentVelocities;  // and of each byte of a velocity.
    HeldNotes m_heldNotes;                   // Of a mono layer.
    std::bitset<256> m_noteToggles;
};

}
