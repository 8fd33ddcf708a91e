#include "benchmarks/BenchDesk.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Platform/MonotonicClock.h"

namespace Benchmarks {

using Backend::MidiEngine::MirelMidiMessage;

namespace {

// A computer without MIDI.
class NoMidiSystem : public Host::MidiSystem {
public:
    std::string name() override { return "none"; }
    Host::MidiPortIds list() override { return {}; }
    std::unique_ptr<Host::OpenMidiPort> openInput(const Host::MidiPortId&, Host::MidiReceiver) override {
        return nullptr;
    }
    std::unique_ptr<Host::OpenMidiPort> openOutput(const Host::MidiPortId&) override { return nullptr; }
    bool hasVirtualPorts() override { return false; }
    std::unique_ptr<Host::OpenMidiPort> openVirtualInput(const std::string&, Host::MidiReceiver) override {
        return nullptr;
    }
    std::unique_ptr<Host::OpenMidiPort> openVirtualOutput(const std::string&) override { return nullptr; }
};

// The desk uses the folder when it is created.
std::string useFolder(const std::string& folder) {
    Backend::MirelUtils::useDataFolder(folder);
    return folder;
}

}

void BenchDesk::Player::playMidi(const MirelMidiMessage& message) {
    last = Platform::monotonicMicroseconds();
    ++events;
    Host::PortPlayer::playMidi(message);
}

BenchDesk::BenchDesk(const std::string& dataFolder, Slices slices)
    : m_pauses(slices == Slices::EVERY_MILLISECOND),
      m_ports(std::make_shared<NoMidiSystem>(), {useFolder(dataFolder), std::string()}, [](const MirelMidiMessage&) {}),
      m_mirel("Mirel Benchmark", m_player, [](const MirelMidiMessage&) { return true; }) {
    auto& manager = m_mirel.getMessageManager();
    m_mirel.start();
    manager.sendInitialize();
    m_ports.update();
    manager.sendSetMidiInputPorts(m_ports.inputPorts());
    manager.sendSetMidiOutputPorts(m_ports.outputPorts());
    if (m_pauses)
        m_player.start([this](std::int32_t from, std::int32_t to) { playTimeSlice(from, to); });
    else
        m_restless = std::thread([this] { playWithoutPause(); });
    manager.sendEndInitialize();
    waitUntilIdle();
}

BenchDesk::~BenchDesk() {
    m_mirel.getMessageManager().sendEnd();
    m_mirel.stop();
    m_isEnding = true;
    if (m_restless.joinable())
        m_restless.join();
    m_player.stop();
}

void BenchDesk::playTimeSlice(std::int32_t from, std::int32_t to) {
    if (m_mirel.getMidiEngine().isSliceAwaited())
        ++m_awaitedSlices;
    m_mirel.playTimeSlice(from, to);
}

void BenchDesk::playWithoutPause() {
    while (!m_isEnding) {
        m_player.playSlice(Platform::monotonicMicroseconds(),
                           [this](std::int32_t from, std::int32_t to) { playTimeSlice(from, to); });
        std::this_thread::yield();
    }
}

// The backend gives work to the engine, not the other way round.
void BenchDesk::waitUntilIdle() {
    m_mirel.getMessageManagerMaster().waitUntilIdle();
    m_mirel.getMidiEngineMessageManager().waitUntilIdle();
}

void BenchDesk::spinUntilIdle() {
    while (!m_mirel.getMessageManagerMaster().isIdle() || !m_mirel.getMidiEngineMessageManager().isIdle())
        std::this_thread::yield();  // The desk may have been woken on this core.
}

}
