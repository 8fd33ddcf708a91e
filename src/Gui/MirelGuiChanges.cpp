// Changes from the desk: each goes into the window's own copy and then to the screens that show it.
#include "Gui/MirelGui.h"

#include "Backend/core/MirelIF.h"
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/log/DisplayMessageManager.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Backend/midi/sequences/SequencePresetManager.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Platform/Files.h"
#include "Platform/Sleep.h"

#include <algorithm>

namespace Gui {

using Backend::MidiEngine::MidiInputPort;
using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MidiOutputPort;
using Backend::MidiEngine::MirelMidiMessage;
using Backend::SequenceManagement::SequencePresetManager;

namespace {

// The presets as their files are now.
SequencePresetManager readSequencePresets() {
    return SequencePresetManager(
        Platform::Files::join(Backend::MirelUtils::getMirelAppDataDir(), SequencePresetManager::FOLDER));
}

}

void MirelGui::postToHost(UINT message, WPARAM wParam, LPARAM lParam) const {
    PostMessageA(m_parentWindow, message, wParam, lParam);
}

void MirelGui::handleDockToBottomEdgeChanged(bool dock) {
    m_settings.setDockToBottomEdge(dock);
    postToHost(UM_DOCK_CHANGED, dock);
}

void MirelGui::setDockToBottomEdge(bool dock) {
    m_settings.setDockToBottomEdge(dock);
    getMirelMessageManager().postSetDockToBottomEdge(dock);
}

void MirelGui::handleAlwaysOnTopChanged(bool alwaysOnTop) {
    m_settings.setAlwaysOnTop(alwaysOnTop);
    postToHost(UM_ALWAYS_ON_TOP_CHANGED, alwaysOnTop);
}

void MirelGui::handleUseSkinBorderChanged(bool useSkinBorder) {
    m_settings.setUseSkinBorder(useSkinBorder);
    postToHost(UM_SKIN_BORDER_CHANGED, useSkinBorder);
}

void MirelGui::handleDefaultBankChanged(const std::string& path) {
    m_settings.setDefaultBank(path);
}

void MirelGui::handleBankChanged(const Backend::Bank& bank) {
    m_currentBank = bank;
    m_currentBankName = bank.getName();
    postToHost(UM_BANK_CHANGED);
    m_systemPanel.refreshPrograms();
}

void MirelGui::handleProgramChanged(const Backend::Program& program) {
    m_currentProgram = program;
    m_systemPanel.selectCurrentProgram();
    m_outputPanel.getLayerPanel().getMainPanel().refreshTempo();
    m_computerInputPanel.getSettingsPanel().refresh();
}

void MirelGui::handleProgramNameChanged(const Backend::Program& program) {
    m_currentProgram = program;
    auto names = m_currentBank.getProgramNames();
    const auto index = static_cast<std::size_t>(program.getIndex());
    if (program.getIndex() >= 0 && index < names.size()) {
        names[index] = program.getName();
        m_currentBank = Backend::Bank(m_currentBank.getPath(), std::move(names));
    }
    m_systemPanel.refreshPrograms();
}

void MirelGui::handleMidiInputPortsChanged(const std::vector<MidiInputPort>& ports) {
    m_midiInputPorts = ports;
    m_outputPanel.getLayerPanel().getMainPanel().refreshTempoSources();
}

void MirelGui::handleMidiOutputPortsChanged(const std::vector<MidiOutputPort>& ports) {
    m_midiOutputPorts = ports;
    m_systemPanel.refreshOutputs();
    m_controlPanel.getSettingsPanel().refreshOutputs();
    m_computerInputPanel.getSettingsPanel().getDownFunctionPanel().refreshOutputs();
    m_computerInputPanel.getSettingsPanel().getUpFunctionPanel().refreshOutputs();
    m_outputPanel.getLayerPanel().getSettingsPanel().refreshOutputs();
}

void MirelGui::handleDefaultMidiOutputChanged(int output) {
    m_settings.setDefaultMidiOutput(output);
    m_systemPanel.selectDefaultOutput();
}

void MirelGui::handleRetroRecordBufferSizeChanged(int size) {
    m_settings.setRetroRecordBufferSize(size);
}

void MirelGui::handleRetroRecordEnabledChanged(bool enabled) {
    m_settings.setRetroRecordEnabled(enabled);
}

void MirelGui::handleMouseSensitivityChanged(int sensitivity) {
    m_settings.setMouseSensitivity(sensitivity);
}

void MirelGui::handleClickZoneChannelTransposeChanged(bool value) {
    m_settings.setClickZoneChannelTranspose(value);
}

void MirelGui::handleDisplayNumbersChanged(bool numbers) {
    m_settings.setDisplayNumbers(numbers);
}

void MirelGui::handleDisplayMidiInputEventsChanged(bool display) {
    m_settings.setDisplayMidiInputEvents(display);
}

void MirelGui::handleDisplayMidiOutputEventsChanged(bool display) {
    m_settings.setDisplayMidiOutputEvents(display);
}

void MirelGui::handleLargeDisplayFontChanged(bool large) {
    m_settings.setLargeDisplayFont(large);
    m_displayPanel.setLargeFont(large);
}

void MirelGui::handleMidiThruChanged(bool thru) {
    m_settings.setMidiThru(thru);
    m_systemPanel.refreshSettings();
    m_thruButton.setState(thru);
    postToHost(UM_MIDI_THRU_CHANGED, thru);
}

void MirelGui::handleGlobalKeyboardChanged(bool globalKeyboard) {
    m_settings.setGlobalKeyboard(globalKeyboard);
    enableHook(globalKeyboard);
    showGlobalKeyboard();
    postToHost(UM_GLOBAL_KEYBOARD_CHANGED, globalKeyboard);
}

void MirelGui::enableHook(bool enable) {
    m_keyboardHookProxy.setWindowHandle(m_windowHandle);
    m_keyboardHookProxy.setEnabled(enable);
}

void MirelGui::showGlobalKeyboard() {
    m_systemPanel.refreshSettings();
    m_globalKeyButton.setState(m_settings.getGlobalKeyboard());
    // The releases of keys that came through the hook go elsewhere from now on.
    if (!m_settings.getGlobalKeyboard() && !hasKeyboard())
        releaseHeldKeys();
}

void MirelGui::displayMidiOutputEvent(const MirelMidiMessage& message) {
    m_mirelIF.getDisplayMessageManager().postAddOutputEvent(message);
    const MidiMessage& event = message.getMidiMessage();
    const Backend::Note note(static_cast<std::uint8_t>(event.getD1()));
    if (event.getStatus() == MidiMessage::NoteOn)
        getMainMusicKeyboardCtl().noteOn(note);
    else if (event.getStatus() == MidiMessage::NoteOff)
        getMainMusicKeyboardCtl().noteOff(note);
    m_outputPanel.getCcPanel().displayEvent(message);
}

void MirelGui::handleResetMirel() {
    clearMusicKeyboardHilight();
    clearComputerKeyboardHilight();
}

void MirelGui::clearMusicKeyboardHilight() {
    getMainMusicKeyboardCtl().clearHilight();
}

void MirelGui::clearComputerKeyboardHilight() {
    auto& keyboard = m_computerInputPanel.getMainPanel().getComputerKeyboardCtl();
    keyboard.clearHilight();
    keyboard.redraw();
}

void MirelGui::addSequencePreset(const std::string& name, const std::string& sequence) {
    const auto place = std::lower_bound(m_sequencePresetList.begin(), m_sequencePresetList.end(), name);
    if (place == m_sequencePresetList.end() || *place != name)
        m_sequencePresetList.insert(place, name);
    getMirelMessageManager().postAddSequencePreset(name, sequence);
}

// The desk may wait for its log, and the log for this thread's windows.
void MirelGui::waitForDesk() const {
    while (!m_mirelIF.getMessageManagerMaster().isIdle())
        Platform::sleepAnsweringWindows(1);
}

// A preset may be about to be written to its file.
void MirelGui::editSequencePreset(const std::string& name, const std::string& newName) {
    waitForDesk();
    SequencePresetManager presets = readSequencePresets();
    presets.editSequencePreset(name, newName);
    m_sequencePresetList = presets.getSequencePresetList();
}

void MirelGui::deleteSequencePreset(const std::string& name) {
    waitForDesk();
    SequencePresetManager presets = readSequencePresets();
    presets.deleteSequencePreset(name);
    m_sequencePresetList = presets.getSequencePresetList();
}

}
