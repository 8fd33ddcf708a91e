#include "Gui/Layers/LayerGuiMessageManager.h"

#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/managers/LayerMessages.h"
#include "Gui/Layers/LayerPanel.h"

namespace Gui::Layers {

using namespace Backend;
using namespace Backend::Layers::WindowMessages;
using Backend::Layers::Layer;

bool LayerGuiMessageManager::wantMessage(unsigned int message) {
    return LAYER_GUI_RANGE.contains(message);
}

void LayerGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    Layer* const layer = m_panel.getLayerList().find({static_cast<std::int32_t>(wParam)});
    const auto setFlag = [layer, lParam](bool Layer::*flag) {
        if (layer)
            layer->*flag = lParam != 0;
    };
    const auto setAmount = [layer, lParam](RelativeFixedValue Layer::*amount) {
        const auto value = takePayload<RelativeFixedValue>(lParam);
        if (layer && value)
            layer->*amount = *value;
    };
    switch (message) {
        case LAYERS_CHANGED:
            if (const auto layers = takePayload<std::vector<Layer>>(lParam))
                for (const Layer& changed : *layers)
                    m_panel.setLayer(changed);
            break;
        case ALL_LAYERS_CHANGED:
            if (const auto layers = takePayload<Backend::Layers::LayerList>(lParam))
                m_panel.setLayerList(*layers);
            break;
        case SELECTED_CHANGED: setFlag(&Layer::selected); break;
        case EDIT_SELECT: takePayload<SelectType>(lParam); break;
        case TRANSPOSE_CHANGED: setAmount(&Layer::transpose); break;
        case VELOCITY_CHANGED: setAmount(&Layer::velocity); break;
        case MUTE_CHANGED: setFlag(&Layer::mute); break;
        case MONO_CHANGED: setFlag(&Layer::mono); break;
        case SOLO_CHANGED: setFlag(&Layer::solo); break;
        case TOGGLE_CHANGED:
            if (layer)
                layer->toggle = NoteToggle(static_cast<NoteToggle::State>(lParam));
            break;
        default: break;
    }
}

}
