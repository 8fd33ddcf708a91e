#include "Backend/midi/managers/LayerMessageManager.h"

#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Backend/midi/managers/LayerMessages.h"

namespace Backend::Layers {

using namespace Messages;

LayerMessageManager::LayerMessageManager(MessageManagerMaster& master, LayerManager& layers)
    : MessageManager(master), m_layers(layers) {}

void LayerMessageManager::postUpdateLayers(const std::vector<Layer>& layers, bool notifyGui) {
    m_master.postMessage(UPDATE_LAYERS, releaseCopy<WPARAM>(layers), notifyGui);
}

void LayerMessageManager::postSetLayerList(const LayerList& layers, bool notifyGui) {
    m_master.postMessage(Messages::SET_LAYER_LIST, releaseCopy<WPARAM>(layers), notifyGui);
}

void LayerMessageManager::postLoadPreset(const std::string& name) {
    m_master.postMessage(LOAD_PRESET, 0, releaseCopy<LPARAM>(name));
}

void LayerMessageManager::postRenamePreset(const std::string& oldName, const std::string& newName) {
    m_master.postMessage(RENAME_PRESET, releaseCopy<WPARAM>(oldName), releaseCopy<LPARAM>(newName));
}

void LayerMessageManager::postDeletePreset(const std::string& name) {
    m_master.postMessage(DELETE_PRESET, 0, releaseCopy<LPARAM>(name));
}

void LayerMessageManager::postSavePreset(const std::string& name, const std::vector<LayerId>& selected) {
    m_master.postMessage(SAVE_PRESET, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(selected));
}

void LayerMessageManager::postSelectLayers(const std::vector<LayerId>& ids) {
    m_master.postMessage(SELECT_LAYERS, releaseCopy<WPARAM>(ids), 0);
}

bool LayerMessageManager::wantMessage(unsigned int message) {
    return LAYER_RANGE.contains(message);
}

void LayerMessageManager::handleMessage(const MSG& message) {
    const auto takeText = [](auto word) { return *takePayload<std::string>(word); };
    switch (message.message) {
        case UPDATE_LAYERS:
            m_layers.updateLayers(*takePayload<std::vector<Layer>>(message.wParam), message.lParam != 0);
            break;
        case Messages::SET_LAYER_LIST:
            m_layers.setLayerList(*takePayload<LayerList>(message.wParam), message.lParam != 0);
            break;
        case LOAD_PRESET: m_layers.loadPreset(takeText(message.lParam)); break;
        case RENAME_PRESET: m_layers.renamePreset(takeText(message.wParam), takeText(message.lParam)); break;
        case DELETE_PRESET: m_layers.deletePreset(takeText(message.lParam)); break;
        case SAVE_PRESET:
            m_layers.savePreset(takeText(message.wParam), *takePayload<std::vector<LayerId>>(message.lParam));
            break;
        case SELECT_LAYERS: m_layers.selectLayers(*takePayload<std::vector<LayerId>>(message.wParam)); break;
        default: break;
    }
}

void LayerMessageManager::disposeMessage(const MSG& message) {
    switch (message.message) {
        case UPDATE_LAYERS: takePayload<std::vector<Layer>>(message.wParam); break;
        case Messages::SET_LAYER_LIST: takePayload<LayerList>(message.wParam); break;
        case LOAD_PRESET:
        case DELETE_PRESET: takePayload<std::string>(message.lParam); break;
        case RENAME_PRESET:
            takePayload<std::string>(message.wParam);
            takePayload<std::string>(message.lParam);
            break;
        case SAVE_PRESET:
            takePayload<std::string>(message.wParam);
            takePayload<std::vector<LayerId>>(message.lParam);
            break;
        case SELECT_LAYERS: takePayload<std::vector<LayerId>>(message.wParam); break;
        default: break;
    }
}

}
