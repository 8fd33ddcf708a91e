#include "benchmarks/BenchEngine.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/midi/sequences/SequencePresetManager.h"

namespace Benchmarks {

using namespace Backend;
using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;

BenchEngine::BenchEngine(const std::string& layersXml)
    : m_mirel(new Host::ObservedMirel("", *this, [](const MirelMidiMessage&) { return false; })),
      m_engine(m_mirel->getMidiEngine()) {
    m_engine.initialize(0, true);
    const XmlDocument document(layersXml, false);
    Layers::LayerList layers;
    layers.readXml(document.getRootElement(), SequenceManagement::SequencePresetManager(""));
    m_engine.getMessageManager().postSetMidiOutputPorts(std::vector<MidiEngine::MidiOutputPort>(1));
    m_engine.getMessageManager().postSetLayerList(layers);
    m_engine.getMessageManager().waitUntilIdle();
}

BenchEngine::~BenchEngine() {
    m_engine.end();
}

MirelMidiMessage BenchEngine::makeNote(bool isNoteOn, int note, int velocity) {
    return {isNoteOn ? MidiMessage::NoteOn : MidiMessage::NoteOff,
            static_cast<char>(note),
            static_cast<char>(velocity),
            -1,
            -1,
            -1,
            -1,
            -1};
}

void BenchEngine::post(bool isNoteOn, int note, int velocity) {
    m_engine.postPlayMidi(makeNote(isNoteOn, note, velocity));
}

void BenchEngine::playSlice(std::int32_t ppq) {
    m_engine.playTimeSlice(m_clock, m_clock + ppq);
    m_clock += ppq;
}

std::string repeatLayer(const std::string& layer, int count) {
    std::string xml = "<Layers>";
    for (int i = 0; i < count; ++i)
        xml += layer;
    return xml + "</Layers>";
}

}
