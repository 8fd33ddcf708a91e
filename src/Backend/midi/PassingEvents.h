// Receives the events that pass through the engine.
#pragma once

namespace Backend::MidiEngine {

class MirelMidiMessage;

class PassingEvents {
public:
    virtual ~PassingEvents() = default;

    // [player, rt, under the engine's lock] An event other than a note passed, with the output and channel that it came
    // with. Returns false, keeping nothing, while the receiver can't take more.
    [[nodiscard]] virtual bool postUpdateControl(const MirelMidiMessage& message) = 0;
};

}
