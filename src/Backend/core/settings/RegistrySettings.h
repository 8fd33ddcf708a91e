#pragma once

#include "Backend/core/settings/Setting.h"
#include "Platform/SettingsStore.h"

#include <map>
#include <string>
#include <vector>

namespace Backend {

// Every setting that outlives a run. Setters store their argument unchecked. A copy is independent; each belongs to one
// thread.
class RegistrySettings {
public:
    // The store must outlive this object and its copies.
    explicit RegistrySettings(Platform::SettingsStore& store) : m_store(&store) {}

    // Takes over the values under a key, creating it if missing. Unreadable values stay as they are.
    void loadFromRegistry(const std::string& key);

    // Writes what was set since the load, and always the two lists of ports.
    void saveToRegistry(const std::string& key);

    // The folder of the program; the installer writes it.
    const std::string& getProgDir() const { return m_progDir.get(); }

    const std::string& getDefaultBank() const {
        return m_defaultBank.get();
    }  // The bank that the host opens at the start.
    void setDefaultBank(const std::string& value) { m_defaultBank.set(value); }
    bool getGlobalKeyboard() const { return m_globalKeyboard.get(); }  // Keys are caught while the window is unfocused.
    void setGlobalKeyboard(bool value) { m_globalKeyboard.set(value); }
    bool getMidiThru() const { return m_midiThru.get(); }  // Events from MIDI inputs reach the outputs.
    void setMidiThru(bool value) { m_midiThru.set(value); }
    bool isRetroRecordEnabled() const { return m_retroRecordEnabled.get(); }
    void setRetroRecordEnabled(bool value) { m_retroRecordEnabled.set(value); }
    int getRetroRecordBufferSize() const { return m_retroRecordBufferSize.get(); }
    void setRetroRecordBufferSize(int value) { m_retroRecordBufferSize.set(value); }
    const std::string& getMidiBufferDir() const { return m_midiBufferDir.get(); }
    void setMidiBufferDir(const std::string& value) { m_midiBufferDir.set(value); }
    bool getLargeDisplayFont() const { return m_largeDisplayFont.get(); }
    void setLargeDisplayFont(bool value) { m_largeDisplayFont.set(value); }
    int getMouseSensitivity() const { return m_mouseSensitivity.get(); }
    void setMouseSensitivity(int value) { m_mouseSensitivity.set(value); }
    bool getDockToBottomEdge() const { return m_dockToBottomEdge.get(); }
    void setDockToBottomEdge(bool value) { m_dockToBottomEdge.set(value); }
    bool getDisplayMidiInputEvents() const { return m_displayMidiInputEvents.get(); }
    void setDisplayMidiInputEvents(bool value) { m_displayMidiInputEvents.set(value); }
    bool getDisplayMidiOutputEvents() const { return m_displayMidiOutputEvents.get(); }
    void setDisplayMidiOutputEvents(bool value) { m_displayMidiOutputEvents.set(value); }
    bool getDisplayNumbers() const { return m_displayNumbers.get(); }
    void setDisplayNumbers(bool value) { m_displayNumbers.set(value); }
    int getDisplayHeight() const { return m_displayHeight.get(); }  // In pixels.
    void setDisplayHeight(int value) { m_displayHeight.set(value); }
    const Rect& getLastWindowPosition() const { return m_lastWindowPosition.get(); }  // All -1: unknown.
    void setLastWindowPosition(const Rect& value) { m_lastWindowPosition.set(value); }
    bool getAlwaysOnTop() const { return m_alwaysOnTop.get(); }
    void setAlwaysOnTop(bool value) { m_alwaysOnTop.set(value); }
    bool getUseSkinBorder() const { return m_useSkinBorder.get(); }
    void setUseSkinBorder(bool value) { m_useSkinBorder.set(value); }
    int getDefaultMidiOutput() const { return m_defaultMidiOutput.get(); }  // An index from 0, or -1 for none.
    void setDefaultMidiOutput(int value) { m_defaultMidiOutput.set(value); }
    int getLiteVelocity() const { return m_liteVelocity.get(); }
    void setLiteVelocity(int value) { m_liteVelocity.set(value); }
    int getLiteChannel() const { return m_liteChannel.get(); }  // From 0.
    void setLiteChannel(int value) { m_liteChannel.set(value); }
    bool getLiteStackNotes() const { return m_liteStackNotes.get(); }
    void setLiteStackNotes(bool value) { m_liteStackNotes.set(value); }
    bool getClickZoneChannelTranspose() const { return m_clickZoneChannelTranspose.get(); }
    void setClickZoneChannelTranspose(bool value) { m_clickZoneChannelTranspose.set(value); }

