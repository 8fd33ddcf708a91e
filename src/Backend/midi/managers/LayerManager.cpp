#include "Backend/midi/managers/LayerManager.h"

#include "Backend/core/GuiPost.h"
#include "Backend/core/MirelIF.h"
#include "Backend/core/settings/RegistrySettings.h"
#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"
#include "Backend/midi/managers/LayerMessages.h"

#include <algorithm>

namespace Backend::Layers {

LayerManager::LayerManager(MirelIF& mirel, MessageManagerMaster& master,
                           const SequenceManagement::SequencePresetManager& sequences)
    : m_mirel(mirel), m_sequences(sequences), m_presets(PRESET_FOLDER), m_messageManager(master, *this) {}

void LayerManager::loadDefaultLayers() {
    const XmlDocument document(LayerList::DEFAULT_XML, false);
    m_layers.readXml(document.getRootElement(), m_sequences);
    RegistrySettings& settings = m_mirel.getRegistrySettings();
    Layer& first = *m_layers.begin();
    first.channel = Text::lowByte(settings.getLiteChannel());
    first.velocity = RelativeFixedValue(false, settings.getLiteVelocity());
    first.useNoteStack = settings.getLiteStackNotes();
    sendAll();
}

void LayerManager::readXml(const XmlElement& element) {
    m_layers.readXml(element, m_sequences);
    sendAll();
}

void LayerManager::writeXml(std::ostream& stream, int indent, const std::vector<LayerId>& selected) const {
    m_layers.writeXml(stream, indent, selected);
}

void LayerManager::clear() {
    m_layers.clear();
    sendAll();
}

void LayerManager::loadPreset(const std::string& name) {
    m_presets.load(name, [this](const XmlElement& element) { readXml(element); });
}

void LayerManager::savePreset(const std::string& name, const std::vector<LayerId>& selected) {
    m_presets.save(name, [&](std::ostream& stream) { writeXml(stream, 0, selected); });
    sendPresetNames();
}

void LayerManager::renamePreset(const std::string& oldName, const std::string& newName) {
    m_presets.renamePreset(oldName, newName);
    sendPresetNames();
}

void LayerManager::deletePreset(const std::string& name) {
    m_presets.deletePreset(name);
    sendPresetNames();
}

void LayerManager::sendPresetNames() {
    postToGui(m_mirel, WindowMessages::PRESET_NAMES_CHANGED, m_presets.getNames());
}

void LayerManager::updateLayers(const std::vector<Layer>& layers, bool notifyGui) {
    for (const Layer& layer : layers) {
        if (layer.id < 0 || layer.id >= MAX_LAYERS)
            continue;
        while (m_layers.size() <= static_cast<std::size_t>(layer.id))
            m_layers.add(Layer());
        *m_layers.find(LayerId{layer.id}) = layer;
    }
    sendToEngine();
    if (notifyGui)
        postToGui(m_mirel, WindowMessages::LAYERS_CHANGED, layers);
}

void LayerManager::setLayerList(const LayerList& layers, bool notifyGui) {
    m_layers = layers;
    sendToEngine();
    if (notifyGui)
        postToGui(m_mirel, WindowMessages::ALL_LAYERS_CHANGED, m_layers);
}

void LayerManager::selectLayers(const std::vector<LayerId>& ids) {
    for (Layer& layer : m_layers)
        layer.selected = std::find(ids.begin(), ids.end(), LayerId{layer.id}) != ids.end();
}

void LayerManager::setFirstVelocity(int velocity) {
    changeFirst([velocity](Layer& layer) { layer.velocity = RelativeFixedValue(false, velocity); });
}

void LayerManager::setFirstChannel(int channel) {
    changeFirst([channel](Layer& layer) { layer.channel = Text::lowByte(channel); });
}

void LayerManager::setFirstUseNoteStack(bool useNoteStack) {
    changeFirst([useNoteStack](Layer& layer) { layer.useNoteStack = useNoteStack; });
}

void LayerManager::changeFirst(const std::function<void(Layer&)>& change) {
    if (m_layers.size() == 0)
        return;
    change(*m_layers.begin());
    sendToEngine();
}

void LayerManager::dataSelectLayer(const SelectType& type) {
    const auto current = std::find_if(m_layers.begin(), m_layers.end(), [](const Layer& l) { return l.selected; });
    const std::int64_t from = current == m_layers.end() ? -1 : current->id;
    std::int64_t to = -1;
    switch (type.getMode()) {
        case SelectType::UP: to = from + 1; break;
        case SelectType::DOWN: to = from - 1; break;
        case SelectType::SPECIFIC: to = type.getValue(); break;
        default: return;
    }
    if (to < 0 || to >= static_cast<std::int64_t>(m_layers.size()))
        return;
    if (current != m_layers.end())
        select(*current, false);
    select(*m_layers.find(LayerId{static_cast<std::int32_t>(to)}), true);
    sendToEngine();
}

void LayerManager::select(Layer& layer, bool selected) {
    layer.selected = selected;
    postToGui(m_mirel, WindowMessages::SELECTED_CHANGED, layer.id, selected);
}

void LayerManager::changeLayerTranspose(const SelectType& type, const RelativeFixedValue& value) {
    changeAmount(type, value, &Layer::transpose, WindowMessages::TRANSPOSE_CHANGED);
}

void LayerManager::changeLayerVelocity(const SelectType& type, const RelativeFixedValue& value) {
    changeAmount(type, value, &Layer::velocity, WindowMessages::VELOCITY_CHANGED);
}

void LayerManager::changeLayerMute(const SelectType& type, const OnOffToggle& value) {
    changeFlag(type, value, &Layer::mute, WindowMessages::MUTE_CHANGED);
}

void LayerManager::changeLayerMono(const SelectType& type, const OnOffToggle& value) {
    changeFlag(type, value, &Layer::mono, WindowMessages::MONO_CHANGED);
}

void LayerManager::changeLayerSolo(const SelectType& type, const OnOffToggle& value) {
    changeFlag(type, value, &Layer::solo, WindowMessages::SOLO_CHANGED);
}

void LayerManager::changeLayerNoteToggle(const SelectType& type, const NoteToggle& value) {
    changeLayers(type, [&](Layer& layer) {
        layer.toggle = value;
        postToGui(m_mirel, WindowMessages::TOGGLE_CHANGED, layer.id, value);
    });
}

template <class Row>
void LayerManager::changeAmount(const SelectType& type, const RelativeFixedValue& value,
                                RelativeFixedValue Layer::*amount, Row message) {
    changeLayers(type, [&](Layer& layer) {
        (layer.*amount).setValue(value.applyTo((layer.*amount).getValue()));
        postToGui(m_mirel, message, layer.id, layer.*amount);
    });
}

template <class Row>
void LayerManager::changeFlag(const SelectType& type, const OnOffToggle& value, bool Layer::*flag, Row message) {
    changeLayers(type, [&](Layer& layer) {
        layer.*flag = value.applyTo(layer.*flag);
        postToGui(m_mirel, message, layer.id, layer.*flag);
    });
}

void LayerManager::changeLayers(const SelectType& type, const std::function<void(Layer&)>& change) {
    for (Layer& layer : m_layers) {
        const bool isPicked = type.getMode() == SelectType::ALL ||
                              (type.getMode() == SelectType::SELECTED && layer.selected) ||
                              (type.getMode() == SelectType::SPECIFIC && type.getValue() == layer.id);
        if (isPicked)
            change(layer);
    }
    sendToEngine();
}

void LayerManager::sendToEngine() {
    m_mirel.getMidiEngineMessageManager().postSetLayerList(m_layers);
}

void LayerManager::sendAll() {
    sendToEngine();
    postToGui(m_mirel, WindowMessages::ALL_LAYERS_CHANGED, m_layers);
}

}
