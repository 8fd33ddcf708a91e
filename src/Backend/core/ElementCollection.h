#pragma once
namespace Backend::Component {
template <typename E> struct IteratorIF { virtual ~IteratorIF() = default; virtual bool hasNext() = 0; virtual E* next() = 0; };
template <typename Id, typename E> struct ElementCollection { virtual ~ElementCollection() = default; virtual IteratorIF<E>* createIterator() = 0; virtual E* find(const Id&) = 0; };
}
