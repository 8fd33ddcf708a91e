#pragma once

#include "Backend/core/messages/GuiMessageManagerMaster.h"
#include "Backend/core/settings/ScreenState.h"
#include "Gui/ComputerInput/ComputerInputPanel.h"
#include "Gui/Controls/ControlPanel.h"
#include "Gui/Display/DisplayPanel.h"
#include "Gui/Help/HelpPanel.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/MirelGuiMessageManager.h"
#include "Gui/Output/OutputPanel.h"
#include "Gui/Rules/keys/HeldKeys.h"
#include "Gui/Rules/places/InitialWindowPosition.h"
#include "Gui/System/SetupDialog.h"
#include "Gui/System/SystemPanel.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/widgets/Button.h"
#include "Gui/Utils/windows/KeyboardHookProxy.h"
#include "Gui/Utils/windows/KeyboardLossWatch.h"

#include <memory>
#include <string>
#include <vector>

namespace Gui {

// The desk's window: a child of a window of the host, with all screens in it. It owns the copies of what the screens
// show; all traffic between them and the desk passes through it. See MirelGuiIF.
class MirelGui : public MirelGuiIF, private Button::Listener {
public:
    // [backend] Copies everything it is given, and the desk's current bank and program.
    MirelGui(Backend::MirelIF& mirel, const Backend::RegistrySettings& settings,
             const std::vector<Backend::MidiEngine::MidiInputPort>& inputs,
             const std::vector<Backend::MidiEngine::MidiOutputPort>& outputs,
             const Backend::SequenceManagement::SequencePresetList& sequencePresets, bool isVstPlugin);
    ~MirelGui() override;
    MirelGui(const MirelGui&) = delete;
    MirelGui& operator=(const MirelGui&) = delete;

    void initialize() override;
    void update() override {}
    void create(HWND parentWindow) override;
    void destroy() override;

    GdiManager& getGdiManager() override { return m_gdiManager; }
    const std::vector<Backend::MidiEngine::MidiOutputPort>& getMidiOutputPorts() override { return m_midiOutputPorts; }
    const std::vector<Backend::MidiEngine::MidiInputPort>& getMidiInputPorts() override { return m_midiInputPorts; }
    Skinner& getSkinner() override { return m_skinner; }
    Preset::PresetGuiOwner& getComputerInputPanelAsPresetGuiOwner() override { return m_computerInputPanel; }
    Preset::PresetGuiOwner& getControlPanelAsPresetGuiOwner() override { return m_controlPanel; }
    Preset::PresetGuiOwner& getLayerPanelAsPresetGuiOwner() override { return m_outputPanel.getLayerPanel(); }
    Output::OutputPanel& getOutputPanel() override { return m_outputPanel; }
    HWND getWindowHandle() override { return m_windowHandle; }
    Backend::RegistrySettings& getRegistrySettings() override { return m_settings; }
    PopupMenu& getGmProgramMenu() override { return m_gmProgramMenu; }
    PopupMenu& getDataMenu() override { return m_dataMenu; }
    void setOutputButton(bool state) override { m_systemPanel.setOutputButton(state); }
    int getDefaultMidiOutput() override { return m_settings.getDefaultMidiOutput(); }
    const Backend::Bank& getCurrentBank() override { return m_currentBank; }
    const Backend::Program& getCurrentProgram() const override { return m_currentProgram; }
    Backend::Program& getCurrentProgram() override { return m_currentProgram; }
    Backend::MirelMessageManager& getMirelMessageManager() override;
    Backend::GuiMessageManagerMaster& getGuiMessageManagerMaster() override { return m_guiMessageManagerMaster; }
    MusicKeyboardCtl& getMainMusicKeyboardCtl() override;
    std::string getMidiOutputName(int index) override;
    int getNumberOfPrograms() override;
    KeyboardHookProxy& getKeyboardHookProxy() override { return m_keyboardHookProxy; }
    Backend::MirelIF& getMirelIF() override { return m_mirelIF; }
    const std::string& getCurrentBankName() override { return m_currentBankName; }
    Rect getMainWindowPosition() override;
    bool isVstPlugin() override { return m_isVstPlugin; }

