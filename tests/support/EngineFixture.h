#pragma once

#include "Backend/midi/engine/MidiEngine.h"
#include "Backend/midi/layers/LayerList.h"
#include "tests/support/FakeHost.h"

#include <memory>
#include <string>

namespace TestSupport {

// The layers in the text of a Layers element.
Backend::Layers::LayerList readLayers(const std::string& xml);

// A Layers element with this many equal layers in it.
std::string repeatLayer(const std::string& layer, int count);

// An engine with a fake host, two outputs and its thread running.
class EngineFixture {
public:
    EngineFixture();
    ~EngineFixture();

    Backend::MidiEngine::MidiEngineMessageManager& manager() { return engine->getMessageManager(); }

    // Does on this thread what the engine's thread would do. Only before the first slice.
    void setLayers(const std::string& xml);

    // Posts an event and waits until the engine has it.
    void post(const Backend::MidiEngine::MirelMidiMessage& message);
    void post(Backend::MidiEngine::MidiMessage::MessageType status, int d1, int d2);

    FakeHost host;
    std::unique_ptr<Backend::MidiEngine::MidiEngine> engine;
};

}
