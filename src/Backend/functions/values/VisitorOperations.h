#pragma once

#include <cstddef>

namespace Backend::FunctionManagement {

// The interface of a visitor: one pure operation visit(Type&) for each type of a TypeList, in order.
template <class List, std::size_t COUNT = List::SIZE>
class VisitorOperations : public VisitorOperations<List, COUNT - 1> {
public:
    using VisitorOperations<List, COUNT - 1>::visit;
    virtual void visit(typename List::template At<COUNT - 1>& visited) = 0;
};

template <class List>
class VisitorOperations<List, 0> {
public:
    virtual ~VisitorOperations() = default;
    void visit() = delete;  // Only for the using-declarations above.
};

}
