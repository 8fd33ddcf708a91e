#include "Backend/midi/managers/LayerMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Backend/midi/managers/LayerMessages.h"

namespace Backend::Layers {

using namespace Messages;

namespace {

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(UPDATE_LAYERS, &LayerManager::updateLayers),
    on(Messages::SET_LAYER_LIST, &LayerManager::setLayerList),
    on(LOAD_PRESET, &LayerManager::loadPreset),
    on(RENAME_PRESET, &LayerManager::renamePreset),
    on(DELETE_PRESET, &LayerManager::deletePreset),
    on(SAVE_PRESET, &LayerManager::savePreset),
    on(SELECT_LAYERS, &LayerManager::selectLayers));
// clang-format on

}

LayerMessageManager::LayerMessageManager(MessageManagerMaster& master, LayerManager& layers)
    : MessageManager(master), m_layers(layers) {}

void LayerMessageManager::postUpdateLayers(const std::vector<Layer>& layers, bool notifyGui) {
    post(UPDATE_LAYERS, layers, notifyGui);
}

void LayerMessageManager::postSetLayerList(const LayerList& layers, bool notifyGui) {
    post(Messages::SET_LAYER_LIST, layers, notifyGui);
}

void LayerMessageManager::postLoadPreset(const std::string& name) {
    post(LOAD_PRESET, name);
}

void LayerMessageManager::postRenamePreset(const std::string& oldName, const std::string& newName) {
    post(RENAME_PRESET, oldName, newName);
}

void LayerMessageManager::postDeletePreset(const std::string& name) {
    post(DELETE_PRESET, name);
}

void LayerMessageManager::postSavePreset(const std::string& name, const std::vector<LayerId>& selected) {
    post(SAVE_PRESET, name, selected);
}

void LayerMessageManager::postSelectLayers(const std::vector<LayerId>& ids) {
    post(SELECT_LAYERS, ids);
}

bool LayerMessageManager::wantMessage(unsigned int message) {
    return LAYER_RANGE.contains(message);
}

void LayerMessageManager::handleMessage(const MSG& message) {
    ROWS.handle(m_layers, message);
}

void LayerMessageManager::disposeMessage(const MSG& message) {
    FAMILY.dispose(message);
}

}
