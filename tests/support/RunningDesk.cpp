#include "tests/support/RunningDesk.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/log/DisplayListener.h"
#include "Host/cli/script/EventText.h"
#include "Host/cli/script/WindowText.h"
#include "Platform/SettingsStore.h"

#include <thread>
#include <utility>

namespace TestSupport {

using namespace Backend;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr const char* NAME = "Test";

class LogText : public Display::DisplayListener {
public:
    void append(const char* text) override { m_text += text; }
    void setText(const char* text) override { m_text = text; }
    const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

}

RunningDesk::RunningDesk() {
    MirelUtils::useDataFolder(m_folder.path());
    m_mirel = std::make_unique<Mirel>(NAME, *this);
    m_backendCalls = std::make_unique<Host::Cli::BackendCalls>(m_mirel->getMessageManagerMaster());
    m_mirel->getMessageManagerMaster().addMessageManager(m_backendCalls.get());
}

RunningDesk::~RunningDesk() {
    end();
    m_mirel.reset();
    MirelUtils::useDataFolder("");
}

void RunningDesk::prepareSettings(const std::function<void(RegistrySettings&)>& set) {
    const auto store = MirelUtils::createSettingsStore();
    RegistrySettings settings(*store);
    set(settings);
    settings.saveToRegistry(MirelUtils::getRegistryKey(NAME));
}

void RunningDesk::start(const std::vector<MidiInputPort>& inputs, const std::vector<MidiOutputPort>& outputs) {
    m_isRunning = true;
    m_mirel->start();
    MirelMessageManager& manager = m_mirel->getMessageManager();
    manager.sendInitialize();
    manager.sendSetMidiInputPorts(inputs);
    manager.sendSetMidiOutputPorts(outputs);
    manager.sendEndInitialize();
    settle();
}

void RunningDesk::start() {
    start(makePorts<MidiInputPort>({"In 0", "In 1"}), makePorts<MidiOutputPort>({"Out 0", "Out 1", "Out 2"}));
}

void RunningDesk::end() {
    if (!std::exchange(m_isRunning, false))
        return;
    settle();
    m_mirel->getMessageManager().sendEnd();
    m_mirel->stop();
}

void RunningDesk::run(const std::function<void(Mirel&)>& action) {
    post(action);
    settle();
}

void RunningDesk::post(const std::function<void(Mirel&)>& action) {
    m_backendCalls->post([this, action] { action(*m_mirel); });
}

void RunningDesk::settle() {
    const auto isResting = [this] {
        return m_mirel->getMessageManagerMaster().isIdle() && m_mirel->getMidiEngineMessageManager().isIdle() &&
               m_mirel->getDisplayMessageManager().isIdle();
    };
    while (!isResting()) {
        if (m_hasPlayed && m_mirel->getMidiEngine().isSliceAwaited())
            m_mirel->playTimeSlice(m_clock, m_clock);
        std::this_thread::yield();
    }
}

void RunningDesk::playSlice(std::int32_t from, std::int32_t to) {
    m_hasPlayed = true;
    m_clock = to;
    m_mirel->playTimeSlice(from, to);
    settle();
}

std::vector<std::string> RunningDesk::takeTold() {
    const std::lock_guard lock(m_lock);
    m_posted.clear();
    return std::exchange(m_told, {});
}

std::vector<RunningDesk::Posted> RunningDesk::takePosted() {
    const std::lock_guard lock(m_lock);
    m_told.clear();
    return std::exchange(m_posted, {});
}

std::vector<std::string> RunningDesk::takePlayed() {
    const std::lock_guard lock(m_lock);
    return std::exchange(m_played, {});
}

std::vector<std::string> RunningDesk::takeCalls() {
    const std::lock_guard lock(m_lock);
    return std::exchange(m_calls, {});
}

std::string RunningDesk::log() {
    LogText log;
    Display::DisplayMessageManager& display = m_mirel->getDisplayMessageManager();
    display.postSetListener(&log);
    display.postSendAll();
    display.postSetListener(nullptr);
    display.waitUntilIdle();
    return log.text();
}

void RunningDesk::playMidi(const MirelMidiMessage& message) {
    playerThread = Platform::currentThreadId();
    const std::lock_guard lock(m_lock);
    m_played.push_back(Host::Cli::describeEvent(message, message.getChannel()));
}

void RunningDesk::enableMidiInput(int port, bool enable) {
    call("input " + std::to_string(port) + (enable ? " on" : " off"));
}

void RunningDesk::enableMidiOutput(int port, bool enable) {
    call("output " + std::to_string(port) + (enable ? " on" : " off"));
}

void RunningDesk::setTempo(int bpm) {
    engineThread = Platform::currentThreadId();
    call("tempo " + std::to_string(bpm));
}

void RunningDesk::setTempoSource(char input) {
    m_tempoSource = input;
    call("source " + std::to_string(input));
}

void RunningDesk::windowMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const std::string text = Host::Cli::takeWindowText(message, wParam, lParam);
    const std::lock_guard lock(m_lock);
    m_told.push_back(std::to_string(message) + (text.empty() ? "" : " ") + text);
    m_posted.push_back({message, wParam, lParam, Platform::currentThreadId()});
}

void RunningDesk::call(const std::string& text) {
    const std::lock_guard lock(m_lock);
    m_calls.push_back(text);
}

}
