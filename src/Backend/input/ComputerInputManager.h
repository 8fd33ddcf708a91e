#pragma once

#include "Backend/core/files/PresetFolder.h"
#include "Backend/input/ComputerInputMessageManager.h"
#include "Backend/input/KeyConfigurationMap.h"

#include <ostream>
#include <string>
#include <vector>

namespace Backend {
class MessageManagerMaster;
class MirelIF;
class XmlElement;
}

namespace Backend::ComputerInput {

// The keys of the current program, and what a key event does. [backend]
class ComputerInputManager {
public:
    // The folder of its preset files, inside the desk's data folder.
    static constexpr const char* PRESET_FOLDER = "Computer Input Presets";

    ComputerInputManager(MirelIF& mirel, MessageManagerMaster& master);

    ComputerInputManager(const ComputerInputManager&) = delete;
    ComputerInputManager& operator=(const ComputerInputManager&) = delete;

    ComputerInputMessageManager& getMessageManager() { return m_messageManager; }
    const KeyConfigurationMap& getKeyConfigurations() const { return m_keyConfigurations; }
    const PresetFolder& getPresets() const { return m_presets; }

    // Whether a release looks up its key with the modifiers being held.
    bool getUseKeyUpMod() const { return m_useKeyUpMod; }
    void setUseKeyUpMod(bool useKeyUpMod) { m_useKeyUpMod = useKeyUpMod; }

    // The preset that was loaded last; empty if the keys came from elsewhere.
    const std::string& getCurrentPreset() const { return m_currentPreset; }

    // Loads the built-in keys.
    void loadDefaultMap();

    // Reads a program's ComputerInput element, which contains keys or names a preset.
    void readXml(const XmlElement& element);

    // Writes a ComputerInput element, indented by this many tabs: all keys, or the selected ones to be merged. Unless
    // writeKeys is set, keys that are still those of the current preset are written as its name.
    void writeXml(std::ostream& stream, int indent, const std::vector<Key>& selected, bool writeKeys) const;

    // Removes all keys.
    void clear();

    // A preset without a file changes nothing.
    void loadPreset(const std::string& name);
    void savePreset(const std::string& name, const std::vector<Key>& selected);
    void renamePreset(const std::string& oldName, const std::string& newName);
    void deletePreset(const std::string& name);

    // Reads a preset into other keys, changing nothing else.
    void readPreset(const std::string& name, KeyConfigurationMap& keys, bool& useKeyUpMod) const;

    // Stores each configuration under its key.
    void updateKeyConfigurations(const std::vector<KeyConfiguration>& configurations, bool notifyGui);

    // Run the functions of a key. On repeats, only those that keep sending run. No event reaches a key without a name.
    void handleKeyDown(const Key& key, bool isRepeat);
    void handleKeyUp(const Key& key);

    // The notes of all keys by zone.
    std::vector<Zones::Zone> getZoneRanges() const { return m_keyConfigurations.getZoneRanges(); }

private:
    void sendPresetNames();
    bool isChangedFromPreset(const std::string& name) const;
    void tellMapChanged();

    // Returns copies, because a function may replace the keys while it runs.
    std::vector<ButtonFunction> copyFunctions(const Key& key);

    MirelIF& m_mirel;
    KeyConfigurationMap m_keyConfigurations;
    bool m_useKeyUpMod = false;
    PresetFolder m_presets;
    ComputerInputMessageManager m_messageManager;
    std::string m_currentPreset;
};

}
