#include "Gui/Controls/ControlPanel.h"

#include "Backend/core/MirelIF.h"
#include "Backend/input/controls/ControlManager.h"
#include "Gui/MirelGuiIF.h"

namespace Gui::Controls {

using Backend::Controls::Control;
using Backend::Controls::ControlType;

ControlPanel::ControlPanel(MirelGuiIF& gui)
    : SkinPanel(gui),
      m_controls(gui.getMirelIF().getControls().getControlMap()),
      m_mainPanel(gui),
      m_settingsPanel(gui) {}

void ControlPanel::setupPanels() {
    add(&m_mainPanel);
    add(&m_settingsPanel);
}

void ControlPanel::setControl(const Control& control) {
    if (control.type == ControlType())
        m_controls.remove(control.cell);
    else
        m_controls.set(control);
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

std::vector<std::string> ControlPanel::getPresetNames() {
    std::vector<std::string> names;
    for (const auto& preset : gui().getMirelIF().getControls().getPresets().getPresets())
        names.push_back(preset.name);
    return names;
}

}
