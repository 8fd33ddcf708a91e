#pragma once

#include "Backend/core/collections/ElementCollection.h"
#include "Backend/midi/LayerId.h"
#include "Backend/midi/layers/Layer.h"

#include <memory>
#include <ostream>
#include <vector>

namespace Backend::Layers {

// The layers of a program, in the order in which events pass them. A layer's id is its place in the list.
class LayerList : public Component::ElementCollection<LayerId, Layer> {
public:
    static constexpr const char* TAG = "Layers";

    // What a desk starts with: one layer that lets everything pass.
    static const char* const DEFAULT_XML;

    // Null if the id is no place in the list.
    Layer* find(const LayerId& id) override;

    std::unique_ptr<Component::IteratorIF<Layer>> createIterator() override;

    std::size_t size() const { return m_layers.size(); }
    auto begin() { return m_layers.begin(); }
    auto end() { return m_layers.end(); }
    auto begin() const { return m_layers.begin(); }
    auto end() const { return m_layers.end(); }

    void clear() { m_layers.clear(); }

    // Appends a layer and gives it the id of its place.
    void add(Layer layer);

    // Reads the layers of an element, whose merge says if they are appended or replace the list; at most 65536 in all.
    void readXml(const XmlElement& element, const SequenceManagement::SequencePresetManager& presets);

    // The element on lines of its own, indent tabs deep: all layers to replace others, or the selected ones to be
    // merged.
    void writeXml(std::ostream& stream, int indent, const std::vector<LayerId>& selected) const;

private:
    std::vector<Layer> m_layers;
};

}
