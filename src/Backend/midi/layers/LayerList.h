#pragma once

#include "Backend/core/collections/ElementCollection.h"
#include "Backend/midi/LayerId.h"
#include "Backend/midi/layers/Layer.h"

#include <memory>
#include <ostream>
#include <vector>

namespace Backend::Layers {

// The layers of a program, in the order in which events reach them. A layer's id is its place in the list.
class LayerList : public Component::ElementCollection<LayerId, Layer> {
public:
    static constexpr const char* TAG = "Layers";

    // A desk's initial list: one layer that passes everything.
    static const char* const DEFAULT_XML;

    // Null if the id is not a place in the list.
    Layer* find(const LayerId& id) override;

    std::unique_ptr<Component::IteratorIF<Layer>> createIterator() override;

    std::size_t size() const { return m_layers.size(); }
    auto begin() { return m_layers.begin(); }
    auto end() { return m_layers.end(); }
    auto begin() const { return m_layers.begin(); }
    auto end() const { return m_layers.end(); }

    void clear() { m_layers.clear(); }

    // Appends a layer and sets its id to its place.
    void add(Layer layer);

    // Reads the layers of an element, whose merge attribute says whether they are appended or replace the list; at most
    // 65536 in all.
    void readXml(const XmlElement& element, const SequenceManagement::SequencePresetManager& presets);

    // Writes the element on its own lines, indented by this many tabs: all layers to replace others, or the selected
    // ones to be merged.
    void writeXml(std::ostream& stream, int indent, const std::vector<LayerId>& selected) const;

private:
    std::vector<Layer> m_layers;
};

}
