#pragma once

#include "Backend/core/files/Bank.h"
#include "Backend/core/files/Program.h"
#include "Backend/core/settings/Rect.h"
#include "Backend/core/settings/RegistrySettings.h"
#include "Backend/midi/MidiPort.h"
#include "Backend/midi/sequences/SequencePresetManager.h"

#include <windows.h>

#include <string>
#include <vector>

class RelativeFixedValue;

namespace Backend {
class GuiMessageManagerMaster;
class MirelIF;
class MirelMessageManager;
namespace MidiEngine {
class MirelMidiMessage;
}
}

namespace Gui {

class GdiManager;
class KeyboardHookProxy;
class MusicKeyboardCtl;
class PopupMenu;
class Skinner;

namespace Output {
class OutputPanel;
}

namespace Preset {
class PresetGuiOwner;
}

// The desk's window, as the host, the backend and the panels see it.
//
// Everything is for the window's thread [gui], except the construction, which happens on the backend's thread and
// touches no window. The getters return the window's own copies. The handle... operations take over what the backend
// has changed; nothing here changes the desk except through the messages of getMirelMessageManager().
class MirelGuiIF {
public:
    virtual ~MirelGuiIF() = default;

    // [gui, after create] Fills the screens with the desk's data.
    virtual void initialize() = 0;

    // Does nothing.
    virtual void update() = 0;

    // [host's gui thread] Creates the window and its panels as a child of this one. Call it once.
    virtual void create(HWND parentWindow) = 0;

    // Destroys the window and lets the desk know.
    virtual void destroy() = 0;

    virtual GdiManager& getGdiManager() = 0;
    virtual const std::vector<Backend::MidiEngine::MidiOutputPort>& getMidiOutputPorts() = 0;
    virtual const std::vector<Backend::MidiEngine::MidiInputPort>& getMidiInputPorts() = 0;
    virtual Skinner& getSkinner() = 0;
    virtual Preset::PresetGuiOwner& getComputerInputPanelAsPresetGuiOwner() = 0;
    virtual Preset::PresetGuiOwner& getControlPanelAsPresetGuiOwner() = 0;
    virtual Preset::PresetGuiOwner& getLayerPanelAsPresetGuiOwner() = 0;
    virtual Output::OutputPanel& getOutputPanel() = 0;
    virtual HWND getWindowHandle() = 0;
    virtual Backend::RegistrySettings& getRegistrySettings() = 0;
    virtual PopupMenu& getGmProgramMenu() = 0;
    virtual PopupMenu& getDataMenu() = 0;

    // Whether "OUT" is lit.
    virtual void setOutputButton(bool state) = 0;

    // The index of the output, or -1.
    virtual int getDefaultMidiOutput() = 0;

    virtual const Backend::Bank& getCurrentBank() = 0;
    virtual const Backend::Program& getCurrentProgram() const = 0;
    virtual Backend::Program& getCurrentProgram() = 0;

    // Ask the user, and post the choice.
    virtual void showLoadDialog() = 0;
    virtual void showSetupDialog() = 0;
    virtual void importVersion2File() = 0;

    virtual Backend::MirelMessageManager& getMirelMessageManager() = 0;
    virtual void handleDockToBottomEdgeChanged(bool dock) = 0;
    virtual void handleDefaultBankChanged(const std::string& path) = 0;
    virtual void handleBankChanged(const Backend::Bank& bank) = 0;
    virtual void handleProgramChanged(const Backend::Program& program) = 0;
    virtual void handleProgramNameChanged(const Backend::Program& program) = 0;
    virtual void handleMidiInputPortsChanged(const std::vector<Backend::MidiEngine::MidiInputPort>& ports) = 0;
    virtual void handleMidiOutputPortsChanged(const std::vector<Backend::MidiEngine::MidiOutputPort>& ports) = 0;
    virtual void handleDefaultMidiOutputChanged(int output) = 0;
    virtual void handleAlwaysOnTopChanged(bool alwaysOnTop) = 0;
    virtual void handleUseSkinBorderChanged(bool useSkinBorder) = 0;

