#pragma once

#include "Backend/core/Mirel.h"

#include <functional>
#include <string>

namespace Host {

// A desk that lets its host see which events the controls hear of.
class ObservedMirel : public Backend::Mirel {
public:
    // [player, under the engine's lock] Whether the controls hear of the event as well. A desk that is not started
    // must not let them.
    using Observer = std::function<bool(const Backend::MidiEngine::MirelMidiMessage& message)>;

    ObservedMirel(const std::string& name, Backend::MidiEngine::MidiPlayer& player, Observer observer);

    Backend::Controls::ControlMessageManager& getControlMessageManager() override { return m_controlMessageManager; }

private:
    class ObservedControls : public Backend::Controls::ControlMessageManager {
    public:
        ObservedControls(Backend::Mirel& mirel, Observer observer);
        bool postUpdateControl(const Backend::MidiEngine::MirelMidiMessage& message) override;

    private:
        Observer m_observer;
    };

    ObservedControls m_controlMessageManager;
};

}