    // MirelGuiDialogs.cpp
    void showLoadDialog() override;
    void showSetupDialog() override;
    void importVersion2File() override;
    void showProgramMenu() override;
    void showDefaultMidiOutputMenu() override;
    void displayHelp(const std::string& text) override;
    void displayHelp(HWND window) override;
    void displayHelp(int id) override;

    // MirelGuiPanels.cpp
    void showSystemPanel(bool show) override;
    void toggleSystemPanel() override;
    bool isSystemPanelShowing() override { return m_systemPanel.isVisible(); }
    void showHelp(bool show) override;
    void toggleHelp() override;
    bool isHelpPanelShowing() override { return m_helpPanel.isVisible(); }
    void showDisplay(bool show) override;
    void toggleDisplay() override;
    bool isDisplayPanelShowing() override { return m_displayPanel.isVisible(); }
    void showComputerInput(bool show) override;
    void toggleComputerInput() override;
    bool isComputerInputPanelShowing() override { return m_computerInputPanel.isVisible(); }
    void showOutput(bool show) override;
    void toggleOutput() override;
    bool isOutputPanelShowing() override { return m_outputPanel.isVisible(); }
    void showCc(bool show) override;
    void toggleCc() override;
    bool isCcPanelShowing() override { return m_outputPanel.getCcPanel().isVisible(); }
    void showLayer(bool show) override;
    void toggleLayer() override;
    bool isLayerPanelShowing() override { return m_outputPanel.getLayerPanel().isVisible(); }
    void showControl(bool show) override;
    void toggleControl() override;
    bool isControlPanelShowing() override { return m_controlPanel.isVisible(); }
    void showZone(bool show) override;
    void toggleZone() override;
    bool isZonePanelShowing() override { return m_outputPanel.getZonePanel().isVisible(); }
    void moveWindow(const RelativeFixedValue& x, const RelativeFixedValue& y) override;

    // MirelGuiChanges.cpp
    void handleDockToBottomEdgeChanged(bool dock) override;
    void handleDefaultBankChanged(const std::string& path) override;
    void handleBankChanged(const Backend::Bank& bank) override;
    void handleProgramChanged(const Backend::Program& program) override;
    void handleProgramNameChanged(const Backend::Program& program) override;
    void handleMidiInputPortsChanged(const std::vector<Backend::MidiEngine::MidiInputPort>& ports) override;
    void handleMidiOutputPortsChanged(const std::vector<Backend::MidiEngine::MidiOutputPort>& ports) override;
    void handleDefaultMidiOutputChanged(int output) override;
    void handleAlwaysOnTopChanged(bool alwaysOnTop) override;
    void handleUseSkinBorderChanged(bool useSkinBorder) override;
    void displayMidiOutputEvent(const Backend::MidiEngine::MirelMidiMessage& message) override;
    bool getDockToBottomEdge() override { return m_settings.getDockToBottomEdge(); }
    void setDockToBottomEdge(bool dock) override;
    void clearMusicKeyboardHilight() override;
    void clearComputerKeyboardHilight() override;
    void handleResetMirel() override;
    const Backend::SequenceManagement::SequencePresetList& getSequencePresetList() const override {
        return m_sequencePresetList;
    }
    Backend::SequenceManagement::SequencePresetList& getSequencePresetList() override { return m_sequencePresetList; }
    void addSequencePreset(const std::string& name, const std::string& sequence) override;
    void editSequencePreset(const std::string& name, const std::string& newName) override;
    void deleteSequencePreset(const std::string& name) override;
    void handleRetroRecordBufferSizeChanged(int size) override;
    void handleRetroRecordEnabledChanged(bool enabled) override;
    void handleMidiThruChanged(bool thru) override;
    void handleGlobalKeyboardChanged(bool globalKeyboard) override;
    void handleMouseSensitivityChanged(int sensitivity) override;
    void handleLargeDisplayFontChanged(bool large) override;
    void handleClickZoneChannelTransposeChanged(bool value) override;

