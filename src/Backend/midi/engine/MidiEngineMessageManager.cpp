#include "Backend/midi/engine/MidiEngineMessageManager.h"

#include "Backend/core/messages/MessageForm.h"
#include "Backend/core/messages/MessageTable.h"
#include "Backend/midi/engine/MidiEngine.h"
#include "Backend/midi/engine/MidiEngineMessages.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"

namespace Backend::MidiEngine {

using namespace EngineMessages;

MidiEngineMessageManager::MidiEngineMessageManager(MidiEngine& midiEngine) : m_midiEngine(midiEngine) {}

MidiEngineMessageManager::~MidiEngineMessageManager() = default;

void MidiEngineMessageManager::start() {
    m_thread.start("mirel engine", [this] { run(); });
}

void MidiEngineMessageManager::stop() {
    m_thread.stop(QUIT_MESSAGE_THREAD);
    for (MSG leftOver; m_thread.tryGet(leftOver);)
        FAMILY.dispose(leftOver);
}

void MidiEngineMessageManager::run() {
    MSG message;
    while (m_thread.get(message) && message.message != QUIT_MESSAGE_THREAD)
        handleMessage(message);
}

template <class Row, class... Values>
void MidiEngineMessageManager::post(Row row, const Values&... values) {
    row.post([this](UINT number, WPARAM w, LPARAM l) { m_thread.postUntilAccepted(number, w, l); }, values...);
}

void MidiEngineMessageManager::postPlayMidi(const MirelMidiMessage& message) {
    const Cell& control = message.getFromControl();
    if (chooseMessageForm(control.getRow(), control.getColumn(), message.getPpq()) == MessageForm::PARAM)
        postPlayMidiViaParam(message);
    else
        postPlayMidiViaAlloc(message);
}

void MidiEngineMessageManager::postPlayMidiViaParam(const MirelMidiMessage& message) {
    post(PLAY_MIDI_VIA_PARAM, message);
}

void MidiEngineMessageManager::postPlayMidiViaAlloc(const MirelMidiMessage& message) {
    post(PLAY_MIDI_VIA_ALLOC, message);
}

void MidiEngineMessageManager::postSetMidiInputPorts(const std::vector<MidiInputPort>& ports) {
    post(SET_MIDI_INPUT_PORTS, ports);
}

void MidiEngineMessageManager::postSetMidiOutputPorts(const std::vector<MidiOutputPort>& ports) {
    post(SET_MIDI_OUTPUT_PORTS, ports);
}

void MidiEngineMessageManager::postEnableMidiInput(int port, bool enable) {
    post(ENABLE_MIDI_INPUT, port, enable);
}

void MidiEngineMessageManager::postEnableMidiOutput(int port, bool enable) {
    post(ENABLE_MIDI_OUTPUT, port, enable);
}

void MidiEngineMessageManager::postSetDefaultMidiOutput(int output) {
    post(SET_DEFAULT_MIDI_OUTPUT, output);
}

void MidiEngineMessageManager::postSetLayerList(const Layers::LayerList& layers) {
    post(SET_LAYER_LIST, layers);
}

void MidiEngineMessageManager::postSetZoneMap(const Zones::ZoneMap& zones) {
    post(SET_ZONE_MAP, zones);
}

void MidiEngineMessageManager::postSetZone(const Zones::Zone& zone) {
    post(SET_ZONE, zone);
}

void MidiEngineMessageManager::postSetTempo(int bpm) {
    post(SET_TEMPO, bpm);
}

void MidiEngineMessageManager::postSetTempoSource(char input) {
    post(SET_TEMPO_SOURCE, input);
}

void MidiEngineMessageManager::postSetMidiThru(bool midiThru) {
    post(SET_MIDI_THRU, midiThru);
}

void MidiEngineMessageManager::sendReset() {
    m_midiEngine.sendReset();
}

void MidiEngineMessageManager::sendHardReset() {
    m_midiEngine.sendHardReset();
}

bool MidiEngineMessageManager::currentThreadIsManagerThread() const {
    return Platform::currentThreadId() == m_thread.id();
}

void MidiEngineMessageManager::handleMessage(const MSG& message) {
    // Waits for a time slice, which needs the lock.
    if (message.message == SET_LAYER_LIST.NUMBER || message.message == RESET_ONLY.NUMBER)
        m_midiEngine.sendReset();

    using Self = MidiEngineMessageManager;
    // clang-format off
    static constexpr MessageTable ROWS(
        FAMILY,
        on(PLAY_MIDI_VIA_PARAM, &Self::handlePlayMidiViaParam),
        on(PLAY_MIDI_VIA_ALLOC, &Self::handlePlayMidiViaAlloc),
        on(SET_MIDI_INPUT_PORTS, &Self::handleSetMidiInputPorts),
        on(SET_MIDI_OUTPUT_PORTS, &Self::handleSetMidiOutputPorts),
        on(ENABLE_MIDI_INPUT, &Self::handleEnableMidiInput),
        on(ENABLE_MIDI_OUTPUT, &Self::handleEnableMidiOutput),
        on(SET_DEFAULT_MIDI_OUTPUT, &Self::handleSetDefaultMidiOutput),
        on(SET_LAYER_LIST, &Self::handleSetLayerList),
        on(SET_ZONE_MAP, &Self::handleSetZoneMap),
        on(SET_ZONE, &Self::handleSetZone),
        on(SET_TEMPO, &Self::handleSetTempo),
        on(SET_TEMPO_SOURCE, &Self::handleSetTempoSource),
        on(SET_MIDI_THRU, &Self::handleSetMidiThru),
        on(RESET_ONLY, IGNORED));
    // clang-format on
    const CriticalSectionLock lock(m_midiEngine.getCriticalSection());
    ROWS.handle(*this, message);
}

void MidiEngineMessageManager::handlePlayMidiViaParam(const MirelMidiMessage& message) {
    m_midiEngine.postPlayMidi(message);
}

void MidiEngineMessageManager::handlePlayMidiViaAlloc(const MirelMidiMessage& message) {
    m_midiEngine.postPlayMidi(message);
}

void MidiEngineMessageManager::handleSetMidiInputPorts(std::vector<MidiInputPort> ports) {
    m_midiEngine.setMidiInputPorts(std::move(ports));
}

void MidiEngineMessageManager::handleSetMidiOutputPorts(std::vector<MidiOutputPort> ports) {
    m_midiEngine.setMidiOutputPorts(std::move(ports));
}

void MidiEngineMessageManager::handleEnableMidiInput(int port, bool enable) {
    m_midiEngine.enableMidiInput(port, enable);
}

void MidiEngineMessageManager::handleEnableMidiOutput(int port, bool enable) {
    m_midiEngine.enableMidiOutput(port, enable);
}

void MidiEngineMessageManager::handleSetDefaultMidiOutput(int output) {
    m_midiEngine.setDefaultMidiOutput(output);
}

void MidiEngineMessageManager::handleSetLayerList(const Layers::LayerList& layers) {
    m_midiEngine.setLayerList(layers);
}

void MidiEngineMessageManager::handleSetZoneMap(const Zones::ZoneMap& zones) {
    m_midiEngine.setZoneMap(zones);
}

void MidiEngineMessageManager::handleSetZone(const Zones::Zone& zone) {
    m_midiEngine.setZone(zone);
}

void MidiEngineMessageManager::handleSetTempo(int bpm) {
    m_midiEngine.setTempo(bpm);
}

void MidiEngineMessageManager::handleSetTempoSource(char input) {
    m_midiEngine.setTempoSource(input);
}

void MidiEngineMessageManager::handleSetMidiThru(bool midiThru) {
    m_midiEngine.setMidiThru(midiThru);
}

}
