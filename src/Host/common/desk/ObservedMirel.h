#pragma once

#include "Backend/core/Mirel.h"
#include "Backend/midi/PassingEvents.h"

#include <functional>
#include <string>

namespace Host {

// A desk that lets its host see which events the controls hear of.
class ObservedMirel : public Backend::Mirel, private Backend::MidiEngine::PassingEvents {
public:
    // [player, rt, under the engine's lock] Whether the controls hear of the event as well. A desk that is not started
    // must not let them.
    using Observer = std::function<bool(const Backend::MidiEngine::MirelMidiMessage& message)>;

    ObservedMirel(const std::string& name, Backend::MidiEngine::MidiPlayer& player, Observer observer);

private:
    bool postUpdateControl(const Backend::MidiEngine::MirelMidiMessage& message) override;

    Observer m_observer;
};

}
