#pragma once

#include "Backend/midi/arpeggios/SteppingArpeggio.h"

namespace Backend::ArpeggioManagement::Arpeggios {

// Plays the held notes up and back down, one at a time; the notes at the ends once. With a sequence it plays all notes
// for each node, first up the nodes and then back.
class UpDownArpeggio : public SteppingArpeggio {
public:
    static constexpr const char* TYPE_NAME = "UpDownArpeggio";

    std::unique_ptr<Arpeggio> clone() const override { return std::make_unique<UpDownArpeggio>(*this); }
    const char* getTypeName() const override { return TYPE_NAME; }
    const char* getDisplayName() const override { return "Up + Down"; }

protected:
    bool isBefore(char d1, char other) const override { return d1 < other; }
    bool keepsSameNote() const override { return true; }
    void advance(SequenceManagement::SequenceSetting& sequence) override;

private:
    void advancePlain();
    void advanceUp(SequenceManagement::Sequence& sequence);
    void advanceDown(SequenceManagement::Sequence& sequence);

    bool m_descending = false;  // Survives a reset.
};

}