    // Which ports are enabled, by their index.
    std::vector<bool> getEnabledMidiInputs() const { return m_enabledMidiInputs; }
    std::vector<bool> getEnabledMidiOutputs() const { return m_enabledMidiOutputs; }

    // Every value by its name, as text.
    std::map<std::string, std::string> describe() const;

    // Also makes the list end with this index, from 0. Ignores a negative index and one of 65,536 or more.
    void setMidiInputEnabled(int index, bool enabled);
    void setMidiOutputEnabled(int index, bool enabled);

    // One "Y" or "N" per flag. Reading also accepts "y", and takes anything else as no.
    static std::vector<bool> getBoolVectorFromString(const std::string& text);
    static std::string getStringFromBoolVector(const std::vector<bool>& flags);

private:
    // Everything that is written, in the order in which it is stored.
    template <typename Self, typename Visitor>
    static void visitSettings(Self& self, Visitor visit) {
        visit(self.m_defaultBank);
        visit(self.m_globalKeyboard);
        visit(self.m_midiThru);
        visit(self.m_retroRecordEnabled);
        visit(self.m_retroRecordBufferSize);
        visit(self.m_midiBufferDir);
        visit(self.m_largeDisplayFont);
        visit(self.m_mouseSensitivity);
        visit(self.m_dockToBottomEdge);
        visit(self.m_displayMidiInputEvents);
        visit(self.m_displayMidiOutputEvents);
        visit(self.m_displayNumbers);
        visit(self.m_displayHeight);
        visit(self.m_lastWindowPosition);
        visit(self.m_enabledMidiInputsText);
        visit(self.m_enabledMidiOutputsText);
        visit(self.m_alwaysOnTop);
        visit(self.m_useSkinBorder);
        visit(self.m_defaultMidiOutput);
        visit(self.m_liteVelocity);
        visit(self.m_liteChannel);
        visit(self.m_liteStackNotes);
        visit(self.m_clickZoneChannelTranspose);
    }

    Platform::SettingsStore* m_store;
    StringSetting m_progDir{"ProgDir", std::string()};
    StringSetting m_defaultBank{"DefaultBank", std::string()};
    BoolSetting m_globalKeyboard{"GlobalKeyboard", false};
    BoolSetting m_midiThru{"MidiThru", true};
    BoolSetting m_retroRecordEnabled{"RetroRecordEnabled", false};
    IntSetting m_retroRecordBufferSize{"MaxMidiBufferFileSize", 100000};
    StringSetting m_midiBufferDir{"MidiBufferDir", std::string()};
    BoolSetting m_largeDisplayFont{"LargeDisplayFont", false};
    IntSetting m_mouseSensitivity{"MouseSensitivity", 1};
    BoolSetting m_dockToBottomEdge{"DockToBottomEdge", false};
    BoolSetting m_displayMidiInputEvents{"DisplayMidiInputEvents", false};
    BoolSetting m_displayMidiOutputEvents{"DisplayMidiOutputEvents", true};
    BoolSetting m_displayNumbers{"DisplayNumbers", false};
    IntSetting m_displayHeight{"DisplayHeight", 200};
    RectSetting m_lastWindowPosition{"LastWindowPosition", Rect{-1, -1, -1, -1}};
    StringSetting m_enabledMidiInputsText{"EnabledMidiInputs", std::string()};
    StringSetting m_enabledMidiOutputsText{"EnabledMidiOutputs", std::string()};
    BoolSetting m_alwaysOnTop{"AlwaysOnTop", false};
    BoolSetting m_useSkinBorder{"UseSkinBorder", true};
    IntSetting m_defaultMidiOutput{"DefaultMidiOutput", -1};
    IntSetting m_liteVelocity{"LiteVelocity", 100};
    IntSetting m_liteChannel{"LiteChannel", 0};
    BoolSetting m_liteStackNotes{"LiteStackNotes", true};
    BoolSetting m_clickZoneChannelTranspose{"ClickZoneChannelTranspose", false};
    std::vector<bool> m_enabledMidiInputs;
    std::vector<bool> m_enabledMidiOutputs;
};

}
