#pragma once

#include "Backend/core/settings/Rect.h"
#include "Backend/midi/MidiPort.h"
#include "Backend/midi/Zone.h"
#include "Platform/WindowTypes.h"

#include <cstdint>
#include <string>
#include <vector>

class NoteToggle;
class OnOffToggle;
class RelativeFixedValue;
class SelectControlType;
class SelectType;
class Key;

namespace Gui {
class MirelGuiIF;
}

namespace Backend {

class Bank;
class MessageManagerMaster;
class MirelMessageManager;
class Program;
class RegistrySettings;
struct ScreenState;

namespace ComputerInput {
class ComputerInputManager;
class ComputerInputMessageManager;
}

namespace Controls {
class ControlManager;
class ControlMessageManager;
}

namespace Display {
class DisplayMessageManager;
}

namespace Layers {
class LayerManager;
class LayerMessageManager;
}

namespace MidiEngine {
class MidiEngineMessageManager;
class MirelMidiMessage;
}

namespace SequenceManagement {
using SequencePresetList = std::vector<std::string>;
}

namespace Zones {
class ZoneManager;
class ZoneMessageManager;
}

// The backend, as its parts and its users see it.
//
// Operations that change state are for the backend thread unless tagged otherwise; other threads reach them through the
// MirelMessageManager. Getters take no lock: what they refer to changes on the backend thread. Notifications to the
// window do nothing while there is none. notify is a window to be notified when a file operation is done, or null.
class MirelIF {
public:
    virtual ~MirelIF() = default;

    // Loads the settings and starts the threads of the display and of the engine. Keys, controls and layers get their
    // built-in defaults.
    virtual void initialize() = 0;

    // Sends all controls that send automatically.
    virtual void endInitialize() = 0;

    // Stops what initialize started and saves the settings.
    virtual void end() = 0;

    // [host] Starts and stops the backend thread.
    virtual void start() = 0;
    virtual void stop() = 0;

    // [any] The window that gets notifications; null while there is none.
    virtual HWND getGuiWindowHandle() = 0;
    virtual void setGuiWindowHandle(HWND window) = 0;

    // [any]
    virtual MirelMessageManager& getMessageManager() = 0;
    virtual MidiEngine::MidiEngineMessageManager& getMidiEngineMessageManager() = 0;
    virtual Controls::ControlMessageManager& getControlMessageManager() = 0;

    virtual void setLastWindowPosition(const Rect& position) = 0;
    virtual void removeGuiWindowHandle() = 0;
    virtual void setDockToBottomEdge(bool dock) = 0;

    // The bank that the host opens at the start; also loads it at once.
    virtual void setDefaultBank(const std::string& path) = 0;
    virtual void setMouseSensitivity(int sensitivity) = 0;

    // Replace the lists of ports, whose order gives the ports their indices.
    virtual void setMidiInputPorts(const std::vector<MidiEngine::MidiInputPort>& ports) = 0;
    virtual void setMidiOutputPorts(const std::vector<MidiEngine::MidiOutputPort>& ports) = 0;
    virtual std::vector<MidiEngine::MidiInputPort> getMidiInputPorts() = 0;
    virtual std::vector<MidiEngine::MidiOutputPort> getMidiOutputPorts() = 0;

    // For inputs, an index without a port is ignored. For outputs only the setting changes, and the host is notified.
    virtual void enableMidiInput(int index, bool enabled) = 0;
    virtual void enableMidiOutput(int index, bool enabled) = 0;

    // Logs an event that came in from a port. It is not played.
    virtual void processMidiInputEvent(const MidiEngine::MirelMidiMessage& message) = 0;

    // Ends all sounding notes and loads a program: from a file, or from the current bank by its index from 0. Without
    // such a program, only the program's name and tempo are cleared.
    virtual void loadProgram(const std::string& path) = 0;
    virtual void changeProgramFromBank(int index) = 0;

    // The same from the text of getProgramXml. Blank text loads nothing.
    virtual void loadProgramFromXml(const std::string& xml, int index) = 0;

    // Makes a file the current bank and loads the program at the current index from it. Does nothing for an empty path.
    virtual void loadBank(const std::string& path) = 0;

    // Convert files of version 2 and load the result; to is a path or, for a preset, its name. Presets are not loaded.
    virtual void importVersion2Bank(const std::string& from, const std::string& to, HWND notify) = 0;
    virtual void importVersion2Program(const std::string& from, const std::string& to, HWND notify) = 0;
    virtual void importVersion2Preset(const std::string& from, const std::string& to, HWND notify) = 0;

    // Write the current program: over the one with this index in the current bank, into a copy of the current bank at
    // the current index, or into a file of its own. Files that can't be written stay as they are.
    virtual void saveToCurrentBank(int index, HWND notify) = 0;
    virtual void saveToBank(const std::string& path, HWND notify) = 0;
    virtual void saveToProgram(const std::string& path, HWND notify) = 0;
    virtual void getProgramXml(std::string& xml) = 0;

    virtual void setAlwaysOnTop(bool alwaysOnTop) = 0;
    virtual void setUseSkinBorder(bool useSkinBorder) = 0;
    virtual void showSystemPanel(bool show) = 0;
    virtual void toggleSystemPanel() = 0;
    virtual void setDisplayHeight(int height) = 0;
    virtual void setDisplayNumbers(bool numbers) = 0;
    virtual void setLargeDisplayFont(bool large) = 0;
    virtual void setDisplayMidiInputEvents(bool display) = 0;
    virtual void setDisplayMidiOutputEvents(bool display) = 0;
    virtual void showDisplay(bool show) = 0;
    virtual void toggleDisplay() = 0;
    virtual void showHelp(bool show) = 0;
    virtual void toggleHelp() = 0;
    virtual void showOutput(bool show) = 0;
    virtual void toggleOutput() = 0;
    virtual void showCc(bool show) = 0;
    virtual void toggleCc() = 0;
    virtual void showLayer(bool show) = 0;
    virtual void toggleLayer() = 0;
    virtual void showZone(bool show) = 0;
    virtual void toggleZone() = 0;

