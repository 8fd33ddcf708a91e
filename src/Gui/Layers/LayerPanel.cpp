#include "Gui/Layers/LayerPanel.h"

#include "Backend/core/MirelIF.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Gui/MirelGuiIF.h"

namespace Gui::Layers {

using Backend::Layers::Layer;
using Backend::Layers::LayerId;

LayerPanel::LayerPanel(MirelGuiIF& gui)
    : SkinPanel(gui), m_layers(gui.getMirelIF().getLayers().getLayerList()), m_mainPanel(gui), m_settingsPanel(gui) {}

void LayerPanel::setupPanels() {
    add(&m_mainPanel);
    add(&m_settingsPanel);
}

void LayerPanel::setLayer(const Layer& layer) {
    if (Layer* const present = m_layers.find(LayerId{layer.id}))
        *present = layer;
}

void LayerPanel::addPreset(const std::string& name, bool selectedOnly) {
    std::vector<LayerId> ids;
    for (const Layer& layer : m_layers)
        if (!selectedOnly || layer.selected)
            ids.push_back({layer.id});
    gui().getMirelIF().getLayerMessageManager().postSavePreset(name, selectedOnly ? ids : std::vector<LayerId>());
}

void LayerPanel::editPreset(const std::string& oldName, const std::string& newName) {
    gui().getMirelIF().getLayerMessageManager().postRenamePreset(oldName, newName);
}

void LayerPanel::deletePreset(const std::string& name) {
    gui().getMirelIF().getLayerMessageManager().postDeletePreset(name);
}

std::vector<std::string> LayerPanel::getPresetNames() {
    std::vector<std::string> names;
    for (const auto& preset : gui().getMirelIF().getLayers().getPresets().getPresets())
        names.push_back(preset.name);
    return names;
}

}
