#include "Backend/midi/layers/LayerList.h"

#include "Backend/core/collections/VectorIterator.h"
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/ListElement.h"

#include <algorithm>

namespace Backend::Layers {

namespace {

// A file has more only by mistake; each takes room in the engine.
constexpr std::size_t MAX_LAYERS = 1 << 16;

}

const char* const LayerList::DEFAULT_XML =
    "\t<Layers merge=\"false\">"
    "\t\t<Layer mute=\"false\" mono=\"false\" toggle=\"off\" useNoteStack=\"true\" minNote=\"C-1\" maxNote=\"G9\" "
    "minVelocity=\"0\" maxVelocity=\"127\" zone=\"-1\" output=\"-1\" channel=\"0\" transpose=\"\" key=\"\" "
    "velocity=\"\" compress=\"1_1\">"
    "\t\t</Layer>"
    "\t</Layers>";

Layer* LayerList::find(const LayerId& id) {
    if (id.value < 0 || static_cast<std::size_t>(id.value) >= m_layers.size())
        return nullptr;
    return &m_layers[static_cast<std::size_t>(id.value)];
}

std::unique_ptr<Component::IteratorIF<Layer>> LayerList::createIterator() {
    return std::make_unique<Component::VectorIterator<Layer>>(m_layers);
}

void LayerList::add(Layer layer) {
    layer.id = static_cast<std::int32_t>(m_layers.size());
    m_layers.push_back(std::move(layer));
}

void LayerList::readXml(const XmlElement& element, const SequenceManagement::SequencePresetManager& presets) {
    ListElement list;
    readAttributes(element, list);
    if (!list.merge)
        clear();
    for (auto child = element.begin(); child != element.end(); child.next())
        if (child.getName() == Layer::TAG && m_layers.size() < MAX_LAYERS)
            add(Layer(child, presets));
}

void LayerList::writeXml(std::ostream& stream, int indent, const std::vector<LayerId>& selected) const {
    const ElementWriter layers(stream, indent, TAG, ListElement{.merge = !selected.empty()});
    for (const Layer& layer : m_layers)
        if (selected.empty() || std::find(selected.begin(), selected.end(), LayerId{layer.id}) != selected.end())
            layers.write(layer);
}

}
