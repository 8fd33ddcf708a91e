#include "Gui/Layers/LayerGuiMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/managers/LayerMessages.h"
#include "Gui/Layers/LayerPanel.h"

namespace Gui::Layers {

using namespace Backend;
using namespace Backend::Layers::WindowMessages;
using Backend::Layers::Layer;

namespace {

void setLayers(LayerPanel& panel, const std::vector<Layer>& layers) {
    for (const Layer& layer : layers)
        panel.setLayer(layer);
}

template <auto FIELD, class Value>
void setField(LayerPanel& panel, std::int32_t layerId, const Value& value) {
    if (Layer* const layer = panel.getLayerList().find({layerId}))
        layer->*FIELD = value;
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(LAYERS_CHANGED, &setLayers),
    on(ALL_LAYERS_CHANGED, &LayerPanel::setLayerList),
    on(SELECTED_CHANGED, &setField<&Layer::selected, bool>),
    on(EDIT_SELECT, IGNORED),
    on(TRANSPOSE_CHANGED, &setField<&Layer::transpose, RelativeFixedValue>),
    on(VELOCITY_CHANGED, &setField<&Layer::velocity, RelativeFixedValue>),
    on(MUTE_CHANGED, &setField<&Layer::mute, bool>),
    on(MONO_CHANGED, &setField<&Layer::mono, bool>),
    on(SOLO_CHANGED, &setField<&Layer::solo, bool>),
    on(TOGGLE_CHANGED, &setField<&Layer::toggle, NoteToggle>));
// clang-format on

}

bool LayerGuiMessageManager::wantMessage(unsigned int message) {
    return LAYER_GUI_RANGE.contains(message);
}

void LayerGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    ROWS.handle(m_panel, message, wParam, lParam);
}

}
