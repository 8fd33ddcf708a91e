#pragma once
#pragma GCC diagnostic ignored "-Wshadow"
#include "Backend/core/ElementCollection.h"
#include <vector>
namespace Backend::Component {
template <typename E> struct VectorIterator : IteratorIF<E> { VectorIterator(std::vector<E>& v) : v(v) {} bool hasNext() override { return i < v.size(); } E* next() override { return hasNext() ? &v[i++] : nullptr; } std::vector<E>& v; std::size_t i = 0; };
}
