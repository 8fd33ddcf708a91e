#pragma once

#include "Backend/core/messages/MessageManager.h"
#include "Backend/core/settings/Rect.h"
#include "Backend/midi/MidiPort.h"

#include <string>
#include <vector>

class Key;
class OnOffToggle;
class RelativeFixedValue;
class SelectType;

namespace Gui {
class MirelGuiIF;
}

namespace Backend {

class MirelIF;
struct ScreenState;

namespace MidiEngine {
class MirelMidiMessage;
}

// How other threads reach the desk. The operation of MirelIF with the same name carries out each call on the backend
// thread; arguments are copied. send... returns when that is done, and only one thread at a time may be in such a call,
// never the backend thread; post... returns at once.
class MirelMessageManager : public MessageManager {
public:
    MirelMessageManager(MessageManagerMaster& master, MirelIF& mirel);

    // [any but backend] The start and the end.
    void sendInitialize();
    void sendEnd();
    void sendSetMidiInputPorts(const std::vector<MidiEngine::MidiInputPort>& ports);
    void sendSetMidiOutputPorts(const std::vector<MidiEngine::MidiOutputPort>& ports);
    void sendEndInitialize();
    Gui::MirelGuiIF* sendCreateMirelGui(bool isVstPlugin);

    // [any] Ports.
    void postSetMidiInputPorts(const std::vector<MidiEngine::MidiInputPort>& ports);
    void postSetMidiOutputPorts(const std::vector<MidiEngine::MidiOutputPort>& ports);
    void postEnableMidiInput(int index, bool enabled);
    void postEnableMidiOutput(int index, bool enabled);

    // [any] Files. notify is a window to be notified when it is done, or null.
    void postLoadProgram(const std::string& path);
    void postLoadBank(const std::string& path);
    void postSaveToCurrentBank(int index, HWND notify);
    void postSaveToBank(const std::string& path, HWND notify);
    void postSaveToProgram(const std::string& path, HWND notify);
    void postChangeBankSize(int size, HWND notify);
    void postChangeProgramName(const std::string& name);
    void postChangeProgram(const SelectType& type);
    void postAddSequencePreset(const std::string& name, const std::string& sequence);
    void postImportVersion2Bank(const std::string& from, const std::string& to, HWND notify);
    void postImportVersion2Program(const std::string& from, const std::string& to, HWND notify);
    void postImportVersion2Preset(const std::string& from, const std::string& to, HWND notify);

    // [any] Events.
    void postKeyDown(const Key& key, bool isRepeat);
    void postKeyUp(const Key& key);
    void postPlayMidi(const MidiEngine::MirelMidiMessage& message);
    void postProcessMidiInputEvent(const MidiEngine::MirelMidiMessage& message);
    void postResetMirel();

    // [any] Musical settings.
    void postChangeTempo(const RelativeFixedValue& value, bool notifyGui);
    void postSetTempoSource(char source, bool notifyGui);
    void postChangeDefaultMidiOutput(const SelectType& type);
    void postChangeMidiThru(const OnOffToggle& state, bool notifyGui);
    void postChangeGlobalKeyboard(const OnOffToggle& state, bool notifyGui);
    void postSetLiteVelocity(int velocity);
    void postSetLiteChannel(int channel);
    void postSetLiteStackNotes(bool stackNotes);
    void postSetClickZoneChannelTranspose(bool value);

    // [any] The window and the log.
    void postSetLastWindowPosition(const Rect& position);
    void postRemoveGuiWindowHandle();
    void postSetDockToBottomEdge(bool dock);
    void postSetDefaultBank(const std::string& path);
    void postSetMouseSensitivity(int sensitivity);
    void postSetDisplayHeight(int height);
    void postSetDisplayNumbers(bool numbers);
    void postSetLargeDisplayFont(bool large);
    void postSetDisplayMidiInputEvents(bool display);
    void postSetDisplayMidiOutputEvents(bool display);
    void postSetAlwaysOnTop(bool alwaysOnTop);
    void postSetUseSkinBorder(bool useSkinBorder);
    void postSetScreenState(const ScreenState& state);
    void postToggleSystemPanel();

    bool wantMessage(unsigned int message) override;
    void handleMessage(const MSG& message) override;
    void disposeMessage(const MSG& message) override;

private:
    MirelIF& m_mirel;
    Gui::MirelGuiIF* m_createdGui = nullptr;
};

}
