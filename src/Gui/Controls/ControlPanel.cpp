#include "Gui/Controls/ControlPanel.h"

#include "Backend/core/MirelIF.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/input/controls/ControlManager.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/selection/ControlFocus.h"

#include <utility>

namespace Gui::Controls {

using Backend::Controls::Control;
using Backend::Controls::ControlType;

ControlPanel::ControlPanel(MirelGuiIF& gui)
    : SkinPanel(gui),
      m_controls(gui.getMirelIF().getControls().getControlMap()),
      m_presetNames(gui.getMirelIF().getControls().getPresets().getNames()),
      m_mainPanel(gui),
      m_settingsPanel(gui) {}

void ControlPanel::setupPanels() {
    add(&m_mainPanel);
    add(&m_settingsPanel);
}

ControlPanel::Grid::Grid(ControlPanel& panel) : m_panel(panel) {
    constexpr int GRID_SIZE = 16;
    std::vector<Cell> cells;
    for (int row = 0; row < GRID_SIZE; ++row)
        for (int column = 0; column < GRID_SIZE; ++column)
            cells.emplace_back(row, column);
    setItems(std::move(cells));
}

bool ControlPanel::Grid::canSelect(const Cell& cell, SelectionKind kind) const {
    return kind == SelectionKind::EDIT || m_panel.m_controls.find(cell);
}

void ControlPanel::setControls(const std::vector<Control>& controls) {
    for (const Control& control : controls) {
        if (control.type == ControlType()) {
            m_selection.setSelected(control.cell, false, SelectionKind::DATA);
            m_controls.remove(control.cell);
        } else {
            m_controls.set(control);
        }
    }
    m_mainPanel.refreshGrid();
    m_settingsPanel.refresh();
}

void ControlPanel::setControlMap(const Backend::Controls::ControlMap& controls) {
    m_controls = controls;
    for (const SelectionKind kind : {SelectionKind::EDIT, SelectionKind::DATA})
        m_selection.selectAll(false, kind);
    m_anchor = m_focusCell = Cell();
    m_mainPanel.refreshGrid();
    m_settingsPanel.refresh();
}

void ControlPanel::setValue(const Cell& cell, std::int32_t value) {
    Control* const control = m_controls.find(cell);
    if (!control)
        return;
    control->value = value;
    m_mainPanel.refreshGrid();
}

void ControlPanel::setSelected(const Cell& cell, bool selected) {
    Control* const control = m_controls.find(cell);
    if (!control)
        return;
    control->selected = selected;
    m_selection.selectOnly(cell, true, SelectionKind::DATA);
    m_anchor = cell;
    m_mainPanel.refreshGrid();
}

std::optional<Cell> ControlPanel::findFocus(const SelectControlType& type) {
    switch (type.getMode()) {
        case SelectControlType::SELECTED: return m_selection.firstSelected(SelectionKind::DATA);
        case SelectControlType::SPECIFIC: return type.getCell();
        default:
            return findFocusCell(m_focusCell, type.getMode(),
                                 [this](const Cell& cell) { return m_controls.find(cell) != nullptr; });
    }
}

void ControlPanel::setFocus(const SelectControlType& type) {
    const auto cell = findFocus(type);
    if (cell && m_controls.find(*cell))
        m_focusCell = *cell;
}

void ControlPanel::addPreset(const std::string& name, bool selectedOnly) {
    std::vector<Cell> cells;
    for (const Control* control : m_controls.inOrder())
        if (selectedOnly && control->selected)
            cells.push_back(control->cell);
    gui().getMirelIF().getControlMessageManager().postSavePreset(name, cells);
}

void ControlPanel::editPreset(const std::string& oldName, const std::string& newName) {
    gui().getMirelIF().getControlMessageManager().postRenamePreset(oldName, newName);
}

void ControlPanel::deletePreset(const std::string& name) {
    gui().getMirelIF().getControlMessageManager().postDeletePreset(name);
}

}
