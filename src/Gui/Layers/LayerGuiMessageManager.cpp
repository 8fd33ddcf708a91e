#include "Gui/Layers/LayerGuiMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/managers/LayerMessages.h"
#include "Gui/Layers/LayerPanel.h"

namespace Gui::Layers {

using namespace Backend;
using namespace Backend::Layers::WindowMessages;

namespace {

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(LAYERS_CHANGED, &LayerPanel::setLayers),
    on(ALL_LAYERS_CHANGED, &LayerPanel::setLayerList),
    on(SELECTED_CHANGED, &LayerPanel::setSelected),
    on(EDIT_SELECT, &LayerPanel::editSelect),
    on(TRANSPOSE_CHANGED, &LayerPanel::setTranspose),
    on(VELOCITY_CHANGED, &LayerPanel::setVelocity),
    on(MUTE_CHANGED, &LayerPanel::setMute),
    on(MONO_CHANGED, &LayerPanel::setMono),
    on(SOLO_CHANGED, &LayerPanel::setSolo),
    on(TOGGLE_CHANGED, &LayerPanel::setToggle),
    on(PRESET_NAMES_CHANGED, &LayerPanel::setPresetNames));
// clang-format on

}

bool LayerGuiMessageManager::wantMessage(unsigned int message) {
    return LAYER_GUI_RANGE.contains(message);
}

void LayerGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    ROWS.handle(m_panel, message, wParam, lParam);
}

}
