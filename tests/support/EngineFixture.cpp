#include "tests/support/EngineFixture.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/midi/sequences/SequencePresetManager.h"

namespace TestSupport {

using namespace Backend;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;

Layers::LayerList readLayers(const std::string& xml) {
    const XmlDocument document(xml, false);
    Layers::LayerList layers;
    layers.readXml(document.getRootElement(), SequenceManagement::SequencePresetManager(""));
    return layers;
}

std::string repeatLayer(const std::string& layer, int count) {
    std::string xml = "<Layers>";
    for (int i = 0; i < count; ++i)
        xml += layer;
    return xml + "</Layers>";
}

EngineFixture::EngineFixture() : engine(std::make_unique<MidiEngine::MidiEngine>(host.mirel(), host)) {
    engine->initialize(0, false);
    manager().postSetMidiOutputPorts(std::vector<MidiOutputPort>(2));
    manager().waitUntilIdle();
}

EngineFixture::~EngineFixture() {
    engine->end();
}

void EngineFixture::setLayers(const std::string& xml) {
    manager().postSetLayerList(readLayers(xml));
    manager().waitUntilIdle();
}

void EngineFixture::post(const MirelMidiMessage& message) {
    manager().postPlayMidi(message);
    manager().waitUntilIdle();
}

void EngineFixture::post(MidiMessage::MessageType status, int d1, int d2) {
    post(MirelMidiMessage(status, static_cast<char>(d1), static_cast<char>(d2)));
}

}
