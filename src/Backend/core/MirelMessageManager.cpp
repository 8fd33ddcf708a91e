#include "Backend/core/MirelMessageManager.h"

#include "Backend/core/MirelIF.h"
#include "Backend/core/MirelMessages.h"
#include "Backend/core/messages/MessageForm.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/messages/MessageTable.h"
#include "Backend/core/settings/ScreenState.h"
#include "Backend/core/version2/Version2ImportRequest.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/MirelMidiMessage.h"

namespace Backend {

using namespace MirelMessages;

namespace {

bool fitsParamForm(const MirelMidiMessage& message) {
    const Cell& cell = message.getFromControl();
    return chooseMessageForm(cell.getRow(), cell.getColumn(), message.getPpq()) == MessageForm::PARAM;
}

template <void (MirelIF::*IMPORT)(const std::string&, const std::string&, HWND)>
void importVersion2(MirelIF& mirel, const Version2ImportRequest& request) {
    (mirel.*IMPORT)(request.from, request.to, request.notify);
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    // The start and the end.
    on(INITIALIZE, &MirelIF::initialize),
    on(END, &MirelIF::end),
    on(SEND_SET_MIDI_INPUT_PORTS, &MirelIF::setMidiInputPorts),
    on(SEND_SET_MIDI_OUTPUT_PORTS, &MirelIF::setMidiOutputPorts),
    on(END_INITIALIZE, &MirelIF::endInitialize),
    on(SEND_CREATE_MIREL_GUI, &MirelIF::createMirelGui),

    // Ports.
    on(SET_MIDI_INPUT_PORTS, &MirelIF::setMidiInputPorts),
    on(SET_MIDI_OUTPUT_PORTS, &MirelIF::setMidiOutputPorts),
    on(ENABLE_MIDI_INPUT, &MirelIF::enableMidiInput),
    on(ENABLE_MIDI_OUTPUT, &MirelIF::enableMidiOutput),

    // Files.
    on(LOAD_PROGRAM, &MirelIF::loadProgram),
    on(LOAD_BANK, &MirelIF::loadBank),
    on(SAVE_TO_CURRENT_BANK, &MirelIF::saveToCurrentBank),
    on(SAVE_TO_BANK, &MirelIF::saveToBank),
    on(SAVE_TO_PROGRAM, &MirelIF::saveToProgram),
    on(CHANGE_BANK_SIZE, &MirelIF::changeBankSize),
    on(CHANGE_PROGRAM_NAME, &MirelIF::changeProgramName),
    on(CHANGE_PROGRAM, &MirelIF::changeProgram),
    on(ADD_SEQUENCE_PRESET, &MirelIF::addSequencePreset),
    on(IMPORT_VERSION_2_BANK, &importVersion2<&MirelIF::importVersion2Bank>),
    on(IMPORT_VERSION_2_PROGRAM, &importVersion2<&MirelIF::importVersion2Program>),
    on(IMPORT_VERSION_2_PRESET, &importVersion2<&MirelIF::importVersion2Preset>),

    // Events.
    on(PLAY_MIDI_VIA_ALLOC, &MirelIF::playMidi),
    on(PLAY_MIDI_VIA_PARAM, &MirelIF::playMidi),
    on(PROCESS_MIDI_INPUT_EVENT_VIA_PARAM, &MirelIF::processMidiInputEvent),
    on(PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC, &MirelIF::processMidiInputEvent),
    on(RESET_MIREL, &MirelIF::resetMirel),

    // Musical settings.
    on(CHANGE_TEMPO, &MirelIF::changeTempo),
    on(SET_TEMPO_SOURCE, &MirelIF::setTempoSource),
    on(CHANGE_DEFAULT_MIDI_OUTPUT, &MirelIF::changeDefaultMidiOutput),
    on(CHANGE_MIDI_THRU, &MirelIF::changeMidiThru),
    on(CHANGE_GLOBAL_KEYBOARD, &MirelIF::changeGlobalKeyboard),
    on(SET_LITE_VELOCITY, &MirelIF::setLiteVelocity),
    on(SET_LITE_CHANNEL, &MirelIF::setLiteChannel),
    on(SET_LITE_STACK_NOTES, &MirelIF::setLiteStackNotes),
    on(SET_CLICK_ZONE_CHANNEL_TRANSPOSE, &MirelIF::setClickZoneChannelTranspose),

    // The window and the log.
    on(SET_LAST_WINDOW_POSITION, &MirelIF::setLastWindowPosition),
    on(REMOVE_GUI_WINDOW_HANDLE, &MirelIF::removeGuiWindowHandle),
    on(SET_DOCK_TO_BOTTOM_EDGE, &MirelIF::setDockToBottomEdge),
    on(SET_DEFAULT_BANK, &MirelIF::setDefaultBank),
    on(SET_MOUSE_SENSITIVITY, &MirelIF::setMouseSensitivity),
    on(SET_DISPLAY_HEIGHT, &MirelIF::setDisplayHeight),
    on(SET_DISPLAY_NUMBERS, &MirelIF::setDisplayNumbers),
    on(SET_LARGE_DISPLAY_FONT, &MirelIF::setLargeDisplayFont),
    on(SET_DISPLAY_MIDI_INPUT_EVENTS, &MirelIF::setDisplayMidiInputEvents),
    on(SET_DISPLAY_MIDI_OUTPUT_EVENTS, &MirelIF::setDisplayMidiOutputEvents),
    on(SET_ALWAYS_ON_TOP, &MirelIF::setAlwaysOnTop),
    on(SET_USE_SKIN_BORDER, &MirelIF::setUseSkinBorder),
    on(SET_SCREEN_STATE, &MirelIF::setScreenState),
    on(TOGGLE_SYSTEM_PANEL, &MirelIF::toggleSystemPanel));
// clang-format on

}

MirelMessageManager::MirelMessageManager(MessageManagerMaster& master, MirelIF& mirel)
    : MessageManager(master), m_mirel(mirel) {}

void MirelMessageManager::sendInitialize() {
    send(INITIALIZE);
}

void MirelMessageManager::sendEnd() {
    send(END);
}

void MirelMessageManager::sendSetMidiInputPorts(const InputPorts& ports) {
    send(SEND_SET_MIDI_INPUT_PORTS, ports);
}

void MirelMessageManager::sendSetMidiOutputPorts(const OutputPorts& ports) {
    send(SEND_SET_MIDI_OUTPUT_PORTS, ports);
}

void MirelMessageManager::sendEndInitialize() {
    send(END_INITIALIZE);
}

Gui::MirelGuiIF* MirelMessageManager::sendCreateMirelGui(bool isVstPlugin) {
    m_createdGui = nullptr;
    send(SEND_CREATE_MIREL_GUI, isVstPlugin);
    return m_createdGui;
}

void MirelMessageManager::postSetMidiInputPorts(const InputPorts& ports) {
    post(SET_MIDI_INPUT_PORTS, ports);
}

void MirelMessageManager::postSetMidiOutputPorts(const OutputPorts& ports) {
    post(SET_MIDI_OUTPUT_PORTS, ports);
}

void MirelMessageManager::postEnableMidiInput(int index, bool enabled) {
    post(ENABLE_MIDI_INPUT, index, enabled);
}

void MirelMessageManager::postEnableMidiOutput(int index, bool enabled) {
    post(ENABLE_MIDI_OUTPUT, index, enabled);
}

void MirelMessageManager::postLoadProgram(const std::string& path) {
    post(LOAD_PROGRAM, path);
}

void MirelMessageManager::postLoadBank(const std::string& path) {
    post(LOAD_BANK, path);
}

void MirelMessageManager::postSaveToCurrentBank(int index, HWND notify) {
    post(SAVE_TO_CURRENT_BANK, index, notify);
}

void MirelMessageManager::postSaveToBank(const std::string& path, HWND notify) {
    post(SAVE_TO_BANK, path, notify);
}

void MirelMessageManager::postSaveToProgram(const std::string& path, HWND notify) {
    post(SAVE_TO_PROGRAM, path, notify);
}

void MirelMessageManager::postChangeBankSize(int size, HWND notify) {
    post(CHANGE_BANK_SIZE, size, notify);
}

void MirelMessageManager::postChangeProgramName(const std::string& name) {
    post(CHANGE_PROGRAM_NAME, name);
}

void MirelMessageManager::postChangeProgram(const SelectType& type) {
    post(CHANGE_PROGRAM, type);
}

void MirelMessageManager::postAddSequencePreset(const std::string& name, const std::string& sequence) {
    post(ADD_SEQUENCE_PRESET, name, sequence);
}

void MirelMessageManager::postImportVersion2Bank(const std::string& from, const std::string& to, HWND notify) {
    post(IMPORT_VERSION_2_BANK, Version2ImportRequest{from, to, notify});
}

void MirelMessageManager::postImportVersion2Program(const std::string& from, const std::string& to, HWND notify) {
    post(IMPORT_VERSION_2_PROGRAM, Version2ImportRequest{from, to, notify});
}

void MirelMessageManager::postImportVersion2Preset(const std::string& from, const std::string& to, HWND notify) {
    post(IMPORT_VERSION_2_PRESET, Version2ImportRequest{from, to, notify});
}

void MirelMessageManager::postKeyDown(const Key& key, bool isRepeat) {
    m_mirel.postKeyDown(key, isRepeat);
}

void MirelMessageManager::postKeyUp(const Key& key) {
    m_mirel.postKeyUp(key);
}

void MirelMessageManager::postPlayMidi(const MirelMidiMessage& message) {
    if (fitsParamForm(message))
        post(PLAY_MIDI_VIA_PARAM, message);
    else
        post(PLAY_MIDI_VIA_ALLOC, message);
}

void MirelMessageManager::postProcessMidiInputEvent(const MirelMidiMessage& message) {
    if (fitsParamForm(message))
        post(PROCESS_MIDI_INPUT_EVENT_VIA_PARAM, message);
    else
        post(PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC, message);
}

void MirelMessageManager::postResetMirel() {
    post(RESET_MIREL);
}

void MirelMessageManager::postChangeTempo(const RelativeFixedValue& value, bool notifyGui) {
    post(CHANGE_TEMPO, value, notifyGui);
}

void MirelMessageManager::postSetTempoSource(char source, bool notifyGui) {
    post(SET_TEMPO_SOURCE, source, notifyGui);
}

void MirelMessageManager::postChangeDefaultMidiOutput(const SelectType& type) {
    post(CHANGE_DEFAULT_MIDI_OUTPUT, type);
}

void MirelMessageManager::postChangeMidiThru(const OnOffToggle& state, bool notifyGui) {
    post(CHANGE_MIDI_THRU, state, notifyGui);
}

void MirelMessageManager::postChangeGlobalKeyboard(const OnOffToggle& state, bool notifyGui) {
    post(CHANGE_GLOBAL_KEYBOARD, state, notifyGui);
}

void MirelMessageManager::postSetLiteVelocity(int velocity) {
    post(SET_LITE_VELOCITY, velocity);
}

void MirelMessageManager::postSetLiteChannel(int channel) {
    post(SET_LITE_CHANNEL, channel);
}

void MirelMessageManager::postSetLiteStackNotes(bool stackNotes) {
    post(SET_LITE_STACK_NOTES, stackNotes);
}

void MirelMessageManager::postSetClickZoneChannelTranspose(bool value) {
    post(SET_CLICK_ZONE_CHANNEL_TRANSPOSE, value);
}

void MirelMessageManager::postSetLastWindowPosition(const Rect& position) {
    post(SET_LAST_WINDOW_POSITION, position);
}

void MirelMessageManager::postRemoveGuiWindowHandle() {
    post(REMOVE_GUI_WINDOW_HANDLE);
}

void MirelMessageManager::postSetDockToBottomEdge(bool dock) {
    post(SET_DOCK_TO_BOTTOM_EDGE, dock);
}

void MirelMessageManager::postSetDefaultBank(const std::string& path) {
    post(SET_DEFAULT_BANK, path);
}

void MirelMessageManager::postSetMouseSensitivity(int sensitivity) {
    post(SET_MOUSE_SENSITIVITY, sensitivity);
}

void MirelMessageManager::postSetDisplayHeight(int height) {
    post(SET_DISPLAY_HEIGHT, height);
}

void MirelMessageManager::postSetDisplayNumbers(bool numbers) {
    post(SET_DISPLAY_NUMBERS, numbers);
}

void MirelMessageManager::postSetLargeDisplayFont(bool large) {
    post(SET_LARGE_DISPLAY_FONT, large);
}

void MirelMessageManager::postSetDisplayMidiInputEvents(bool display) {
    post(SET_DISPLAY_MIDI_INPUT_EVENTS, display);
}

void MirelMessageManager::postSetDisplayMidiOutputEvents(bool display) {
    post(SET_DISPLAY_MIDI_OUTPUT_EVENTS, display);
}

void MirelMessageManager::postSetAlwaysOnTop(bool alwaysOnTop) {
    post(SET_ALWAYS_ON_TOP, alwaysOnTop);
}

void MirelMessageManager::postSetUseSkinBorder(bool useSkinBorder) {
    post(SET_USE_SKIN_BORDER, useSkinBorder);
}

void MirelMessageManager::postSetScreenState(const ScreenState& state) {
    post(SET_SCREEN_STATE, state);
}

void MirelMessageManager::postToggleSystemPanel() {
    post(TOGGLE_SYSTEM_PANEL);
}

bool MirelMessageManager::wantMessage(unsigned int message) {
    return MIREL_RANGE.contains(message);
}

void MirelMessageManager::handleMessage(const MSG& message) {
    ROWS.handle(m_mirel, message.message, message.wParam, message.lParam, m_createdGui);
    if (FAMILY.isSent(message.message))
        m_master.getWaitEvent().set();
}

void MirelMessageManager::disposeMessage(const MSG& message) {
    FAMILY.dispose(message);
}

}