    // These only change the window's copy of a setting.
    void handleDisplayNumbersChanged(bool numbers);
    void handleDisplayMidiInputEventsChanged(bool display);
    void handleDisplayMidiOutputEventsChanged(bool display);

    // MirelGuiWindow.cpp
    void setFocus() override;

private:
    // MirelGui.cpp
    static std::string findHookFolder();
    void createWindows();
    void createButtons();
    void setupPanels();
    void applyScreenState();
    void moveToLastPosition();
    WindowPosition getInitialWindowPosition() const;

    // MirelGuiWindow.cpp
    static LRESULT CALLBACK windowProcStatic(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK focusControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static void registerClassOnce();
    LRESULT windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool hasKeyboard() const;
    void handleKeyDown(WPARAM wParam, LPARAM lParam);
    void handleKeyUp(WPARAM wParam, LPARAM lParam);
    void showKeyReleased(const Key& key);
    void releaseHeldKeys();
    void handleSize(WPARAM wParam, LPARAM lParam);
    void handleMouseWheel(WPARAM wParam, LPARAM lParam) const;
    void handleHookChanged(bool globalKeyboard);
    void handleDestroy(HWND window);
    void takeLastMessages(HWND window);
    void buttonChanged(int id, bool state) override;

    // MirelGuiPanels.cpp
    void showPanel(Panel& panel, bool show);
    void showInOutput(Panel& panel, Button& button, bool show);
    void resizeWindow(int width, int height);
    void showCollapsed(bool collapsed);

    // MirelGuiChanges.cpp
    void enableHook(bool enable);
    void showGlobalKeyboard();
    void waitForDesk() const;
    void postToHost(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    GdiManager m_gdiManager = GdiManager::create();
    Skinner m_skinner{*this};
    Backend::MirelIF& m_mirelIF;
    HWND m_windowHandle = nullptr;
    HWND m_parentWindow = nullptr;
    SkinPanel m_rootPanel{*this};
    Backend::RegistrySettings m_settings;
    Backend::GuiMessageManagerMaster m_guiMessageManagerMaster;
    System::SystemPanel m_systemPanel{*this};
    Backend::Bank m_currentBank;
    std::string m_currentBankName;
    Backend::Program m_currentProgram;
    std::vector<Backend::MidiEngine::MidiInputPort> m_midiInputPorts;
    std::vector<Backend::MidiEngine::MidiOutputPort> m_midiOutputPorts;
    KeyboardHookProxy m_keyboardHookProxy{findHookFolder()};
    Button m_thruButton{*this, this, Button::Kind::toggle};
    Button m_resetButton{*this, this, Button::Kind::push};
    Button m_globalKeyButton{*this, this, Button::Kind::toggle};
    PopupMenu m_gmProgramMenu;
    PopupMenu m_dataMenu;
    Backend::SequenceManagement::SequencePresetList m_sequencePresetList;
    System::SetupDialog m_setupDialog;
    MirelGuiMessageManager m_guiMessageManager{*this};
    Help::HelpPanel m_helpPanel{*this};
    Display::DisplayPanel m_displayPanel;
    ComputerInput::ComputerInputPanel m_computerInputPanel{*this};
    Controls::ControlPanel m_controlPanel{*this};
    Output::OutputPanel m_outputPanel{*this};
    int m_previousHeight = 0;
    Backend::ScreenState m_screenState;
    const bool m_isVstPlugin;
    HWND m_focusWindow = nullptr;
    bool m_isCreated = false;
    bool m_isComReady = false;
    HeldKeys m_heldKeys;
    std::unique_ptr<KeyboardLossWatch> m_keyboardLossWatch;
};

}
