#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/files/Bank.h"
#include "Backend/core/files/Program.h"
#include "Backend/core/log/DisplayMessageManager.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/settings/RegistrySettings.h"
#include "Backend/core/settings/ScreenState.h"
#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/controls/ControlManager.h"
#include "Backend/midi/engine/MidiEngine.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Backend/midi/managers/ZoneManager.h"
#include "Backend/midi/sequences/SequencePresetManager.h"

#include <atomic>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace Platform {
class SettingsStore;
}

namespace Backend {

class XmlElement;

// The backend as one object. It is large, so it lives on the heap.
class Mirel : public MirelIF {
public:
    // [host] name is the product's, for the settings key. The player must outlive this object.
    Mirel(const std::string& name, MidiEngine::MidiPlayer& player);

    // [host] The backend thread must have been stopped.
    ~Mirel() override;

    Mirel(const Mirel&) = delete;
    Mirel& operator=(const Mirel&) = delete;

    // [any] The engine itself, for hosts that need more detail.
    MidiEngine::MidiEngine& getMidiEngine() { return m_midiEngine; }

    // [backend] The sequence presets.
    SequenceManagement::SequencePresetManager& getSequencePresets() { return m_sequencePresets; }

    void initialize() override;
    void endInitialize() override;
    void end() override;
    void start() override { m_messageManagerMaster.start(); }
    void stop() override { m_messageManagerMaster.stop(); }
    HWND getGuiWindowHandle() override { return m_guiWindow; }
    void setGuiWindowHandle(HWND window) override { m_guiWindow = window; }
    MirelMessageManager& getMessageManager() override { return m_messageManager; }
    MidiEngine::MidiEngineMessageManager& getMidiEngineMessageManager() override {
        return m_midiEngine.getMessageManager();
    }
    Controls::ControlMessageManager& getControlMessageManager() override { return m_controls.getMessageManager(); }
    void setLastWindowPosition(const Rect& position) override;
    void removeGuiWindowHandle() override { m_guiWindow = nullptr; }
    void setDockToBottomEdge(bool dock) override;
    void setDefaultBank(const std::string& path) override;
    void setMouseSensitivity(int sensitivity) override;
    void setMidiInputPorts(const std::vector<MidiEngine::MidiInputPort>& ports) override;
    void setMidiOutputPorts(const std::vector<MidiEngine::MidiOutputPort>& ports) override;
    std::vector<MidiEngine::MidiInputPort> getMidiInputPorts() override { return m_midiInputPorts; }
    std::vector<MidiEngine::MidiOutputPort> getMidiOutputPorts() override { return m_midiOutputPorts; }
    void enableMidiInput(int index, bool enabled) override;
    void enableMidiOutput(int index, bool enabled) override;
    void processMidiInputEvent(const MidiEngine::MirelMidiMessage& message) override;
    void loadProgram(const std::string& path) override;
    void changeProgramFromBank(int index) override;
    void loadProgramFromXml(const std::string& xml, int index) override;
    void loadBank(const std::string& path) override;
    void importVersion2Bank(const std::string& from, const std::string& to, HWND notify) override;
    void importVersion2Program(const std::string& from, const std::string& to, HWND notify) override;
    void importVersion2Preset(const std::string& from, const std::string& to, HWND notify) override;
    void saveToCurrentBank(int index, HWND notify) override;
    void saveToBank(const std::string& path, HWND notify) override;
    void saveToProgram(const std::string& path, HWND notify) override;
    void getProgramXml(std::string& xml) override;
    void setAlwaysOnTop(bool alwaysOnTop) override;
    void setUseSkinBorder(bool useSkinBorder) override;
    void showSystemPanel(bool show) override;
    void toggleSystemPanel() override;
    void setDisplayHeight(int height) override;
    void setDisplayNumbers(bool numbers) override;
    void setLargeDisplayFont(bool large) override;
    void setDisplayMidiInputEvents(bool display) override;
    void setDisplayMidiOutputEvents(bool display) override;
    void showDisplay(bool show) override;
    void toggleDisplay() override;
    void showHelp(bool show) override;
    void toggleHelp() override;
    void showOutput(bool show) override;
    void toggleOutput() override;
    void showCc(bool show) override;
    void toggleCc() override;
    void showLayer(bool show) override;
    void toggleLayer() override;
    void showZone(bool show) override;
    void toggleZone() override;
    void playMidi(const MidiEngine::MirelMidiMessage& message) override;
    void moveWindow(const RelativeFixedValue& x, const RelativeFixedValue& y) override;
    ComputerInput::ComputerInputManager& getComputerInput() override { return m_computerInput; }
    ComputerInput::ComputerInputMessageManager& getComputerInputMessageManager() override {
        return m_computerInput.getMessageManager();
    }
    void showComputerInput(bool show) override;
    void toggleComputerInput() override;
    void postKeyDown(const Key& key, bool isRepeat) override;
    void postKeyUp(const Key& key) override;
    void loadComputerInputPreset(const std::string& name) override { m_computerInput.loadPreset(name); }
    std::vector<Zones::Zone> getZoneRanges() override { return m_computerInput.getZoneRanges(); }
    Controls::ControlManager& getControls() override { return m_controls; }
    void showControl(bool show) override;
    void toggleControl() override;
    Layers::LayerManager& getLayers() override { return m_layers; }
    Layers::LayerMessageManager& getLayerMessageManager() override { return m_layers.getMessageManager(); }
    Zones::ZoneManager& getZones() override { return m_zones; }
    Zones::ZoneMessageManager& getZoneMessageManager() override { return m_zones.getMessageManager(); }
    Display::DisplayMessageManager& getDisplayMessageManager() override { return m_display; }
    const Bank& getCurrentBank() override { return m_currentBank; }
    const Program& getCurrentProgram() override { return m_currentProgram; }
    void playTimeSlice(std::int32_t from, std::int32_t to) override { m_midiEngine.playTimeSlice(from, to); }
    RegistrySettings& getRegistrySettings() override { return m_registrySettings; }
    MessageManagerMaster& getMessageManagerMaster() override { return m_messageManagerMaster; }
    int getTempo() override { return m_currentProgram.getTempo(); }
    int getTempoSource() override { return m_currentProgram.getTempoSource(); }
    void changeTempo(const RelativeFixedValue& value, bool notifyGui) override;
    void setTempoSource(char source, bool notifyGui) override;
    void updateZonesFromKeys() override { m_zones.updateZonesFromKeys(); }
    void resetMirel() override;
    void changeBankSize(int size, HWND notify) override;
    void changeProgramName(const std::string& name) override;
    const SequenceManagement::SequencePresetList& getSequencePresetList() override;
    void addSequencePreset(const std::string& name, const std::string& sequence) override;
    void selectControl(const SelectControlType& type) override { m_controls.selectControl(type); }
    void changeControl(const SelectControlType& type, const RelativeFixedValue& value) override;
    void sendControlData(const SelectControlType& type) override { m_controls.sendControlData(type); }
    void changeProgram(const SelectType& type) override;
    void changeDefaultMidiOutput(const SelectType& type) override;
    void showProgramMenu() override;
    void selectZone(const SelectType& type) override { m_zones.selectZone(type); }
    void changeZoneTranspose(const SelectType& type, const RelativeFixedValue& value) override;
    void showDefaultMidiOutputMenu() override;
    void setScreenState(const ScreenState& state) override { m_screenState = state; }
    const ScreenState& getScreenState() override { return m_screenState; }
    void changeMidiThru(const OnOffToggle& state, bool notifyGui) override;
    void changeGlobalKeyboard(const OnOffToggle& state, bool notifyGui) override;
    void dataSelectLayer(const SelectType& type) override { m_layers.dataSelectLayer(type); }
    void editSelectLayer(const SelectType& type) override;
    void changeLayerTranspose(const SelectType& type, const RelativeFixedValue& value) override;
    void changeLayerVelocity(const SelectType& type, const RelativeFixedValue& value) override;
    void changeLayerMute(const SelectType& type, const OnOffToggle& value) override;
    void changeLayerMono(const SelectType& type, const OnOffToggle& value) override;
    void changeLayerSolo(const SelectType& type, const OnOffToggle& value) override;
    void changeLayerNoteToggle(const SelectType& type, const NoteToggle& value) override;
    Gui::MirelGuiIF* createMirelGui(bool isVstPlugin) override;
    void displayString(const std::string& text) override { m_display.postAddText(text); }
    void setLiteVelocity(int velocity) override;
    void setLiteChannel(int channel) override;
    void setLiteStackNotes(bool stackNotes) override;
    void setClickZoneChannelTranspose(bool value) override;

private:
    // Settings and ports (MirelSettings.cpp).
    std::string getSettingsKey() const;
    void chooseDefaultMidiOutput();
    void setDefaultMidiOutput(int index);

