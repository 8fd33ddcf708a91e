#pragma once

#include "Backend/input/controls/ControlMap.h"
#include "Gui/Controls/ControlGuiMessageManager.h"
#include "Gui/Controls/MainPanel.h"
#include "Gui/Controls/SettingsPanel.h"
#include "Gui/Preset/PresetGuiOwner.h"
#include "Gui/Rules/selection/OrderedSelection.h"
#include "Gui/Utils/SkinPanel.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class SelectControlType;

namespace Gui::Controls {

// The faders, knobs, edit boxes and labels of the program. [gui]
class ControlPanel : public SkinPanel, public Preset::PresetGuiOwner {
public:
    // [backend] Takes a copy of the controls.
    explicit ControlPanel(MirelGuiIF& gui);

    // Adds the sub-panels. Call it once, when the window exists.
    void setupPanels();

    MainPanel& getMainPanel() { return m_mainPanel; }
    SettingsPanel& getSettingsPanel() { return m_settingsPanel; }
    ControlGuiMessageManager& getMessageManager() { return m_messageManager; }

    // The copy of the desk's controls, and what is marked in the grid on the screen. Only cells with a control carry
    // marks of the kind DATA.
    Backend::Controls::ControlMap& getControlMap() { return m_controls; }
    Selection<Cell>& getSelection() { return m_selection; }

    // The control that the desk selected last, where ranges begin; a cell outside the grid if there is none.
    const Cell& getAnchor() const { return m_anchor; }

    // The control of the grid that has the focus; a cell outside the grid if none has.
    const Cell& getFocusCell() const { return m_focusCell; }

    // Take over the desk's changes, and repaint what shows them. A cell without a control is ignored.
    void setControls(const std::vector<Backend::Controls::Control>& controls);  // One without a type empties its cell.
    void setControlMap(const Backend::Controls::ControlMap& controls);          // Takes all marks away.
    void setValue(const Cell& cell, std::int32_t value);

    // Makes this control the only marked one, whatever selected is.
    void setSelected(const Cell& cell, bool selected);

    // Moves the focus to the next control in a direction, to the first marked one, or to the one in a cell.
    void setFocus(const SelectControlType& type);

    void setPresetNames(const std::vector<std::string>& names) { m_presetNames = names; }

    void addPreset(const std::string& name, bool selectedOnly) override;
    void editPreset(const std::string& oldName, const std::string& newName) override;
    void deletePreset(const std::string& name) override;
    std::vector<std::string> getPresetNames() override { return m_presetNames; }

private:
    // The marks of the cells, row by row.
    class Grid : public OrderedSelection<Cell> {
    public:
        explicit Grid(ControlPanel& panel);

    private:
        bool canSelect(const Cell& cell, SelectionKind kind) const override;

        ControlPanel& m_panel;
    };

    std::optional<Cell> findFocus(const SelectControlType& type);

    Backend::Controls::ControlMap m_controls;
    std::vector<std::string> m_presetNames;
    Grid m_selection{*this};
    Cell m_anchor;
    Cell m_focusCell;
    ControlGuiMessageManager m_messageManager{*this};
    MainPanel m_mainPanel;
    SettingsPanel m_settingsPanel;
};

}
