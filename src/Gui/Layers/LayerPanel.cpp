#include "Gui/Layers/LayerPanel.h"

#include "Backend/core/MirelIF.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Gui/MirelGuiIF.h"

#include <numeric>
#include <utility>

namespace Gui::Layers {

using Backend::Layers::Layer;
using Backend::Layers::LayerId;

LayerPanel::LayerPanel(MirelGuiIF& gui)
    : SkinPanel(gui),
      m_layers(gui.getMirelIF().getLayers().getLayerList()),
      m_presetNames(gui.getMirelIF().getLayers().getPresets().getNames()),
      m_mainPanel(gui),
      m_settingsPanel(gui) {
    forgetMarks();
}

void LayerPanel::setupPanels() {
    add(&m_mainPanel);
    add(&m_settingsPanel);
}

void LayerPanel::forgetMarks() {
    std::vector<std::int32_t> places(m_layers.size());
    std::iota(places.begin(), places.end(), 0);
    m_selection.setItems(std::move(places));
}

void LayerPanel::setLayers(const std::vector<Layer>& layers) {
    for (const Layer& layer : layers)
        if (Layer* const present = m_layers.find(LayerId{layer.id}))
            *present = layer;
    m_mainPanel.refreshRows();
    m_settingsPanel.refresh();
}

void LayerPanel::setLayerList(const Backend::Layers::LayerList& layers) {
    m_layers = layers;
    forgetMarks();
    m_mainPanel.refreshTempo();
    m_mainPanel.refreshRows();
    m_settingsPanel.refresh();
}

void LayerPanel::setSelected(std::int32_t id, bool selected) {
    Layer* const layer = m_layers.find(LayerId{id});
    if (!layer)
        return;
    layer->selected = selected;
    m_selection.setSelected(id, selected, SelectionKind::DATA);
    m_lastSelected = id;
    m_mainPanel.refreshRows();
}

template <class Value>
void LayerPanel::setField(std::int32_t id, Value Layer::*field, const Value& value) {
    Layer* const layer = m_layers.find(LayerId{id});
    if (!layer)
        return;
    layer->*field = value;
    m_mainPanel.refreshRows();
    m_settingsPanel.refresh();
}

void LayerPanel::setTranspose(std::int32_t id, const RelativeFixedValue& transpose) {
    setField(id, &Layer::transpose, transpose);
}

void LayerPanel::setVelocity(std::int32_t id, const RelativeFixedValue& velocity) {
    setField(id, &Layer::velocity, velocity);
}

void LayerPanel::setMono(std::int32_t id, bool mono) {
    setField(id, &Layer::mono, mono);
}

void LayerPanel::setToggle(std::int32_t id, const NoteToggle& toggle) {
    setField(id, &Layer::toggle, toggle);
}

// Functions can change these two as fast as notes come, so only the one button is painted.
void LayerPanel::setButton(std::int32_t id, bool Layer::*button, bool state) {
    Layer* const layer = m_layers.find(LayerId{id});
    if (!layer)
        return;
    layer->*button = state;
    m_mainPanel.refreshBox(id);
}

void LayerPanel::setMute(std::int32_t id, bool mute) {
    setButton(id, &Layer::mute, mute);
}

void LayerPanel::setSolo(std::int32_t id, bool solo) {
    setButton(id, &Layer::solo, solo);
}

void LayerPanel::editSelect(const SelectType& type) {
    std::int64_t target = -1;
    switch (type.getMode()) {
        case SelectType::UP: target = std::int64_t{m_lastSelected} + 1; break;
        case SelectType::DOWN: target = std::int64_t{m_lastSelected} - 1; break;
        case SelectType::SPECIFIC: target = type.getValue(); break;
        default: return;
    }
    if (target < 0 || target >= static_cast<std::int64_t>(m_layers.size()))
        return;
    m_selection.setSelected(m_lastSelected, false, SelectionKind::EDIT);
    m_lastSelected = static_cast<std::int32_t>(target);
    m_selection.setSelected(m_lastSelected, true, SelectionKind::EDIT);
    m_mainPanel.refreshRows();
    m_settingsPanel.refresh();
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

}
