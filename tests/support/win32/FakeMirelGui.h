#pragma once

#include "Backend/core/messages/GuiMessageManagerMaster.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Platform/SettingsStore.h"

#include <memory>
#include <string>
#include <vector>

namespace TestSupport {

// A main window's interface without a main window: it provides the desk's graphics, skin and settings, and records what
// it was asked for. What needs a screen or the desk itself throws std::logic_error; everything else does nothing.
class FakeMirelGui : public Gui::MirelGuiIF {
public:
    // To be filled by tests.
    HWND window = nullptr;
    bool plugin = false;
    std::string bankName;
    Backend::Bank bank;
    Backend::Program program;
    std::vector<Backend::MidiEngine::MidiOutputPort> midiOutputPorts;
    std::vector<Backend::MidiEngine::MidiInputPort> midiInputPorts;
    Backend::SequenceManagement::SequencePresetList sequencePresets;

    // What was asked for, in order.
    std::vector<std::string> helpTexts;
    std::vector<HWND> helpWindows;
    std::vector<int> helpIds;
    int focusRequests = 0;

    void initialize() override {}
    void update() override {}
    void create(HWND) override {}
    void destroy() override {}
    Gui::GdiManager& getGdiManager() override { return m_gdi; }
    const std::vector<Backend::MidiEngine::MidiOutputPort>& getMidiOutputPorts() override { return midiOutputPorts; }
    const std::vector<Backend::MidiEngine::MidiInputPort>& getMidiInputPorts() override { return midiInputPorts; }
    Gui::Skinner& getSkinner() override { return m_skinner; }
    Gui::Preset::PresetGuiOwner& getComputerInputPanelAsPresetGuiOwner() override {
        missing("getComputerInputPanelAsPresetGuiOwner");
    }
    Gui::Preset::PresetGuiOwner& getControlPanelAsPresetGuiOwner() override {
        missing("getControlPanelAsPresetGuiOwner");
    }
    Gui::Preset::PresetGuiOwner& getLayerPanelAsPresetGuiOwner() override { missing("getLayerPanelAsPresetGuiOwner"); }
    Gui::Output::OutputPanel& getOutputPanel() override { missing("getOutputPanel"); }
    HWND getWindowHandle() override { return window; }
    Backend::RegistrySettings& getRegistrySettings() override { return m_settings; }
    Gui::PopupMenu& getGmProgramMenu() override { missing("getGmProgramMenu"); }
    Gui::PopupMenu& getDataMenu() override { missing("getDataMenu"); }
    void setOutputButton(bool) override {}
    int getDefaultMidiOutput() override { return -1; }
    const Backend::Bank& getCurrentBank() override { return bank; }
    const Backend::Program& getCurrentProgram() const override { return program; }
    Backend::Program& getCurrentProgram() override { return program; }
    void showLoadDialog() override {}
    void showSetupDialog() override {}
    void importVersion2File() override {}
    Backend::MirelMessageManager& getMirelMessageManager() override { missing("getMirelMessageManager"); }
    void handleDockToBottomEdgeChanged(bool) override {}
    void handleDefaultBankChanged(const std::string&) override {}
    void handleBankChanged(const Backend::Bank&) override {}
    void handleProgramChanged(const Backend::Program&) override {}
    void handleProgramNameChanged(const Backend::Program&) override {}
    void handleMidiInputPortsChanged(const std::vector<Backend::MidiEngine::MidiInputPort>&) override {}
    void handleMidiOutputPortsChanged(const std::vector<Backend::MidiEngine::MidiOutputPort>&) override {}
    void handleDefaultMidiOutputChanged(int) override {}
    void handleAlwaysOnTopChanged(bool) override {}
    void handleUseSkinBorderChanged(bool) override {}
    void showSystemPanel(bool) override {}
    void toggleSystemPanel() override {}
    bool isSystemPanelShowing() override { return false; }
    void showHelp(bool) override {}
    void toggleHelp() override {}
    bool isHelpPanelShowing() override { return false; }
    void showDisplay(bool) override {}
    void toggleDisplay() override {}
    bool isDisplayPanelShowing() override { return false; }
    void showComputerInput(bool) override {}
    void toggleComputerInput() override {}
    bool isComputerInputPanelShowing() override { return false; }
    void showOutput(bool) override {}
    void toggleOutput() override {}
    bool isOutputPanelShowing() override { return false; }
    void showCc(bool) override {}
    void toggleCc() override {}
    bool isCcPanelShowing() override { return false; }
    void showLayer(bool) override {}
    void toggleLayer() override {}
    bool isLayerPanelShowing() override { return false; }
    void showControl(bool) override {}
    void toggleControl() override {}
    bool isControlPanelShowing() override { return false; }
    void showZone(bool) override {}
    void toggleZone() override {}
    bool isZonePanelShowing() override { return false; }
    void moveWindow(const RelativeFixedValue&, const RelativeFixedValue&) override {}
    void displayMidiOutputEvent(const Backend::MidiEngine::MirelMidiMessage&) override {}
    bool getDockToBottomEdge() override { return false; }
    void setDockToBottomEdge(bool) override {}
    Backend::GuiMessageManagerMaster& getGuiMessageManagerMaster() override { return m_guiMessageManagerMaster; }
    Gui::MusicKeyboardCtl& getMainMusicKeyboardCtl() override { missing("getMainMusicKeyboardCtl"); }
    void clearMusicKeyboardHilight() override {}
    void clearComputerKeyboardHilight() override {}
    std::string getMidiOutputName(int) override { return "Default"; }
    void handleResetMirel() override {}
    int getNumberOfPrograms() override { return static_cast<int>(bank.getProgramNames().size()); }
    const Backend::SequenceManagement::SequencePresetList& getSequencePresetList() const override {
        return sequencePresets;
    }
    void addSequencePreset(const std::string&, const std::string&) override {}
    void editSequencePreset(const std::string&, const std::string&) override {}
    void deleteSequencePreset(const std::string&) override {}
    Backend::SequenceManagement::SequencePresetList& getSequencePresetList() override { return sequencePresets; }
    void setFocus() override { ++focusRequests; }
    void showProgramMenu() override {}
    void showDefaultMidiOutputMenu() override {}
    void handleRetroRecordBufferSizeChanged(int) override {}
    void handleRetroRecordEnabledChanged(bool) override {}
    void handleMidiThruChanged(bool) override {}
    void handleGlobalKeyboardChanged(bool) override {}
    void handleMouseSensitivityChanged(int) override {}
    void handleLargeDisplayFontChanged(bool) override {}
    void handleClickZoneChannelTransposeChanged(bool) override {}
    Gui::KeyboardHookProxy& getKeyboardHookProxy() override { missing("getKeyboardHookProxy"); }
    Backend::MirelIF& getMirelIF() override { missing("getMirelIF"); }
    const std::string& getCurrentBankName() override { return bankName; }
    void displayHelp(const std::string& text) override { helpTexts.push_back(text); }
    void displayHelp(HWND shown) override { helpWindows.push_back(shown); }
    void displayHelp(int id) override { helpIds.push_back(id); }
    Rect getMainWindowPosition() override { return {}; }
    bool isVstPlugin() override { return plugin; }

private:
    // Keeps nothing.
    class NoStore : public Platform::SettingsStore {
        std::unique_ptr<Platform::SettingsKey> open(const std::string&) override { return nullptr; }
        std::unique_ptr<Platform::SettingsKey> openExisting(const std::string&) override { return nullptr; }
    };

    [[noreturn]] static void missing(const char* operation);

    NoStore m_store;
    Backend::RegistrySettings m_settings{m_store};
    Gui::GdiManager m_gdi = Gui::GdiManager::create();
    Gui::Skinner m_skinner{*this};
    Backend::GuiMessageManagerMaster m_guiMessageManagerMaster;
};

}
