#pragma once
#pragma GCC diagnostic ignored "-Wshadow"
#include "Backend/core/ElementCollection.h"
#include <unordered_map>
namespace Backend::Component {
template <typename I, typename E> struct HashMapIterator : IteratorIF<E> { HashMapIterator(std::unordered_map<I, E>& v) : v(v), i(v.begin()) {} bool hasNext() override { return i != v.end(); } E* next() override { return hasNext() ? &(i++)->second : nullptr; } std::unordered_map<I, E>& v; typename std::unordered_map<I, E>::iterator i; };
}
