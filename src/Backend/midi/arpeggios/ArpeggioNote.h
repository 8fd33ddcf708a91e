#pragma once

#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::ArpeggioManagement {

// A note that an arpeggio holds, with the routing of the event that brought it.
class ArpeggioNote : public MidiEngine::MirelMidiMessage {
public:
    enum State : std::int32_t {
        HELD = 0,      // Not played yet (a chord's notes keep this state while held).
        RELEASED = 1,  // Its key is up.
        PLAYED = 2,    // Played at least once.
    };

    explicit ArpeggioNote(const MidiEngine::MirelMidiMessage& message) : MirelMidiMessage(message) {}

    State state = HELD;
    std::int32_t lastPpq = -1;  // When the note last changed.
    bool playing = false;       // Its Note On was sent, its Note Off was not.
    bool finished = false;      // Ready to be removed.
};

}