    // [any] Hands an event to the engine.
    virtual void playMidi(const MidiEngine::MirelMidiMessage& message) = 0;

    // In screen pixels; relative values move, fixed ones place.
    virtual void moveWindow(const RelativeFixedValue& x, const RelativeFixedValue& y) = 0;

    virtual ComputerInput::ComputerInputManager& getComputerInput() = 0;
    virtual ComputerInput::ComputerInputMessageManager& getComputerInputMessageManager() = 0;
    virtual void showComputerInput(bool show) = 0;
    virtual void toggleComputerInput() = 0;

    // [any] A key event, posted to the backend thread.
    virtual void postKeyDown(const Key& key, bool isRepeat) = 0;
    virtual void postKeyUp(const Key& key) = 0;

    virtual void loadComputerInputPreset(const std::string& name) = 0;

    // For each zone that keys play in, its lowest and highest note.
    virtual std::vector<Zones::Zone> getZoneRanges() = 0;

    virtual Controls::ControlManager& getControls() = 0;
    virtual void showControl(bool show) = 0;
    virtual void toggleControl() = 0;
    virtual Layers::LayerManager& getLayers() = 0;
    virtual Layers::LayerMessageManager& getLayerMessageManager() = 0;
    virtual Zones::ZoneManager& getZones() = 0;
    virtual Zones::ZoneMessageManager& getZoneMessageManager() = 0;
    virtual Display::DisplayMessageManager& getDisplayMessageManager() = 0;
    virtual const Bank& getCurrentBank() = 0;
    virtual const Program& getCurrentProgram() = 0;

    // [player, rt] See MidiEngine::playTimeSlice.
    virtual void playTimeSlice(std::int32_t from, std::int32_t to) = 0;

    virtual RegistrySettings& getRegistrySettings() = 0;
    virtual MessageManagerMaster& getMessageManagerMaster() = 0;

    // Beats per minute, and the input whose clock sets the time (-1: none).
    virtual int getTempo() = 0;
    virtual int getTempoSource() = 0;

    // A tempo outside 20 to 250, or a missing input, is ignored.
    virtual void changeTempo(const RelativeFixedValue& value, bool notifyGui) = 0;
    virtual void setTempoSource(char source, bool notifyGui) = 0;

    // Updates the zones to the keys that refer to them.
    virtual void updateZonesFromKeys() = 0;

    // Ends all sounding notes and arpeggios, and silences the default output.
    virtual void resetMirel() = 0;

    // Adds empty programs to the current bank or removes programs from its end. 0 or less is ignored.
    virtual void changeBankSize(int size, HWND notify) = 0;

    // Takes effect in the file with the next save.
    virtual void changeProgramName(const std::string& name) = 0;

    virtual const SequenceManagement::SequencePresetList& getSequencePresetList() = 0;
    virtual void addSequencePreset(const std::string& name, const std::string& sequence) = 0;
    virtual void selectControl(const SelectControlType& type) = 0;
    virtual void changeControl(const SelectControlType& type, const RelativeFixedValue& value) = 0;
    virtual void sendControlData(const SelectControlType& type) = 0;

    // A program beyond either end of the bank is ignored.
    virtual void changeProgram(const SelectType& type) = 0;

    // Only accepts outputs that are enabled and available.
    virtual void changeDefaultMidiOutput(const SelectType& type) = 0;

    virtual void showProgramMenu() = 0;
    virtual void selectZone(const SelectType& type) = 0;
    virtual void changeZoneTranspose(const SelectType& type, const RelativeFixedValue& value) = 0;
    virtual void showDefaultMidiOutputMenu() = 0;
    virtual void setScreenState(const ScreenState& state) = 0;
    virtual const ScreenState& getScreenState() = 0;
    virtual void changeMidiThru(const OnOffToggle& state, bool notifyGui) = 0;
    virtual void changeGlobalKeyboard(const OnOffToggle& state, bool notifyGui) = 0;
    virtual void dataSelectLayer(const SelectType& type) = 0;
    virtual void editSelectLayer(const SelectType& type) = 0;
    virtual void changeLayerTranspose(const SelectType& type, const RelativeFixedValue& value) = 0;
    virtual void changeLayerVelocity(const SelectType& type, const RelativeFixedValue& value) = 0;
    virtual void changeLayerMute(const SelectType& type, const OnOffToggle& value) = 0;
    virtual void changeLayerMono(const SelectType& type, const OnOffToggle& value) = 0;
    virtual void changeLayerSolo(const SelectType& type, const OnOffToggle& value) = 0;
    virtual void changeLayerNoteToggle(const SelectType& type, const NoteToggle& value) = 0;

    // The desk's window, not yet on the screen; null in a build without windows. The caller owns it.
    virtual Gui::MirelGuiIF* createMirelGui(bool isVstPlugin) = 0;

    // [any] Adds text to the log.
    virtual void displayString(const std::string& text) = 0;

    // Settings that also change the first layer, if there is one: a fixed velocity, a channel from 0, stacked notes.
    virtual void setLiteVelocity(int velocity) = 0;
    virtual void setLiteChannel(int channel) = 0;
    virtual void setLiteStackNotes(bool stackNotes) = 0;
    virtual void setClickZoneChannelTranspose(bool value) = 0;
};

}
