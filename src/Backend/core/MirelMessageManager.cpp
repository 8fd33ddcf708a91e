#include "Backend/core/MirelMessageManager.h"

#include "Backend/core/MirelIF.h"
#include "Backend/core/MirelMessages.h"
#include "Backend/core/messages/MessageForm.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/core/settings/ScreenState.h"
#include "Backend/core/version2/Version2ImportRequest.h"
#include "Backend/core/xml/Text.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/MirelMidiMessage.h"

namespace Backend {

using namespace MirelMessages;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using InputPorts = std::vector<MidiInputPort>;
using OutputPorts = std::vector<MidiOutputPort>;

namespace {

bool fitsParamForm(const MirelMidiMessage& message) {
    const Cell& cell = message.getFromControl();
    return chooseMessageForm(cell.getRow(), cell.getColumn(), message.getPpq()) == MessageForm::PARAM;
}

WPARAM firstWord(const MirelMidiMessage& message) {
    return static_cast<WPARAM>(message.getWparam());
}

LPARAM secondWord(const MirelMidiMessage& message) {
    return static_cast<LPARAM>(message.getLparam());
}

MirelMidiMessage unpack(const MSG& message) {
    return MirelMidiMessage(std::uint64_t{message.wParam}, std::int64_t{message.lParam});
}

WPARAM word(int number) {
    return static_cast<WPARAM>(number);
}

LPARAM windowWord(HWND window) {
    return reinterpret_cast<LPARAM>(window);
}

int number(const MSG& message) {
    return static_cast<int>(message.wParam);
}

bool flag(const MSG& message) {
    return message.wParam != 0;
}

bool secondFlag(const MSG& message) {
    return message.lParam != 0;
}

HWND window(const MSG& message) {
    return reinterpret_cast<HWND>(message.lParam);
}

OnOffToggle toggle(const MSG& message) {
    return OnOffToggle(static_cast<OnOffToggle::State>(message.wParam));
}

std::string text(WPARAM word) {
    return *takePayload<std::string>(word);
}

std::string text(LPARAM word) {
    return *takePayload<std::string>(word);
}

}

MirelMessageManager::MirelMessageManager(MessageManagerMaster& master, MirelIF& mirel)
    : MessageManager(master), m_mirel(mirel) {}

void MirelMessageManager::post(UINT message, WPARAM wParam, LPARAM lParam) {
    m_master.postMessage(message, wParam, lParam);
}

void MirelMessageManager::send(UINT message, WPARAM wParam) {
    post(message, wParam);
    m_master.getWaitEvent().wait();
}

void MirelMessageManager::sendInitialize() {
    send(INITIALIZE);
}

void MirelMessageManager::sendEnd() {
    send(END);
}

void MirelMessageManager::sendSetMidiInputPorts(const InputPorts& ports) {
    send(SEND_SET_MIDI_INPUT_PORTS, releaseCopy<WPARAM>(ports));
}

void MirelMessageManager::sendSetMidiOutputPorts(const OutputPorts& ports) {
    send(SEND_SET_MIDI_OUTPUT_PORTS, releaseCopy<WPARAM>(ports));
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
    post(SET_MIDI_INPUT_PORTS, releaseCopy<WPARAM>(ports));
}

void MirelMessageManager::postSetMidiOutputPorts(const OutputPorts& ports) {
    post(SET_MIDI_OUTPUT_PORTS, releaseCopy<WPARAM>(ports));
}

void MirelMessageManager::postEnableMidiInput(int index, bool enabled) {
    post(ENABLE_MIDI_INPUT, word(index), enabled);
}

void MirelMessageManager::postEnableMidiOutput(int index, bool enabled) {
    post(ENABLE_MIDI_OUTPUT, word(index), enabled);
}

void MirelMessageManager::postLoadProgram(const std::string& path) {
    post(LOAD_PROGRAM, releaseCopy<WPARAM>(path));
}

void MirelMessageManager::postLoadBank(const std::string& path) {
    post(LOAD_BANK, releaseCopy<WPARAM>(path));
}

void MirelMessageManager::postSaveToCurrentBank(int index, HWND notify) {
    post(SAVE_TO_CURRENT_BANK, word(index), windowWord(notify));
}

void MirelMessageManager::postSaveToBank(const std::string& path, HWND notify) {
    post(SAVE_TO_BANK, releaseCopy<WPARAM>(path), windowWord(notify));
}

void MirelMessageManager::postSaveToProgram(const std::string& path, HWND notify) {
    post(SAVE_TO_PROGRAM, releaseCopy<WPARAM>(path), windowWord(notify));
}

void MirelMessageManager::postChangeBankSize(int size, HWND notify) {
    post(CHANGE_BANK_SIZE, word(size), windowWord(notify));
}

void MirelMessageManager::postChangeProgramName(const std::string& name) {
    post(CHANGE_PROGRAM_NAME, 0, releaseCopy<LPARAM>(name));
}

void MirelMessageManager::postChangeProgram(const SelectType& type) {
    post(CHANGE_PROGRAM, releaseCopy<WPARAM>(type));
}

void MirelMessageManager::postAddSequencePreset(const std::string& name, const std::string& sequence) {
    post(ADD_SEQUENCE_PRESET, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(sequence));
}

void MirelMessageManager::postImport(UINT message, const std::string& from, const std::string& to, HWND notify) {
    post(message, 0, releaseCopy<LPARAM>(Version2ImportRequest{from, to, notify}));
}

void MirelMessageManager::postImportVersion2Bank(const std::string& from, const std::string& to, HWND notify) {
    postImport(IMPORT_VERSION_2_BANK, from, to, notify);
}

void MirelMessageManager::postImportVersion2Program(const std::string& from, const std::string& to, HWND notify) {
    postImport(IMPORT_VERSION_2_PROGRAM, from, to, notify);
}

void MirelMessageManager::postImportVersion2Preset(const std::string& from, const std::string& to, HWND notify) {
    postImport(IMPORT_VERSION_2_PRESET, from, to, notify);
}

void MirelMessageManager::postKeyDown(const Key& key, bool isRepeat) {
    m_mirel.postKeyDown(key, isRepeat);
}

void MirelMessageManager::postKeyUp(const Key& key) {
    m_mirel.postKeyUp(key);
}

void MirelMessageManager::postPlayMidi(const MirelMidiMessage& message) {
    if (fitsParamForm(message))
        post(PLAY_MIDI_VIA_PARAM, firstWord(message), secondWord(message));
    else
        post(PLAY_MIDI_VIA_ALLOC, releaseCopy<WPARAM>(message));
}

void MirelMessageManager::postProcessMidiInputEvent(const MirelMidiMessage& message) {
    if (fitsParamForm(message))
        post(PROCESS_MIDI_INPUT_EVENT_VIA_PARAM, firstWord(message), secondWord(message));
    else
        post(PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC, releaseCopy<WPARAM>(message));
}

void MirelMessageManager::postResetMirel() {
    post(MirelMessages::RESET_MIREL);
}

void MirelMessageManager::postChangeTempo(const RelativeFixedValue& value, bool notifyGui) {
    post(CHANGE_TEMPO, releaseCopy<WPARAM>(value), notifyGui);
}

void MirelMessageManager::postSetTempoSource(char source, bool notifyGui) {
    post(SET_TEMPO_SOURCE, word(source), notifyGui);
}

void MirelMessageManager::postChangeDefaultMidiOutput(const SelectType& type) {
    post(CHANGE_DEFAULT_MIDI_OUTPUT, releaseCopy<WPARAM>(type));
}

void MirelMessageManager::postChangeMidiThru(const OnOffToggle& state, bool notifyGui) {
    post(CHANGE_MIDI_THRU, static_cast<WPARAM>(state.getState()), notifyGui);
}

void MirelMessageManager::postChangeGlobalKeyboard(const OnOffToggle& state, bool notifyGui) {
    post(CHANGE_GLOBAL_KEYBOARD, static_cast<WPARAM>(state.getState()), notifyGui);
}

void MirelMessageManager::postSetLiteVelocity(int velocity) {
    post(SET_LITE_VELOCITY, word(velocity));
}

void MirelMessageManager::postSetLiteChannel(int channel) {
    post(SET_LITE_CHANNEL, word(channel));
}

void MirelMessageManager::postSetLiteStackNotes(bool stackNotes) {
    post(SET_LITE_STACK_NOTES, stackNotes);
}

void MirelMessageManager::postSetClickZoneChannelTranspose(bool value) {
    post(SET_CLICK_ZONE_CHANNEL_TRANSPOSE, value);
}

void MirelMessageManager::postSetLastWindowPosition(const Rect& position) {
    post(SET_LAST_WINDOW_POSITION, 0, releaseCopy<LPARAM>(position));
}

void MirelMessageManager::postRemoveGuiWindowHandle() {
    post(REMOVE_GUI_WINDOW_HANDLE);
}

void MirelMessageManager::postSetDockToBottomEdge(bool dock) {
    post(SET_DOCK_TO_BOTTOM_EDGE, dock);
}

void MirelMessageManager::postSetDefaultBank(const std::string& path) {
    post(SET_DEFAULT_BANK, 0, releaseCopy<LPARAM>(path));
}

void MirelMessageManager::postSetMouseSensitivity(int sensitivity) {
    post(SET_MOUSE_SENSITIVITY, word(sensitivity));
}

void MirelMessageManager::postSetDisplayHeight(int height) {
    post(SET_DISPLAY_HEIGHT, word(height));
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
    post(SET_SCREEN_STATE, releaseCopy<WPARAM>(state));
}

void MirelMessageManager::postToggleSystemPanel() {
    post(MirelMessages::TOGGLE_SYSTEM_PANEL);
}

bool MirelMessageManager::wantMessage(unsigned int message) {
    return MIREL_RANGE.contains(message);
}

void MirelMessageManager::handleMessage(const MSG& message) {
    if (handleSent(message))
        m_master.getWaitEvent().set();
    else
        static_cast<void>(handleEvents(message) || handleFiles(message) || handleMusicalSettings(message) ||
                          handleWindowSettings(message));
}

bool MirelMessageManager::handleSent(const MSG& message) {
    switch (message.message) {
        case INITIALIZE: m_mirel.initialize(); return true;
        case END: m_mirel.end(); return true;
        case SEND_SET_MIDI_INPUT_PORTS:
            m_mirel.setMidiInputPorts(*takePayload<InputPorts>(message.wParam));
            return true;
        case SEND_SET_MIDI_OUTPUT_PORTS:
            m_mirel.setMidiOutputPorts(*takePayload<OutputPorts>(message.wParam));
            return true;
        case END_INITIALIZE: m_mirel.endInitialize(); return true;
        case SEND_CREATE_MIREL_GUI: m_createdGui = m_mirel.createMirelGui(flag(message)); return true;
        default: return false;
    }
}

bool MirelMessageManager::handleEvents(const MSG& message) {
    switch (message.message) {
        case PLAY_MIDI_VIA_ALLOC: m_mirel.playMidi(*takePayload<MirelMidiMessage>(message.wParam)); return true;
        case PLAY_MIDI_VIA_PARAM: m_mirel.playMidi(unpack(message)); return true;
        case PROCESS_MIDI_INPUT_EVENT_VIA_PARAM: m_mirel.processMidiInputEvent(unpack(message)); return true;
        case PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC:
            m_mirel.processMidiInputEvent(*takePayload<MirelMidiMessage>(message.wParam));
            return true;
        case MirelMessages::RESET_MIREL: m_mirel.resetMirel(); return true;
        default: return false;
    }
}

bool MirelMessageManager::handleFiles(const MSG& message) {
    const auto takeImport = [&message] { return *takePayload<Version2ImportRequest>(message.lParam); };
    switch (message.message) {
        case LOAD_PROGRAM: m_mirel.loadProgram(text(message.wParam)); return true;
        case LOAD_BANK: m_mirel.loadBank(text(message.wParam)); return true;
        case IMPORT_VERSION_2_BANK: {
            const auto request = takeImport();
            m_mirel.importVersion2Bank(request.from, request.to, request.notify);
            return true;
        }
        case IMPORT_VERSION_2_PROGRAM: {
            const auto request = takeImport();
            m_mirel.importVersion2Program(request.from, request.to, request.notify);
            return true;
        }
        case IMPORT_VERSION_2_PRESET: {
            const auto request = takeImport();
            m_mirel.importVersion2Preset(request.from, request.to, request.notify);
            return true;
        }
        case SAVE_TO_CURRENT_BANK: m_mirel.saveToCurrentBank(number(message), window(message)); return true;
        case SAVE_TO_BANK: m_mirel.saveToBank(text(message.wParam), window(message)); return true;
        case SAVE_TO_PROGRAM: m_mirel.saveToProgram(text(message.wParam), window(message)); return true;
        case CHANGE_BANK_SIZE: m_mirel.changeBankSize(number(message), window(message)); return true;
        case CHANGE_PROGRAM_NAME: m_mirel.changeProgramName(text(message.lParam)); return true;
        case CHANGE_PROGRAM: m_mirel.changeProgram(*takePayload<SelectType>(message.wParam)); return true;
        case ADD_SEQUENCE_PRESET: {
            const std::string name = text(message.wParam);
            m_mirel.addSequencePreset(name, text(message.lParam));
            return true;
        }
        case SET_DEFAULT_BANK: m_mirel.setDefaultBank(text(message.lParam)); return true;
        default: return false;
    }
}

bool MirelMessageManager::handleMusicalSettings(const MSG& message) {
    switch (message.message) {
        case SET_MIDI_INPUT_PORTS: m_mirel.setMidiInputPorts(*takePayload<InputPorts>(message.wParam)); return true;
        case SET_MIDI_OUTPUT_PORTS: m_mirel.setMidiOutputPorts(*takePayload<OutputPorts>(message.wParam)); return true;
        case ENABLE_MIDI_INPUT: m_mirel.enableMidiInput(number(message), secondFlag(message)); return true;
        case ENABLE_MIDI_OUTPUT: m_mirel.enableMidiOutput(number(message), secondFlag(message)); return true;
        case CHANGE_DEFAULT_MIDI_OUTPUT:
            m_mirel.changeDefaultMidiOutput(*takePayload<SelectType>(message.wParam));
            return true;
        case CHANGE_TEMPO:
            m_mirel.changeTempo(*takePayload<RelativeFixedValue>(message.wParam), secondFlag(message));
            return true;
        case CHANGE_MIDI_THRU: m_mirel.changeMidiThru(toggle(message), secondFlag(message)); return true;
        case CHANGE_GLOBAL_KEYBOARD: m_mirel.changeGlobalKeyboard(toggle(message), secondFlag(message)); return true;
        case SET_TEMPO_SOURCE: m_mirel.setTempoSource(Text::lowByte(number(message)), secondFlag(message)); return true;
        case SET_LITE_VELOCITY: m_mirel.setLiteVelocity(number(message)); return true;
        case SET_LITE_CHANNEL: m_mirel.setLiteChannel(number(message)); return true;
        case SET_LITE_STACK_NOTES: m_mirel.setLiteStackNotes(flag(message)); return true;
        case SET_CLICK_ZONE_CHANNEL_TRANSPOSE: m_mirel.setClickZoneChannelTranspose(flag(message)); return true;
        default: return false;
    }
}

bool MirelMessageManager::handleWindowSettings(const MSG& message) {
    switch (message.message) {
        case SET_LAST_WINDOW_POSITION: m_mirel.setLastWindowPosition(*takePayload<Rect>(message.lParam)); return true;
        case REMOVE_GUI_WINDOW_HANDLE: m_mirel.removeGuiWindowHandle(); return true;
        case SET_DOCK_TO_BOTTOM_EDGE: m_mirel.setDockToBottomEdge(flag(message)); return true;
        case SET_DISPLAY_HEIGHT: m_mirel.setDisplayHeight(number(message)); return true;
        case SET_DISPLAY_NUMBERS: m_mirel.setDisplayNumbers(flag(message)); return true;
        case SET_LARGE_DISPLAY_FONT: m_mirel.setLargeDisplayFont(flag(message)); return true;
        case SET_DISPLAY_MIDI_INPUT_EVENTS: m_mirel.setDisplayMidiInputEvents(flag(message)); return true;
        case SET_DISPLAY_MIDI_OUTPUT_EVENTS: m_mirel.setDisplayMidiOutputEvents(flag(message)); return true;
        case SET_ALWAYS_ON_TOP: m_mirel.setAlwaysOnTop(flag(message)); return true;
        case SET_SCREEN_STATE: m_mirel.setScreenState(*takePayload<ScreenState>(message.wParam)); return true;
        case SET_USE_SKIN_BORDER: m_mirel.setUseSkinBorder(flag(message)); return true;
        case MirelMessages::TOGGLE_SYSTEM_PANEL: m_mirel.toggleSystemPanel(); return true;
        case SET_MOUSE_SENSITIVITY: m_mirel.setMouseSensitivity(number(message)); return true;
        default: return false;
    }
}

void MirelMessageManager::disposeMessage(const MSG& message) {
    switch (message.message) {
        case SEND_SET_MIDI_INPUT_PORTS:
        case SET_MIDI_INPUT_PORTS: takePayload<InputPorts>(message.wParam); break;
        case SEND_SET_MIDI_OUTPUT_PORTS:
        case SET_MIDI_OUTPUT_PORTS: takePayload<OutputPorts>(message.wParam); break;
        case SET_LAST_WINDOW_POSITION: takePayload<Rect>(message.lParam); break;
        case SET_DEFAULT_BANK:
        case CHANGE_PROGRAM_NAME: takePayload<std::string>(message.lParam); break;
        case LOAD_PROGRAM:
        case LOAD_BANK:
        case SAVE_TO_BANK:
        case SAVE_TO_PROGRAM: takePayload<std::string>(message.wParam); break;
        case IMPORT_VERSION_2_BANK:
        case IMPORT_VERSION_2_PROGRAM:
        case IMPORT_VERSION_2_PRESET: takePayload<Version2ImportRequest>(message.lParam); break;
        case PLAY_MIDI_VIA_ALLOC:
        case PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC: takePayload<MirelMidiMessage>(message.wParam); break;
        case ADD_SEQUENCE_PRESET:
            takePayload<std::string>(message.wParam);
            takePayload<std::string>(message.lParam);
            break;
        case CHANGE_PROGRAM:
        case CHANGE_DEFAULT_MIDI_OUTPUT: takePayload<SelectType>(message.wParam); break;
        case SET_SCREEN_STATE: takePayload<ScreenState>(message.wParam); break;
        case CHANGE_TEMPO: takePayload<RelativeFixedValue>(message.wParam); break;
        default: break;
    }
}

}
