// The desk's life, and what it merely passes on. Settings and ports are in MirelSettings.cpp, programs and banks in
// MirelPrograms.cpp.
#include "Backend/core/Mirel.h"

#include "Backend/core/GuiPost.h"
#include "Backend/core/WindowMessages.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/managers/LayerMessages.h"
#include "Gui/MirelGuiFactory.h"
#include "Platform/Files.h"
#include "Platform/SettingsStore.h"

namespace Backend {

using namespace WindowMessages;
using MidiEngine::MirelMidiMessage;

Mirel::Mirel(const std::string& name, MidiEngine::MidiPlayer& player)
    : m_name(name),
      m_messageManager(m_messageManagerMaster, *this),
      m_settingsStore(MirelUtils::createSettingsStore()),
      m_registrySettings(*m_settingsStore),
      m_midiEngine(*this, player),
      m_sequencePresets(
          Platform::Files::join(MirelUtils::getMirelAppDataDir(), SequenceManagement::SequencePresetManager::FOLDER)),
      m_computerInput(*this, m_messageManagerMaster),
      m_controls(*this, m_messageManagerMaster),
      m_layers(*this, m_messageManagerMaster, m_sequencePresets),
      m_zones(*this, m_messageManagerMaster) {
    m_midiEngine.setPassingEvents(m_controls.getMessageManager());
    m_messageManagerMaster.addMessageManager(&m_messageManager);
    m_messageManagerMaster.addMessageManager(&m_computerInput.getMessageManager());
    m_messageManagerMaster.addMessageManager(&m_controls.getMessageManager());
    m_messageManagerMaster.addMessageManager(&m_layers.getMessageManager());
    m_messageManagerMaster.addMessageManager(&m_zones.getMessageManager());
}

Mirel::~Mirel() = default;

void Mirel::initialize() {
    m_registrySettings.loadFromRegistry(getSettingsKey());
    m_display.start(m_registrySettings.getDisplayNumbers(), m_registrySettings.getDisplayMidiInputEvents(),
                    m_registrySettings.getDisplayMidiOutputEvents());
    m_midiEngine.initialize(m_registrySettings.getDefaultMidiOutput(), m_registrySettings.getMidiThru());
    m_computerInput.loadDefaultMap();
    m_controls.loadDefaultControls();
    m_layers.loadDefaultLayers();
}

void Mirel::endInitialize() {
    m_controls.sendAll(true);
}

void Mirel::end() {
    m_midiEngine.end();
    m_display.stop();
    m_registrySettings.saveToRegistry(getSettingsKey());
}

void Mirel::playMidi(const MirelMidiMessage& message) {
    m_midiEngine.getMessageManager().postPlayMidi(message);
}

void Mirel::resetMirel() {
    m_midiEngine.sendHardReset();
    postToGui(*this, RESET_MIREL);
}

void Mirel::postKeyDown(const Key& key, bool isRepeat) {
    m_computerInput.getMessageManager().postKeyDown(key, isRepeat);
}

void Mirel::postKeyUp(const Key& key) {
    m_computerInput.getMessageManager().postKeyUp(key);
}

void Mirel::changeControl(const SelectControlType& type, const RelativeFixedValue& value) {
    m_controls.changeControlValue(type, value);
}

void Mirel::changeZoneTranspose(const SelectType& type, const RelativeFixedValue& value) {
    m_zones.changeZoneTranspose(type, value);
}

void Mirel::changeLayerTranspose(const SelectType& type, const RelativeFixedValue& value) {
    m_layers.changeLayerTranspose(type, value);
}

void Mirel::changeLayerVelocity(const SelectType& type, const RelativeFixedValue& value) {
    m_layers.changeLayerVelocity(type, value);
}

void Mirel::changeLayerMute(const SelectType& type, const OnOffToggle& value) {
    m_layers.changeLayerMute(type, value);
}

void Mirel::changeLayerMono(const SelectType& type, const OnOffToggle& value) {
    m_layers.changeLayerMono(type, value);
}

void Mirel::changeLayerSolo(const SelectType& type, const OnOffToggle& value) {
    m_layers.changeLayerSolo(type, value);
}

void Mirel::changeLayerNoteToggle(const SelectType& type, const NoteToggle& value) {
    m_layers.changeLayerNoteToggle(type, value);
}

void Mirel::editSelectLayer(const SelectType& type) {
    postToGui(*this, Layers::WindowMessages::EDIT_SELECT, type);
}

const SequenceManagement::SequencePresetList& Mirel::getSequencePresetList() {
    return m_sequencePresets.getSequencePresetList();
}

void Mirel::addSequencePreset(const std::string& name, const std::string& sequence) {
    m_sequencePresets.addSequencePreset(name, sequence);
}

Gui::MirelGuiIF* Mirel::createMirelGui(bool isVstPlugin) {
    return Gui::MirelGuiFactory::createMirelGui(*this, m_registrySettings, m_midiInputPorts, m_midiOutputPorts,
                                                getSequencePresetList(), isVstPlugin);
}

void Mirel::moveWindow(const RelativeFixedValue& x, const RelativeFixedValue& y) {
    postToGui(*this, MOVE_WINDOW, x, y);
}

void Mirel::showSystemPanel(bool show) {
    postToGui(*this, SHOW_SYSTEM_PANEL, show);
}

void Mirel::toggleSystemPanel() {
    postToGui(*this, TOGGLE_SYSTEM_PANEL);
}

void Mirel::showHelp(bool show) {
    postToGui(*this, SHOW_HELP, show);
}

void Mirel::toggleHelp() {
    postToGui(*this, TOGGLE_HELP);
}

void Mirel::showDisplay(bool show) {
    postToGui(*this, SHOW_DISPLAY, show);
}

void Mirel::toggleDisplay() {
    postToGui(*this, TOGGLE_DISPLAY);
}

void Mirel::showComputerInput(bool show) {
    postToGui(*this, SHOW_COMPUTER_INPUT, show);
}

void Mirel::toggleComputerInput() {
    postToGui(*this, TOGGLE_COMPUTER_INPUT);
}

void Mirel::showControl(bool show) {
    postToGui(*this, SHOW_CONTROL, show);
}

void Mirel::toggleControl() {
    postToGui(*this, TOGGLE_CONTROL);
}

void Mirel::showOutput(bool show) {
    postToGui(*this, SHOW_OUTPUT, show);
}

void Mirel::toggleOutput() {
    postToGui(*this, TOGGLE_OUTPUT);
}

void Mirel::showCc(bool show) {
    postToGui(*this, SHOW_CC, show);
}

void Mirel::toggleCc() {
    postToGui(*this, TOGGLE_CC);
}

void Mirel::showLayer(bool show) {
    postToGui(*this, SHOW_LAYER, show);
}

void Mirel::toggleLayer() {
    postToGui(*this, TOGGLE_LAYER);
}

void Mirel::showZone(bool show) {
    postToGui(*this, SHOW_ZONE, show);
}

void Mirel::toggleZone() {
    postToGui(*this, TOGGLE_ZONE);
}

void Mirel::showProgramMenu() {
    postToGui(*this, SHOW_PROGRAM_MENU);
}

void Mirel::showDefaultMidiOutputMenu() {
    postToGui(*this, SHOW_DEFAULT_MIDI_OUTPUT_MENU);
}

}
