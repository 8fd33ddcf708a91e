#pragma once

namespace Backend::Component {

// One pass over the elements of a collection, which must not change meanwhile.
template <class Element>
class ConstIteratorIF {
public:
    virtual ~ConstIteratorIF() = default;

    virtual bool hasNext() = 0;

    // The next element; null at the end.
    virtual const Element* next() = 0;
};

}
