#include "Host/cli/script/ScriptDesk.h"

#include "Backend/core/installation/Product.h"
#include "Backend/core/log/DisplayListener.h"
#include "Backend/midi/layers/ZoneMap.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>
#include <utility>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr int PORTS_AT_START = 2;

class LogText : public Display::DisplayListener {
public:
    void append(const char* text) override { m_text += text; }
    void setText(const char* text) override { m_text = text; }

    const std::string& getText() const { return m_text; }

private:
    std::string m_text;
};

template <class Port>
std::vector<Port> makePorts(int count, const std::string& name) {
    std::vector<Port> ports(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < ports.size(); ++i)
        ports[i].name = name + " " + std::to_string(i);
    return ports;
}

void setSoloOf(Layers::LayerList& list, const std::vector<std::int32_t>& layers) {
    for (Layers::Layer& layer : list)
        layer.solo = std::find(layers.begin(), layers.end(), layer.id) != layers.end();
}

}

ScriptDesk::ScriptDesk(ScriptPlayer::Options options) : m_player(options), m_mirel(createMirel()) {
    m_mirel->setGuiWindowHandle(m_player.getWindowHandle());
    m_mirel->getMidiEngine().initialize(0, false);
    setInputs(PORTS_AT_START);
    setOutputs(PORTS_AT_START, {});
}

ScriptDesk::~ScriptDesk() {
    if (m_isStarted) {
        waitUntilResting();
        m_mirel->getMessageManager().sendEnd();
        m_mirel->stop();
    } else {
        m_mirel->getMidiEngine().end();
    }
}

std::unique_ptr<ObservedMirel> ScriptDesk::createMirel() {
    return std::make_unique<ObservedMirel>(MIREL_PRODUCT, m_player, [this](const MirelMidiMessage& message) {
        keepUpdate(message);
        return false;
    });
}

void ScriptDesk::keepUpdate(const MirelMidiMessage& message) {
    m_player.tellUpdate(message);
    if (m_isStarted)
        m_updates.push_back(message);
}

void ScriptDesk::start() {
    if (m_isStarted)
        return;
    reset();
    m_mirel->getMidiEngine().end();
    m_mirel = createMirel();
    m_calls = std::make_unique<BackendCalls>(m_mirel->getMessageManagerMaster());
    m_mirel->getMessageManagerMaster().addMessageManager(m_calls.get());
    m_isStarted = true;
    m_mirel->setGuiWindowHandle(m_player.getWindowHandle());
    m_mirel->start();
    m_mirel->getMessageManager().sendInitialize();
    m_mirel->getMessageManager().sendSetMidiInputPorts(m_inputs);
    m_mirel->getMessageManager().sendSetMidiOutputPorts(m_outputs);
    m_mirel->getMessageManager().sendEndInitialize();
    waitUntilResting();
}

void ScriptDesk::setInputs(int count) {
    m_inputs = makePorts<MidiInputPort>(count, "In");
    if (m_isStarted)
        m_mirel->getMessageManager().postSetMidiInputPorts(m_inputs);
    else
        engine().postSetMidiInputPorts(m_inputs);
    waitUntilResting();
}

void ScriptDesk::setOutputs(int count, const std::vector<std::int32_t>& off) {
    m_outputs = makePorts<MidiOutputPort>(count, "Out");
    for (const std::int32_t index : off)
        if (index >= 0 && index < count)
            m_outputs[static_cast<std::size_t>(index)].enabled = false;
    if (m_isStarted)
        m_mirel->getMessageManager().postSetMidiOutputPorts(m_outputs);
    else
        engine().postSetMidiOutputPorts(m_outputs);
    waitUntilResting();
}

void ScriptDesk::setDefaultOutput(int output) {
    engine().postSetDefaultMidiOutput(output);
    waitUntilResting();
}

void ScriptDesk::setThru(bool thru) {
    engine().postSetMidiThru(thru);
    waitUntilResting();
}

void ScriptDesk::setLayers(const Layers::LayerList& layers) {
    if (m_isStarted) {
        m_mirel->getLayerMessageManager().postSetLayerList(layers, true);
    } else {
        m_layers = layers;
        engine().postSetLayerList(m_layers);
    }
    waitUntilResting();
}

