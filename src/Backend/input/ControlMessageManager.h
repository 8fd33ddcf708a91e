#pragma once

#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::Controls {

// Where the desk's controls hear of events that pass the engine.
class ControlMessageManager {
public:
    virtual ~ControlMessageManager() = default;

    // [player, under the engine's lock; must not wait] An event that is no note passed, with the output and channel
    // that it came with. Controls that send this event follow it.
    virtual void postUpdateControl(const MidiEngine::MirelMidiMessage& message) = 0;
};

}
