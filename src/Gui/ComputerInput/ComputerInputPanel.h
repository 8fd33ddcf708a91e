#pragma once

#include "Backend/input/KeyConfigurationMap.h"
#include "Gui/ComputerInput/ComputerInputGuiMessageManager.h"
#include "Gui/ComputerInput/MainPanel.h"
#include "Gui/ComputerInput/SettingsPanel.h"
#include "Gui/Preset/PresetGuiOwner.h"
#include "Gui/Utils/SkinPanel.h"

#include <string>
#include <vector>

namespace Gui::ComputerInput {

// The keys of the computer's keyboard and what they do. Also sets which keys the global keyboard takes. [gui]
class ComputerInputPanel : public SkinPanel, public Preset::PresetGuiOwner {
public:
    // [backend] Takes a copy of the keys.
    explicit ComputerInputPanel(MirelGuiIF& gui);

    // Adds the sub-panels. Call it once, when the window exists.
    void setupPanels();

    // Shows the keys and hands them to the global keyboard.
    void load();

    MainPanel& getMainPanel() { return m_mainPanel; }
    SettingsPanel& getSettingsPanel() { return m_settingsPanel; }
    ComputerInputGuiMessageManager& getMessageManager() { return m_messageManager; }

    // The keys, as the desk last sent them, and whether a release looks its key up with its modifiers.
    const Backend::ComputerInput::KeyConfigurationMap& getKeyConfigurations() const { return m_keys; }
    bool getUseKeyUpMod() const { return m_useKeyUpMod; }
    void setKeys(const std::vector<Backend::ComputerInput::KeyConfiguration>& keys);
    void setAllKeys(Backend::ComputerInput::KeyConfigurationMap keys, bool useKeyUpMod);

    // Sends the keys that switch the global keyboard to it again.
    void updateControlKeys();

    void addPreset(const std::string& name, bool selectedOnly) override;
    void editPreset(const std::string& oldName, const std::string& newName) override;
    void deletePreset(const std::string& name) override;
    std::vector<std::string> getPresetNames() override { return m_presetNames; }
    void setPresetNames(const std::vector<std::string>& names) { m_presetNames = names; }

private:
    void updateExcludedKeys();

    Backend::ComputerInput::KeyConfigurationMap m_keys;
    bool m_useKeyUpMod;
    std::vector<std::string> m_presetNames;
    ComputerInputGuiMessageManager m_messageManager{*this};
    MainPanel m_mainPanel;
    SettingsPanel m_settingsPanel;
};

}
