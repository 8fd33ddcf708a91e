#include "Host/cli/ScriptDesk.h"

#include "Backend/midi/ZoneMap.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr int PORTS_AT_START = 2;

}

ScriptDesk::ScriptDesk(ScriptPlayer::Options options, const std::string& sequences)
    : m_player(options), m_sequencePresets(sequences), m_engine(new MidiEngine::MidiEngine(*this, m_player)) {
    m_engine->initialize(0, false);
    setInputs(PORTS_AT_START);
    setOutputs(PORTS_AT_START, {});
}

ScriptDesk::~ScriptDesk() {
    m_engine->end();
}

void ScriptDesk::setInputs(int count) {
    std::vector<MidiInputPort> ports(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < ports.size(); ++i)
        ports[i].name = "In " + std::to_string(i);
    manager().postSetMidiInputPorts(ports);
    manager().waitUntilIdle();
}

void ScriptDesk::setOutputs(int count, const std::vector<std::int32_t>& off) {
    std::vector<MidiOutputPort> ports(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < ports.size(); ++i)
        ports[i].name = "Out " + std::to_string(i);
    for (const std::int32_t index : off)
        if (index >= 0 && index < count)
            ports[static_cast<std::size_t>(index)].enabled = false;
    manager().postSetMidiOutputPorts(ports);
    manager().waitUntilIdle();
}

void ScriptDesk::setDefaultOutput(int output) {
    manager().postSetDefaultMidiOutput(output);
    manager().waitUntilIdle();
}

void ScriptDesk::setThru(bool thru) {
    manager().postSetMidiThru(thru);
    manager().waitUntilIdle();
}

void ScriptDesk::setLayers(Layers::LayerList layers) {
    m_layers = std::move(layers);
    sendLayers();
}

void ScriptDesk::setSolo(const std::vector<std::int32_t>& layers) {
    for (Layers::Layer& layer : m_layers)
        layer.solo = std::find(layers.begin(), layers.end(), layer.id) != layers.end();
    sendLayers();
}

void ScriptDesk::sendLayers() {
    manager().postSetLayerList(m_layers);
    playUntil([this] { return manager().isIdle(); });
}

void ScriptDesk::setZones(const Zones::ZoneMap& zones) {
    manager().postSetZoneMap(zones);
    manager().waitUntilIdle();
}

void ScriptDesk::setZone(char id, char transpose) {
    Zones::Zone zone;
    zone.id = id;
    zone.transpose = transpose;
    manager().postSetZone(zone);
    manager().waitUntilIdle();
}

void ScriptDesk::postEvent(const MirelMidiMessage& event) {
    manager().postPlayMidi(event);
    manager().waitUntilIdle();
}

void ScriptDesk::playSlice(std::int32_t from, std::int32_t to) {
    m_player.setSliceFrom(from);
    m_engine->playTimeSlice(from, to);
    m_clock = to;
    m_hasPlayed = true;
}

void ScriptDesk::reset() {
    runReset([this] { manager().sendReset(); });
}

void ScriptDesk::hardReset() {
    runReset([this] { manager().sendHardReset(); });
}

template <typename Request>
void ScriptDesk::runReset(Request request) {
    // On a thread of its own, as the slices that it waits for are played here.
    const auto done = std::async(std::launch::async, request);
    playUntil([&done] { return done.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
}

template <typename Condition>
void ScriptDesk::playUntil(Condition isDone) {
    while (!isDone()) {
        // Until the first slice nothing waits for one.
        if (m_hasPlayed)
            playSlice(m_clock, m_clock);
        std::this_thread::yield();
    }
}

}
