#pragma once

namespace Backend::Component {

// One pass over the elements of a collection, which must not change meanwhile.
template <class Element>
class IteratorIF {
public:
    virtual ~IteratorIF() = default;

    virtual bool hasNext() = 0;

    // The next element; null at the end.
    virtual Element* next() = 0;
};

}
