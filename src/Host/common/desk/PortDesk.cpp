#include "Host/common/desk/PortDesk.h"

#include "Backend/core/MirelFactory.h"
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"
#include "Host/common/desk/InputEvent.h"
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"

#include <chrono>

namespace Host {

using Backend::MidiEngine::MirelMidiMessage;

PortDesk::PortDesk(std::shared_ptr<MidiSystem> system, const Options& options)
    : m_recordsAll(options.recordsAll),
      m_ports(std::make_shared<MidiPorts>(
          std::move(system),
          MidiPorts::Options{options.dataFolder, options.virtualPort, options.keepsSwitches, options.recordsAll},
          [this](const MirelMidiMessage& event) { receiveInputEvent(*m_mirel, event); })),
      m_player(*this),
      m_mirel(Backend::MirelFactory::createMirel(options.product, m_player, false)) {
    m_ports->setListener([watch = m_watch] { ++watch->changes; });
}

PortDesk::~PortDesk() {
    stop();
}

void PortDesk::start() {
    auto& manager = m_mirel->getMessageManager();
    // A scan that hangs may return after the desk is gone, so it holds only the watch and the ports.
    m_watcher = std::make_unique<PortWatcher>([this, watch = m_watch, ports = m_ports] {
        if (!watch->isRunning)
            return;
        tellChanges();
        ports->update();
        if (watch->isRunning)
            tellChanges();
    });
    m_mirel->start();
    manager.sendInitialize();
    m_ports->update();
    m_recorder = findRecorder();
    m_watch->told = m_watch->changes.load();
    manager.sendSetMidiInputPorts(m_ports->inputPorts());
    manager.sendSetMidiOutputPorts(m_ports->outputPorts());
    m_ports->waitUntilIdle();  // Events for a port that is not open yet are lost.
    logFailures();
    startPlayer();
    manager.sendEndInitialize();
    m_watch->isRunning = true;
    m_watcher->wake();  // Picks up whatever has changed meanwhile.
}

bool PortDesk::stop() {
    if (!m_watch->isRunning.exchange(false))
        return true;
    const bool watchEnded = m_watcher->stop();
    // A desk that has ended takes no events, so a thread that delivers one would wait for good.
    m_ports->stopListening();
    // The player and the outputs go on until the desk has ended: it may need a slice, and it ends what sounds.
    m_mirel->getMessageManager().sendEnd();
    m_mirel->stop();
    m_player.stop();
    const bool portsClosed = m_ports->close();
    return watchEnded && portsClosed;
}

void PortDesk::startPlayer() {
    m_player.start([this](std::int32_t from, std::int32_t to) { m_mirel->playTimeSlice(from, to); });
}

bool PortDesk::pause() {
    if (!m_player.hasEnded())
        m_mirel->getMidiEngineMessageManager().sendReset();
    m_player.stop();  // It also ends notes that sound only at the ports.
    return m_ports->waitUntilIdle();
}

void PortDesk::resume() {
    startPlayer();
}

void PortDesk::waitUntilIdle() {
    constexpr std::chrono::milliseconds LIMIT{1000};  // A scan of the ports may hang.
    const auto deadline = std::chrono::steady_clock::now() + LIMIT;
    for (;;) {
        m_mirel->getMessageManagerMaster().waitUntilIdle();
        m_mirel->getMidiEngineMessageManager().waitUntilIdle();
        if (m_watch->told == m_watch->changes || std::chrono::steady_clock::now() > deadline)
            break;
        Platform::sleepMilliseconds(1);
    }
    m_mirel->getMessageManagerMaster().waitUntilIdle();
}

void PortDesk::tellChanges() {
    const int changes = m_watch->changes;
    if (m_watch->told != changes) {
        m_mirel->getMessageManager().postSetMidiInputPorts(m_ports->inputPorts());
        m_mirel->getMessageManager().postSetMidiOutputPorts(m_ports->outputPorts());
        m_watch->told = changes;
    }
    logFailures();
}

void PortDesk::logFailures() {
    for (const std::string& port : m_ports->takeFailures())
        m_mirel->displayString(port + " does not work. It will be tried again.\r\n");
}

// Runs on the engine's thread, which must not wait for the backend: the backend may be waiting for the engine, or have
// ended.
void PortDesk::noteSwitch() {
    ++m_watch->changes;
    m_watcher->wake();
}

char PortDesk::findRecorder() const {
    const auto outputs = m_ports->outputs();
    for (std::size_t i = 0; i < outputs.size(); ++i)
        if (outputs[i].id == MidiPorts::recorderId())
            return static_cast<char>(i);
    return MirelMidiMessage::DEFAULT_OUTPUT;
}

PortDesk::Player::Player(PortDesk& desk)
    : PortPlayer(*desk.m_ports), m_desk(desk), m_takes(desk.m_recordsAll ? PortList::MAX_ROWS : 0) {}

void PortDesk::Player::playMidi(const MirelMidiMessage& message) {
    PortPlayer::playMidi(message);
    if (m_desk.m_recordsAll && message.getOutput() != m_desk.m_recorder)
        record(message);
}

void PortDesk::Player::record(const MirelMidiMessage& message) {
    const std::size_t output = static_cast<unsigned char>(message.getOutput());  // A negative one is out of range.
    if (output >= m_takes.size() || m_takes[output].isSwitchedOff || !message.getMidiMessage().isValid())
        return;
    MirelMidiMessage copy(message);
    copy.setOutput(m_desk.m_recorder);
    PortPlayer::playMidi(copy);
    m_takes[output].sounding.sent({message.getMidiMessage().getMidiOutShortMsg(), 0});
}

// The desk sends no more note-offs to an output that is switched off; the port gets them when it closes.
void PortDesk::Player::endTake(Take& take) const {
    take.sounding.end(Platform::monotonicMicroseconds(), [this](const OutputEvent& ending) {
        m_desk.m_ports->play(m_desk.m_recorder, ending.bytes, ending.microseconds);
    });
}

void PortDesk::Player::enableMidiInput(int port, bool enable) {
    PortPlayer::enableMidiInput(port, enable);
    m_desk.noteSwitch();
}

void PortDesk::Player::enableMidiOutput(int port, bool enable) {
    PortPlayer::enableMidiOutput(port, enable);
    if (const auto output = static_cast<std::size_t>(port); output < m_takes.size()) {
        m_takes[output].isSwitchedOff = !enable;
        if (!enable)
            endTake(m_takes[output]);
    }
    m_desk.noteSwitch();
}

}
