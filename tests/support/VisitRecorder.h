#pragma once

#include <cstddef>

namespace TestSupport {

// A visitor that records which of its operations was called, by its place in their order, and what was visited.
template <class Visitor, class List, std::size_t COUNT = List::SIZE>
class VisitRecorder : public VisitRecorder<Visitor, List, COUNT - 1> {
public:
    using VisitRecorder<Visitor, List, COUNT - 1>::visit;
    void visit(typename List::template At<COUNT - 1>& visited) override {
        ++this->calls;
        this->place = COUNT - 1;
        this->object = dynamic_cast<const void*>(&visited);
    }
};

template <class Visitor, class List>
class VisitRecorder<Visitor, List, 0> : public Visitor {
public:
    using Visitor::visit;

    int calls = 0;
    std::size_t place = List::SIZE;
    const void* object = nullptr;
};

}
