#pragma once

#include "Backend/core/collections/ConstIteratorIF.h"

#include <unordered_map>

namespace Backend::Component {

// Iterates over a map from its first node to its last.
template <class Id, class Element, class Map = std::unordered_map<Id, Element>>
class ConstHashMapIterator : public ConstIteratorIF<Element> {
public:
    // The map must outlive the iterator.
    explicit ConstHashMapIterator(const Map& elements) : m_node(elements.begin()), m_elements(elements) {}

    bool hasNext() override { return m_node != m_elements.end(); }

    const Element* next() override {
        if (!hasNext())
            return nullptr;
        return &(m_node++)->second;
    }

private:
    typename Map::const_iterator m_node;
    const Map& m_elements;
};

}
