#pragma once

#include "Backend/input/controls/ControlMap.h"
#include "Gui/Controls/ControlGuiMessageManager.h"
#include "Gui/Controls/MainPanel.h"
#include "Gui/Controls/SettingsPanel.h"
#include "Gui/Preset/PresetGuiOwner.h"
#include "Gui/Utils/SkinPanel.h"

namespace Gui::Controls {

// The faders, knobs, edit boxes and labels of the program. [gui]
class ControlPanel : public SkinPanel, public Preset::PresetGuiOwner {
public:
    // [backend] Takes a copy of the controls.
    explicit ControlPanel(MirelGuiIF& gui);

    // Adds the sub-panels. Once, when the window is there.
    void setupPanels();

    MainPanel& getMainPanel() { return m_mainPanel; }
    SettingsPanel& getSettingsPanel() { return m_settingsPanel; }
    ControlGuiMessageManager& getMessageManager() { return m_messageManager; }

    // The controls, as the desk last told them.
    Backend::Controls::ControlMap& getControlMap() { return m_controls; }
    void setControlMap(Backend::Controls::ControlMap controls) { m_controls = std::move(controls); }

    // One without a type empties its cell.
    void setControl(const Backend::Controls::Control& control);

    void addPreset(const std::string& name, bool selectedOnly) override;
    void editPreset(const std::string& oldName, const std::string& newName) override;
    void deletePreset(const std::string& name) override;
    std::vector<std::string> getPresetNames() override;

private:
    Backend::Controls::ControlMap m_controls;
    ControlGuiMessageManager m_messageManager{*this};
    MainPanel m_mainPanel;
    SettingsPanel m_settingsPanel;
};

}
