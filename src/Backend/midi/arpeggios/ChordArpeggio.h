#pragma once

#include "Backend/midi/arpeggios/Arpeggio.h"

namespace Backend::ArpeggioManagement::Arpeggios {

// Plays all held notes together on each beat.
class ChordArpeggio : public Arpeggio {
public:
    static constexpr const char* TYPE_NAME = "ChordArpeggio";

    std::unique_ptr<Arpeggio> clone() const override { return std::make_unique<ChordArpeggio>(*this); }
    const char* getTypeName() const override { return TYPE_NAME; }
    const char* getDisplayName() const override { return "Chord"; }

    void noteEvent(const MidiEngine::MirelMidiMessage& message, SequenceManagement::SequenceSetting& sequence) override;
    void timeEvent(std::int32_t ppq, SequenceManagement::SequenceSetting& sequence) override;
    void reset(SequenceManagement::SequenceSetting& sequence) override;

private:
    void endNotes(std::int32_t ppq, SequenceManagement::SequenceSetting& sequence);

    // Starts the notes that are due. False if every note is released.
    bool startNotes(std::int32_t ppq, bool onBeat, SequenceManagement::SequenceSetting& sequence);

    bool areAllReleased() const;
    bool isAnySounding() const;
};

}
