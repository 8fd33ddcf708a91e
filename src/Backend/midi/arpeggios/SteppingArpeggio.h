#pragma once

#include "Backend/midi/arpeggios/Arpeggio.h"

namespace Backend::ArpeggioManagement::Arpeggios {

// Plays the held notes one at a time, ordered by number. Derived classes decide the order and how to walk through it.
class SteppingArpeggio : public Arpeggio {
public:
    void noteEvent(const MidiEngine::MirelMidiMessage& message, SequenceManagement::SequenceSetting& sequence) override;
    void timeEvent(std::int32_t ppq, SequenceManagement::SequenceSetting& sequence) override;
    void reset(SequenceManagement::SequenceSetting& sequence) override;

protected:
    // Whether a note with number d1 comes before one with number other.
    virtual bool isBefore(char d1, char other) const = 0;

    // Whether the same number may be held twice.
    virtual bool keepsSameNote() const { return false; }

    // Moves the current note on by one step: here to the next note, and from the last one to the first note and the
    // sequence's next node.
    virtual void advance(SequenceManagement::SequenceSetting& sequence);

    bool isAtFirst() const { return m_current == 0; }
    bool isAtLast() const { return m_current + 1 == m_notes.size(); }
    void goToFirst() { m_current = 0; }
    void goToLast() { m_current = m_notes.size() - 1; }
    void stepForward() { ++m_current; }
    void stepBack() { --m_current; }

private:
    static constexpr std::size_t AT_END = static_cast<std::size_t>(-1);

    void addNote(const MidiEngine::MirelMidiMessage& message);
    void releaseNote(char d1, SequenceManagement::SequenceSetting& sequence);
    void removeNote(std::size_t index);
    bool areAllReleased() const;
    bool isAnySounding() const;

    // Ends the current note if it is due and moves on.
    void endCurrentNote(SequenceManagement::SequenceSetting& sequence);

    // Starts the current note if it is due.
    void startCurrentNote(std::int32_t ppq, bool onBeat, SequenceManagement::SequenceSetting& sequence);

    std::size_t m_current = AT_END;
};

}
