// What the words of messages carry. The rows of the message tables (Message.h) name these kinds. Only this code
// converts between words and values.
#pragma once

#include "Platform/WindowTypes.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace Backend {

// The word is 0.
struct Nothing {};

// A pointer to a copy on the heap, owned by the receiver of the message.
template <class T>
struct Heap {};

// The state of a toggle, by its getState.
template <class T>
struct State {};

// One value in both words, through its getWparam and getLparam. It is listed for the first word, and the row has no
// second one.
template <class T>
struct BothWords {};

// [any] How content of one kind travels in a word. This is the form of what fits into one: a flag (any word but 0 is
// true), a number or an enumerator (the low part of the word). A family with a kind of its own specializes it.
//
//   Value  what is posted, and what handlers receive
//   put    makes the word for a value
//   has    whether a word brings a value; a message without it is not handled
//   get    the value that a word brings
//   drop   releases what a word owns, after the message has been handled or instead of it
template <class T>
struct Carried {
    using Value = T;

    template <class Word>
    static Word put(T value) {
        return static_cast<Word>(value);
    }

    template <class Word>
    static bool has(Word) {
        return true;
    }

    template <class Word>
    static T get(Word word) {
        return static_cast<T>(word);
    }

    template <class Word>
    static void drop(Word) {}
};

// A window or an object that the message does not own. May be null.
template <class T>
struct Carried<T*> : Carried<std::intptr_t> {
    using Value = T*;

    template <class Word>
    static Word put(T* value) {
        return reinterpret_cast<Word>(value);
    }

    template <class Word>
    static T* get(Word word) {
        return reinterpret_cast<T*>(word);
    }
};

template <class T>
struct Carried<State<T>> : Carried<std::intptr_t> {
    using Value = T;

    template <class Word>
    static Word put(const T& value) {
        return static_cast<Word>(value.getState());
    }

    template <class Word>
    static T get(Word word) {
        return T(static_cast<typename T::State>(word));
    }
};

template <class T>
struct Carried<Heap<T>> {
    using Value = T;

    template <class Word>
    static Word put(const T& value) {
        return wordOf<Word>(std::make_unique<T>(value).release());
    }

    // The word for an object that is on the heap already.
    template <class Word>
    static Word wordOf(T* object) {
        static_assert(sizeof(Word) == sizeof(T*));
        return reinterpret_cast<Word>(object);
    }

    template <class Word>
    static bool has(Word word) {
        return word != 0;
    }

    // Handlers may move from it.
    template <class Word>
    static T&& get(Word word) {
        return std::move(*reinterpret_cast<T*>(word));
    }

    template <class Word>
    static void drop(Word word) {
        std::unique_ptr<T>(reinterpret_cast<T*>(word)).reset();
    }
};

}
