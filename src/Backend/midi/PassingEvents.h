// Who is told of the events that pass through the engine.
#pragma once

namespace Backend::MidiEngine {

class MirelMidiMessage;

class PassingEvents {
public:
    virtual ~PassingEvents() = default;

    // [player, rt, under the engine's lock] An event that is not a note passed, with the output and channel that it
    // came with. False, and nothing is kept, while the receiver takes no more.
    [[nodiscard]] virtual bool postUpdateControl(const MirelMidiMessage& message) = 0;
};

}
