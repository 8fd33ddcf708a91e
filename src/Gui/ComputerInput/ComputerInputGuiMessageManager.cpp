#include "Gui/ComputerInput/ComputerInputGuiMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/input/ComputerInputMessages.h"
#include "Gui/ComputerInput/ComputerInputPanel.h"

namespace Gui::ComputerInput {

using namespace Backend;
using namespace Backend::ComputerInput::WindowMessages;

namespace {

void setAllKeys(ComputerInputPanel& panel, bool useKeyUpMod, const Backend::ComputerInput::KeyConfigurationMap& keys) {
    panel.setAllKeys(keys, useKeyUpMod);
}

void refreshPresets(ComputerInputPanel& panel) {
    panel.getSettingsPanel().refresh();
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(KEYS_CHANGED, &ComputerInputPanel::setKeys),
    on(ALL_KEYS_CHANGED, &setAllKeys),
    on(CONTROL_KEYS_CHANGED, &ComputerInputPanel::updateControlKeys),
    on(PRESET_FOLDER_CHANGED, &refreshPresets),
    on(PRESET_NAMES_CHANGED, &ComputerInputPanel::setPresetNames));
// clang-format on

}

bool ComputerInputGuiMessageManager::wantMessage(unsigned int message) {
    return COMPUTER_INPUT_GUI_RANGE.contains(message);
}

void ComputerInputGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    ROWS.handle(m_panel, message, wParam, lParam);
}

}
