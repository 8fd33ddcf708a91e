#include "Backend/midi/engine/MidiEngineMessageManager.h"

#include "Backend/core/messages/MessageForm.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/xml/Text.h"
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
    m_thread.stop(STOP);
    for (MSG leftOver; m_thread.tryGet(leftOver);)
        discard(leftOver);
}

void MidiEngineMessageManager::run() {
    MSG message;
    while (m_thread.get(message) && message.message != STOP)
        handleMessage(message);
}

void MidiEngineMessageManager::post(UINT number, WPARAM wParam, LPARAM lParam) {
    m_thread.postUntilAccepted(number, wParam, lParam);
}

void MidiEngineMessageManager::postPlayMidi(const MirelMidiMessage& message) {
    const Cell& control = message.getFromControl();
    if (chooseMessageForm(control.getRow(), control.getColumn(), message.getPpq()) == MessageForm::PARAM)
        postPlayMidiViaParam(message);
    else
        postPlayMidiViaAlloc(message);
}

void MidiEngineMessageManager::postPlayMidiViaParam(const MirelMidiMessage& message) {
    post(PLAY_MIDI_VIA_PARAM, static_cast<WPARAM>(message.getWparam()), static_cast<LPARAM>(message.getLparam()));
}

void MidiEngineMessageManager::postPlayMidiViaAlloc(const MirelMidiMessage& message) {
    post(PLAY_MIDI_VIA_ALLOC, releasePayload<WPARAM>(std::make_unique<MirelMidiMessage>(message)));
}

void MidiEngineMessageManager::postSetMidiInputPorts(const std::vector<MidiInputPort>& ports) {
    post(SET_MIDI_INPUT_PORTS, releasePayload<WPARAM>(std::make_unique<std::vector<MidiInputPort>>(ports)));
}

void MidiEngineMessageManager::postSetMidiOutputPorts(const std::vector<MidiOutputPort>& ports) {
    post(SET_MIDI_OUTPUT_PORTS, releasePayload<WPARAM>(std::make_unique<std::vector<MidiOutputPort>>(ports)));
}

void MidiEngineMessageManager::postEnableMidiInput(int port, bool enable) {
    post(ENABLE_MIDI_INPUT, static_cast<WPARAM>(port), enable);
}

void MidiEngineMessageManager::postEnableMidiOutput(int port, bool enable) {
    post(ENABLE_MIDI_OUTPUT, static_cast<WPARAM>(port), enable);
}

void MidiEngineMessageManager::postSetDefaultMidiOutput(int output) {
    post(SET_DEFAULT_MIDI_OUTPUT, static_cast<WPARAM>(output));
}

void MidiEngineMessageManager::postSetLayerList(const Layers::LayerList& layers) {
    post(SET_LAYER_LIST, releasePayload<WPARAM>(std::make_unique<Layers::LayerList>(layers)));
}

void MidiEngineMessageManager::postSetZoneMap(const Zones::ZoneMap& zones) {
    post(SET_ZONE_MAP, releasePayload<WPARAM>(std::make_unique<Zones::ZoneMap>(zones)));
}

void MidiEngineMessageManager::postSetZone(const Zones::Zone& zone) {
    post(SET_ZONE, releasePayload<WPARAM>(std::make_unique<Zones::Zone>(zone)));
}

void MidiEngineMessageManager::postSetTempo(int bpm) {
    post(SET_TEMPO, static_cast<WPARAM>(bpm));
}

void MidiEngineMessageManager::postSetTempoSource(char input) {
    post(SET_TEMPO_SOURCE, static_cast<WPARAM>(input));
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
    if (message.message == SET_LAYER_LIST || message.message == RESET_ONLY)
        m_midiEngine.sendReset();

    CriticalSectionLock lock(m_midiEngine.getCriticalSection());
    if (message.message >= FIRST_REQUEST && message.message <= LAST_REQUEST)
        handleRequest(message);
}

