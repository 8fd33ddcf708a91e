#pragma once

#include <cstddef>

namespace TestSupport {

// Counts what the calling thread takes from the heap while this object lives. One at a time on a thread.
class AllocationCounter {
public:
    AllocationCounter();
    ~AllocationCounter();
    AllocationCounter(const AllocationCounter&) = delete;
    AllocationCounter& operator=(const AllocationCounter&) = delete;

    std::size_t count() const;

    // How much of it was not given back. Negative if the thread gave back more.
    std::ptrdiff_t unreturned() const;
};

}
