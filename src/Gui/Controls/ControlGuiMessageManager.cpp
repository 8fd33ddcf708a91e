#include "Gui/Controls/ControlGuiMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Gui/Controls/ControlPanel.h"

namespace Gui::Controls {

using namespace Backend;
using namespace Backend::Controls::WindowMessages;
using Backend::Controls::Control;
using Backend::Controls::ControlMap;
using Backend::Controls::UpdateFlags;

namespace {

void setControls(ControlPanel& panel, UpdateFlags, const std::vector<Control>& controls) {
    for (const Control& control : controls)
        panel.setControl(control);
    panel.getSettingsPanel().refresh();
}

void setControlMap(ControlPanel& panel, const ControlMap& controls) {
    panel.setControlMap(controls);
    panel.getSettingsPanel().refresh();
}

// Of the column, the low byte alone counts.
Control* findControl(ControlPanel& panel, const Cell& cell) {
    constexpr int BYTE = 0xff;
    return panel.getControlMap().find(Cell(cell.getRow(), cell.getColumn() & BYTE));
}

void setValue(ControlPanel& panel, const Cell& cell, std::int32_t value) {
    if (Control* const control = findControl(panel, cell))
        control->value = value;
}

void setSelected(ControlPanel& panel, const Cell& cell, bool selected) {
    if (Control* const control = findControl(panel, cell))
        control->selected = selected;
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(CONTROLS_CHANGED, &setControls),
    on(ALL_CONTROLS_CHANGED, &setControlMap),
    on(VALUE_CHANGED, &setValue),
    on(SELECTED_CHANGED, &setSelected),
    on(SET_FOCUS, IGNORED));
// clang-format on

}

bool ControlGuiMessageManager::wantMessage(unsigned int message) {
    return CONTROL_GUI_RANGE.contains(message);
}

void ControlGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    ROWS.handle(m_panel, message, wParam, lParam);
}

}
