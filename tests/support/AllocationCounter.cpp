#include "tests/support/AllocationCounter.h"

#include <cstdlib>
#include <new>

namespace {

thread_local bool t_isCounting = false;
thread_local std::size_t t_count = 0;
thread_local std::size_t t_returned = 0;

}

// The heap of all test programs, so that it can be counted. The array and sized forms end up here as well. The form
// that does not throw is what the library's sorting uses, and must match.
void* operator new(std::size_t size) {
    if (t_isCounting)
        ++t_count;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    if (t_isCounting)
        ++t_count;
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept {
    if (t_isCounting && memory)
        ++t_returned;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace TestSupport {

AllocationCounter::AllocationCounter() {
    t_count = 0;
    t_returned = 0;
    t_isCounting = true;
}

AllocationCounter::~AllocationCounter() {
    t_isCounting = false;
}

std::size_t AllocationCounter::count() const {
    return t_count;
}

std::ptrdiff_t AllocationCounter::unreturned() const {
    return static_cast<std::ptrdiff_t>(t_count) - static_cast<std::ptrdiff_t>(t_returned);
}

}
