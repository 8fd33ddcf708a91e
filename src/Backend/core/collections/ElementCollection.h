#pragma once

#include "Backend/core/collections/IteratorIF.h"

#include <memory>

namespace Backend::Component {

// What the collections of all components have in common. For the thread that owns the collection.
template <class Id, class Element>
class ElementCollection {
public:
    virtual ~ElementCollection() = default;

    // Starts a pass over all elements.
    [[nodiscard]] virtual std::unique_ptr<IteratorIF<Element>> createIterator() = 0;

    // The element, or null. It stays valid until the collection changes.
    virtual Element* find(const Id& id) = 0;

protected:
    ElementCollection() = default;
    ElementCollection(const ElementCollection&) = default;
    ElementCollection& operator=(const ElementCollection&) = default;
};

}