    virtual void showSystemPanel(bool show) = 0;
    virtual void toggleSystemPanel() = 0;
    virtual bool isSystemPanelShowing() = 0;
    virtual void showHelp(bool show) = 0;
    virtual void toggleHelp() = 0;
    virtual bool isHelpPanelShowing() = 0;
    virtual void showDisplay(bool show) = 0;
    virtual void toggleDisplay() = 0;
    virtual bool isDisplayPanelShowing() = 0;
    virtual void showComputerInput(bool show) = 0;
    virtual void toggleComputerInput() = 0;
    virtual bool isComputerInputPanelShowing() = 0;
    virtual void showOutput(bool show) = 0;
    virtual void toggleOutput() = 0;
    virtual bool isOutputPanelShowing() = 0;

    // CC, layer and zone lie in the output panel, which shows with them.
    virtual void showCc(bool show) = 0;
    virtual void toggleCc() = 0;
    virtual bool isCcPanelShowing() = 0;
    virtual void showLayer(bool show) = 0;
    virtual void toggleLayer() = 0;
    virtual bool isLayerPanelShowing() = 0;
    virtual void showControl(bool show) = 0;
    virtual void toggleControl() = 0;
    virtual bool isControlPanelShowing() = 0;
    virtual void showZone(bool show) = 0;
    virtual void toggleZone() = 0;
    virtual bool isZonePanelShowing() = 0;

    // Asks the host to move. Relative values are offsets, fixed ones screen positions. In pixels.
    virtual void moveWindow(const RelativeFixedValue& x, const RelativeFixedValue& y) = 0;

    // Shows an event that was played.
    virtual void displayMidiOutputEvent(const Backend::MidiEngine::MirelMidiMessage& message) = 0;

    virtual bool getDockToBottomEdge() = 0;
    virtual void setDockToBottomEdge(bool dock) = 0;
    virtual Backend::GuiMessageManagerMaster& getGuiMessageManagerMaster() = 0;
    virtual MusicKeyboardCtl& getMainMusicKeyboardCtl() = 0;
    virtual void clearMusicKeyboardHilight() = 0;
    virtual void clearComputerKeyboardHilight() = 0;

    // "Default" for -1, "???" for an index without a port.
    virtual std::string getMidiOutputName(int index) = 0;

    virtual void handleResetMirel() = 0;
    virtual int getNumberOfPrograms() = 0;
    virtual const Backend::SequenceManagement::SequencePresetList& getSequencePresetList() const = 0;

    // Sequence presets: the window's list and the desk's files.
    virtual void addSequencePreset(const std::string& name, const std::string& sequence) = 0;
    virtual void editSequencePreset(const std::string& name, const std::string& newName) = 0;
    virtual void deleteSequencePreset(const std::string& name) = 0;
    virtual Backend::SequenceManagement::SequencePresetList& getSequencePresetList() = 0;

    // Gives the desk the keyboard focus.
    virtual void setFocus() = 0;

    virtual void showProgramMenu() = 0;
    virtual void showDefaultMidiOutputMenu() = 0;
    virtual void handleRetroRecordBufferSizeChanged(int size) = 0;
    virtual void handleRetroRecordEnabledChanged(bool enabled) = 0;
    virtual void handleMidiThruChanged(bool thru) = 0;
    virtual void handleGlobalKeyboardChanged(bool globalKeyboard) = 0;
    virtual void handleMouseSensitivityChanged(int sensitivity) = 0;
    virtual void handleLargeDisplayFontChanged(bool large) = 0;
    virtual void handleClickZoneChannelTransposeChanged(bool value) = 0;
    virtual KeyboardHookProxy& getKeyboardHookProxy() = 0;
    virtual Backend::MirelIF& getMirelIF() = 0;
    virtual const std::string& getCurrentBankName() = 0;

    // Help about what is under the pointer: a text, a window with the property "HELP", or the id of a string.
    virtual void displayHelp(const std::string& text) = 0;
    virtual void displayHelp(HWND window) = 0;
    virtual void displayHelp(int id) = 0;

    // The place of the host's window on the screen.
    virtual Rect getMainWindowPosition() = 0;

    virtual bool isVstPlugin() = 0;
};

}
