#pragma once

#include "Backend/midi/MirelMidiMessage.h"
#include "Backend/midi/Zone.h"

#include <array>

namespace Backend::MidiEngine {

// A zone in the engine, with the notes it has sent. For use under the engine's lock; playing is [player, rt].
class PlayingZone {
public:
    explicit PlayingZone(const Zones::Zone& zone) : m_zone(zone) { m_sentNotes.fill(Note::NONE); }

    // Takes over only the transposition: sounding notes stay what they were sent as.
    void setTranspose(char transpose) { m_zone.transpose = transpose; }

    // The first data byte with which the event continues. A Note On is transposed; a Note Off gets the note that its
    // last Note On was sent as, or its own number if there was none; other events are unchanged.
    char mapNote(const MirelMidiMessage& message);

private:
    Zones::Zone m_zone;
    std::array<std::uint8_t, 256> m_sentNotes;
};

}
