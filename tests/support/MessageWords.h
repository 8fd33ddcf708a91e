// The words of messages that a test posts or receives by hand.
#pragma once

#include "Backend/core/messages/MessagePayload.h"

#include <memory>

namespace TestSupport {

// A word that carries a copy of an object.
template <class Word, class Object>
Word releaseCopy(const Object& object) {
    return Backend::Carried<Backend::Heap<Object>>::template put<Word>(object);
}

// The object that a word carries, or null.
template <class Object, class Word>
std::unique_ptr<Object> takePayload(Word word) {
    return std::unique_ptr<Object>(reinterpret_cast<Object*>(word));
}

}
