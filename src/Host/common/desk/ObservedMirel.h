#pragma once

#include "Backend/core/Mirel.h"
#include "Backend/midi/PassingEvents.h"

#include <functional>
#include <string>

namespace Host {

// A desk that lets its host see which events reach the controls.
class ObservedMirel : private Backend::MidiEngine::PassingEvents, public Backend::Mirel {
public:
    // [player, rt, under the engine's lock] Returns whether the controls get the event as well. Must return false for a
    // desk that is not started.
    using Observer = std::function<bool(const Backend::MidiEngine::MirelMidiMessage& message)>;

    ObservedMirel(const std::string& name, Backend::MidiEngine::MidiPlayer& player, Observer observer);

private:
    bool postUpdateControl(const Backend::MidiEngine::MirelMidiMessage& message) override;

    Observer m_observer;
};

}