void ScriptDesk::setSolo(const std::vector<std::int32_t>& layers) {
    if (m_isStarted) {
        run([&layers](Mirel& mirel) {
            Layers::LayerList list = mirel.getLayers().getLayerList();
            setSoloOf(list, layers);
            mirel.getLayers().setLayerList(list, true);
        });
        return;
    }
    setSoloOf(m_layers, layers);
    engine().postSetLayerList(m_layers);
    waitUntilResting();
}

void ScriptDesk::setZones(const Zones::ZoneMap& zones) {
    engine().postSetZoneMap(zones);
    waitUntilResting();
}

void ScriptDesk::setZone(char id, char transpose) {
    Zones::Zone zone;
    zone.id = id;
    zone.transpose = transpose;
    engine().postSetZone(zone);
    waitUntilResting();
}

void ScriptDesk::postEvent(const MirelMidiMessage& event) {
    engine().postPlayMidi(event);
    waitUntilResting();
}

void ScriptDesk::playSlice(std::int32_t from, std::int32_t to) {
    m_clock = to;
    playTimeSlice(from, to);
    waitUntilResting();
}

void ScriptDesk::playTimeSlice(std::int32_t from, std::int32_t to) {
    m_player.setSliceFrom(from);
    m_mirel->playTimeSlice(from, to);
    // During the slice, their order relative to its events would be a matter of chance.
    postUpdates();
}

void ScriptDesk::postUpdates() {
    auto& controls = m_mirel->getControls().getMessageManager();
    while (!m_updates.empty() && controls.postUpdateControl(m_updates.front()))
        m_updates.pop_front();
}

void ScriptDesk::reset() {
    runReset([this] { engine().sendReset(); });
}

void ScriptDesk::hardReset() {
    runReset([this] { engine().sendHardReset(); });
}

void ScriptDesk::runReset(const std::function<void()>& request) {
    // On another thread, because the slices that it waits for are played here.
    const auto done = std::async(std::launch::async, request);
    playUntil(1, [&done] { return done.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
}

void ScriptDesk::post(const std::function<void(MirelIF&)>& request) {
    start();
    request(*m_mirel);
    waitUntilResting();
}

void ScriptDesk::run(std::function<void(Mirel&)> action) {
    start();
    m_calls->post([this, action = std::move(action)] { action(*m_mirel); });
    waitUntilResting();
}

void ScriptDesk::print(const std::function<std::string(Mirel&)>& describe) {
    run([this, &describe](Mirel& mirel) { m_player.tell(describe(mirel)); });
}

std::string ScriptDesk::getLog() {
    start();
    LogText log;
    auto& display = m_mirel->getDisplayMessageManager();
    display.postSetListener(&log);
    display.postSendAll();
    display.postSetListener(nullptr);
    waitUntilResting();
    return log.getText();
}

// The backend gets work from here and from slices, the engine from the backend as well, and the display from the
// backend. Checked in this order, whatever rests stays at rest.
bool ScriptDesk::isResting() {
    return m_updates.empty() && (!m_isStarted || m_mirel->getMessageManagerMaster().isIdle()) && engine().isIdle() &&
           (!m_isStarted || m_mirel->getDisplayMessageManager().isIdle());
}

void ScriptDesk::waitUntilResting() {
    playUntil(0, [this] { return isResting(); });
}

// Whether everybody waits for nothing but a slice. Only then is the order of things the same in every run.
bool ScriptDesk::isSliceNeeded(int ownCallers) {
    const MidiEngine::MidiEngine& midiEngine = m_mirel->getMidiEngine();
    if (!midiEngine.isSliceAwaited())
        return false;
    const bool isBackendBusy = m_isStarted && !m_mirel->getMessageManagerMaster().isIdle();
    const int busyThreads = (isBackendBusy ? 1 : 0) + (engine().isIdle() ? 0 : 1) + ownCallers;
    return midiEngine.getResetCallers() == busyThreads;
}

template <typename Condition>
void ScriptDesk::playUntil(int ownCallers, Condition isDone) {
    while (!isDone()) {
        if (isSliceNeeded(ownCallers))
            playTimeSlice(m_clock, m_clock);
        postUpdates();
        std::this_thread::yield();
    }
}

}
