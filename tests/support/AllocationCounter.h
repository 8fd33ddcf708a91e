#pragma once

#include <cstddef>

namespace TestSupport {

// Counts the calling thread's heap allocations while this object exists. One at a time per thread.
class AllocationCounter {
public:
    AllocationCounter();
    ~AllocationCounter();
    AllocationCounter(const AllocationCounter&) = delete;
    AllocationCounter& operator=(const AllocationCounter&) = delete;

    std::size_t count() const;

    // How many were not freed. Negative if the thread freed more.
    std::ptrdiff_t unreturned() const;
};

}
