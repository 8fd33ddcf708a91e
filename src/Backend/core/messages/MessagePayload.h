// Objects that travel in a message. Whoever posts gives the object up, whoever handles the message owns it.
#pragma once

#include "Platform/WindowTypes.h"

#include <memory>

namespace Backend {

// [any] Releases an object into a word of a message (WPARAM or LPARAM).
template <class Word, class Payload>
Word releasePayload(std::unique_ptr<Payload> payload) {
    static_assert(sizeof(Word) == sizeof(Payload*));
    return reinterpret_cast<Word>(payload.release());
}

// [any] Takes it back. The type must be the very one that was released, not a base of it, and a word gives its object
// once. A word of 0 gives null.
template <class Payload, class Word>
std::unique_ptr<Payload> takePayload(Word word) {
    static_assert(sizeof(Word) == sizeof(Payload*));
    return std::unique_ptr<Payload>(reinterpret_cast<Payload*>(word));
}

// [any] Releases a copy of an object.
template <class Word, class Payload>
Word releaseCopy(const Payload& object) {
    return releasePayload<Word>(std::make_unique<Payload>(object));
}

}
