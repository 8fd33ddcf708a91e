#pragma once

#include "Backend/core/collections/IteratorIF.h"

#include <unordered_map>

namespace Backend::Component {

// Iterates over a map from its first node to its last.
template <class Id, class Element, class Map = std::unordered_map<Id, Element>>
class HashMapIterator : public IteratorIF<Element> {
public:
    // The map must outlive the iterator.
    explicit HashMapIterator(Map& elements) : m_node(elements.begin()), m_elements(elements) {}

    bool hasNext() override { return m_node != m_elements.end(); }

    Element* next() override {
        if (!hasNext())
            return nullptr;
        return &(m_node++)->second;
    }

private:
    typename Map::iterator m_node;
    Map& m_elements;
};

}
