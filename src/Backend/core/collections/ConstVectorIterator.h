#pragma once

#include "Backend/core/collections/ConstIteratorIF.h"

#include <vector>

namespace Backend::Component {

// Iterates over a vector by index.
template <class Element>
class ConstVectorIterator : public ConstIteratorIF<Element> {
public:
    // The vector must outlive the iterator. Starting below 0 or past the end gives no elements.
    explicit ConstVectorIterator(const std::vector<Element>& elements, int index = 0)
        : m_index(index), m_elements(elements) {}

    bool hasNext() override { return m_index >= 0 && static_cast<std::size_t>(m_index) < m_elements.size(); }

    const Element* next() override {
        if (!hasNext())
            return nullptr;
        return &m_elements[static_cast<std::size_t>(m_index++)];
    }

private:
    int m_index;
    const std::vector<Element>& m_elements;
};

}
