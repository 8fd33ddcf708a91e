// What arpeggios and sequences play on.
#pragma once

#include <cstdint>

namespace Backend::MidiEngine {

class MirelMidiMessage;

// The part of the engine that an arpeggio uses. All of it is called under the engine's lock, and rt.
class ArpeggioTarget {
public:
    virtual ~ArpeggioTarget() = default;

    // [locked, rt] Counts a note, hands the event to the host and shows it. With stackNotes a Note Off is held back
    // while its note was started more often than it ended.
    virtual void playMidiInternal(const MirelMidiMessage& message, bool stackNotes) = 0;

    // [locked, rt] The origin of the grid that all arpeggios share, in ppq; -1 while none plays. The first one sets it.
    virtual std::int32_t getStartTime() const = 0;
    virtual void setStartTime(std::int32_t ppq) = 0;

    // [locked, rt] Clears the origin if no arpeggio plays.
    virtual void updateStartTime() = 0;
};

}
