#include "Gui/Controls/ControlGuiMessageManager.h"

#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Gui/Controls/ControlPanel.h"

namespace Gui::Controls {

using namespace Backend;
using namespace Backend::Controls::WindowMessages;
using Backend::Controls::Control;

bool ControlGuiMessageManager::wantMessage(unsigned int message) {
    return CONTROL_GUI_RANGE.contains(message);
}

void ControlGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    const auto find = [this, wParam] {
        constexpr int BYTE = 0xff;
        return m_panel.getControlMap().find(Cell(static_cast<int>(wParam >> 16), static_cast<int>(wParam & BYTE)));
    };
    switch (message) {
        case CONTROLS_CHANGED:
            if (const auto controls = takePayload<std::vector<Control>>(lParam))
                for (const Control& control : *controls)
                    m_panel.setControl(control);
            m_panel.getSettingsPanel().refresh();
            break;
        case ALL_CONTROLS_CHANGED:
            if (const auto controls = takePayload<Backend::Controls::ControlMap>(lParam))
                m_panel.setControlMap(*controls);
            m_panel.getSettingsPanel().refresh();
            break;
        case VALUE_CHANGED:
            if (Control* const control = find())
                control->value = static_cast<std::int32_t>(lParam);
            break;
        case SELECTED_CHANGED:
            if (Control* const control = find())
                control->selected = lParam != 0;
            break;
        default: break;
    }
}

}