    // Programs and banks (MirelPrograms.cpp).
    void loadProgramFromFile(const std::string& path, int index);
    void beginLoad(int index);
    void endLoad();
    Program importProgramFromXml(const XmlElement& element, int index);
    std::string writeProgram() const;
    void saveToBankFile(const std::string& target, int index, HWND notify);

    const std::string m_name;
    std::atomic<HWND> m_guiWindow = nullptr;
    MessageManagerMaster m_messageManagerMaster;
    MirelMessageManager m_messageManager;
    const std::unique_ptr<Platform::SettingsStore> m_settingsStore;
    RegistrySettings m_registrySettings;
    Bank m_currentBank;
    Program m_currentProgram;
    std::vector<MidiEngine::MidiInputPort> m_midiInputPorts;
    std::vector<MidiEngine::MidiOutputPort> m_midiOutputPorts;
    MidiEngine::MidiEngine m_midiEngine;
    Display::DisplayMessageManager m_display;
    SequenceManagement::SequencePresetManager m_sequencePresets;  // Before the layers, which use it.
    ComputerInput::ComputerInputManager m_computerInput;
    Controls::ControlManager m_controls;
    Layers::LayerManager m_layers;
    Zones::ZoneManager m_zones;
    ScreenState m_screenState;
};

}