void MidiEngineMessageManager::handleRequest(const MSG& message) {
    switch (message.message) {
        case PLAY_MIDI_VIA_PARAM: return handlePlayMidiViaParam(message);
        case PLAY_MIDI_VIA_ALLOC: return handlePlayMidiViaAlloc(message);
        case SET_MIDI_INPUT_PORTS: return handleSetMidiInputPorts(message);
        case SET_MIDI_OUTPUT_PORTS: return handleSetMidiOutputPorts(message);
        case ENABLE_MIDI_INPUT: return handleEnableMidiInput(message);
        case ENABLE_MIDI_OUTPUT: return handleEnableMidiOutput(message);
        case SET_DEFAULT_MIDI_OUTPUT: return handleSetDefaultMidiOutput(message);
        case SET_LAYER_LIST: return handleSetLayerList(message);
        case RESET_ONLY: return;
        case SET_ZONE_MAP: return handleSetZoneMap(message);
        case SET_ZONE: return handleSetZone(message);
        case SET_TEMPO: return handleSetTempo(message);
        case SET_TEMPO_SOURCE: return handleSetTempoSource(message);
        case SET_MIDI_THRU: return handleSetMidiThru(message);
    }
}

void MidiEngineMessageManager::handlePlayMidiViaParam(const MSG& message) {
    m_midiEngine.postPlayMidi(MirelMidiMessage(std::uint64_t{message.wParam}, std::int64_t{message.lParam}));
}

void MidiEngineMessageManager::handlePlayMidiViaAlloc(const MSG& message) {
    m_midiEngine.postPlayMidi(*takePayload<MirelMidiMessage>(message.wParam));
}

void MidiEngineMessageManager::handleSetMidiInputPorts(const MSG& message) {
    m_midiEngine.setMidiInputPorts(std::move(*takePayload<std::vector<MidiInputPort>>(message.wParam)));
}

void MidiEngineMessageManager::handleSetMidiOutputPorts(const MSG& message) {
    m_midiEngine.setMidiOutputPorts(std::move(*takePayload<std::vector<MidiOutputPort>>(message.wParam)));
}

void MidiEngineMessageManager::handleEnableMidiInput(const MSG& message) {
    m_midiEngine.enableMidiInput(static_cast<int>(message.wParam), message.lParam != 0);
}

void MidiEngineMessageManager::handleEnableMidiOutput(const MSG& message) {
    m_midiEngine.enableMidiOutput(static_cast<int>(message.wParam), message.lParam != 0);
}

void MidiEngineMessageManager::handleSetDefaultMidiOutput(const MSG& message) {
    m_midiEngine.setDefaultMidiOutput(static_cast<int>(message.wParam));
}

void MidiEngineMessageManager::handleSetLayerList(const MSG& message) {
    m_midiEngine.setLayerList(*takePayload<Layers::LayerList>(message.wParam));
}

void MidiEngineMessageManager::handleSetZoneMap(const MSG& message) {
    m_midiEngine.setZoneMap(*takePayload<Zones::ZoneMap>(message.wParam));
}

void MidiEngineMessageManager::handleSetZone(const MSG& message) {
    m_midiEngine.setZone(*takePayload<Zones::Zone>(message.wParam));
}

void MidiEngineMessageManager::handleSetTempo(const MSG& message) {
    m_midiEngine.setTempo(static_cast<int>(message.wParam));
}

void MidiEngineMessageManager::handleSetTempoSource(const MSG& message) {
    m_midiEngine.setTempoSource(Text::lowByte(static_cast<std::int32_t>(message.wParam)));
}

void MidiEngineMessageManager::handleSetMidiThru(const MSG& message) {
    m_midiEngine.setMidiThru(message.wParam != 0);
}

void MidiEngineMessageManager::discard(const MSG& message) {
    switch (message.message) {
        case PLAY_MIDI_VIA_ALLOC: takePayload<MirelMidiMessage>(message.wParam); break;
        case SET_MIDI_INPUT_PORTS: takePayload<std::vector<MidiInputPort>>(message.wParam); break;
        case SET_MIDI_OUTPUT_PORTS: takePayload<std::vector<MidiOutputPort>>(message.wParam); break;
        case SET_LAYER_LIST: takePayload<Layers::LayerList>(message.wParam); break;
        case SET_ZONE_MAP: takePayload<Zones::ZoneMap>(message.wParam); break;
        case SET_ZONE: takePayload<Zones::Zone>(message.wParam); break;
        default: break;
    }
}

}
