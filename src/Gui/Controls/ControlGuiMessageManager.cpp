#include "Gui/Controls/ControlGuiMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Gui/Controls/ControlPanel.h"

namespace Gui::Controls {

using namespace Backend;
using namespace Backend::Controls::WindowMessages;
using Backend::Controls::Control;
using Backend::Controls::UpdateFlags;

namespace {

void setControls(ControlPanel& panel, UpdateFlags, const std::vector<Control>& controls) {
    panel.setControls(controls);
}

// Only the low byte of the column counts.
Cell withColumnByte(const Cell& cell) {
    constexpr int BYTE = 0xff;
    return {cell.getRow(), cell.getColumn() & BYTE};
}

void setValue(ControlPanel& panel, const Cell& cell, std::int32_t value) {
    panel.setValue(withColumnByte(cell), value);
}

void setSelected(ControlPanel& panel, const Cell& cell, bool selected) {
    panel.setSelected(withColumnByte(cell), selected);
}

void setFocus(ControlPanel& panel, SelectControlType::Mode mode, const Cell& cell) {
    panel.setFocus(SelectControlType(mode, withColumnByte(cell)));
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(CONTROLS_CHANGED, &setControls),
    on(ALL_CONTROLS_CHANGED, &ControlPanel::setControlMap),
    on(VALUE_CHANGED, &setValue),
    on(SELECTED_CHANGED, &setSelected),
    on(SET_FOCUS, &setFocus),
    on(PRESET_NAMES_CHANGED, &ControlPanel::setPresetNames));
// clang-format on

}

bool ControlGuiMessageManager::wantMessage(unsigned int message) {
    return CONTROL_GUI_RANGE.contains(message);
}

void ControlGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    ROWS.handle(m_panel, message, wParam, lParam);
}

}
