#include "Gui/ComputerInput/ComputerInputGuiMessageManager.h"

#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/input/ComputerInputMessages.h"
#include "Gui/ComputerInput/ComputerInputPanel.h"

namespace Gui::ComputerInput {

using namespace Backend;
using namespace Backend::ComputerInput::WindowMessages;
using Backend::ComputerInput::KeyConfiguration;
using Backend::ComputerInput::KeyConfigurationMap;

bool ComputerInputGuiMessageManager::wantMessage(unsigned int message) {
    return COMPUTER_INPUT_GUI_RANGE.contains(message);
}

void ComputerInputGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case KEYS_CHANGED:
            if (const auto keys = takePayload<std::vector<KeyConfiguration>>(lParam))
                m_panel.setKeys(*keys);
            break;
        case ALL_KEYS_CHANGED:
            if (const auto keys = takePayload<KeyConfigurationMap>(lParam))
                m_panel.setAllKeys(*keys, wParam != 0);
            break;
        case CONTROL_KEYS_CHANGED: m_panel.updateControlKeys(); break;
        case PRESET_FOLDER_CHANGED: m_panel.getSettingsPanel().refresh(); break;
        default: break;
    }
}

}
