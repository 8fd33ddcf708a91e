// All messages that one manager takes.
#pragma once

#include "Backend/core/messages/Message.h"
#include "Backend/core/messages/MessageRanges.h"

namespace Backend {

// Numbers of a range that have no meaning.
template <UINT... NUMBERS>
struct Unused {};

// Whether each number of the range has exactly one message or is listed as unused, and no other number occurs.
template <UINT... UNUSED, class... Messages>
constexpr bool isFilledBy(const MessageRange& range, Unused<UNUSED...>, const Messages&...) {
    for (UINT number = range.first; number <= range.last; ++number)
        if ((0 + ... + int{Messages::NUMBER == number}) + (0 + ... + int{UNUSED == number}) != 1)
            return false;
    return (range.contains(Messages::NUMBER) && ...) && (range.contains(UNUSED) && ...);
}

// A family's list of messages, made by familyOf at the end of their table.
template <class... Messages>
class MessageFamily {
public:
    // [receiver] Calls function with the values in a message of the family, then destroys what its words own. Returns
    // false and does nothing for a number without a message.
    template <class Function>
    bool open(UINT number, WPARAM wParam, LPARAM lParam, Function&& function) const {
        return ((number == Messages::NUMBER && (Messages::open(wParam, lParam, function), true)) || ...);
    }

    // [receiver] Destroys the content of an unhandled message. Returns false as above.
    bool dispose(const MSG& message) const {
        return ((message.message == Messages::NUMBER && (Messages::dispose(message.wParam, message.lParam), true)) ||
                ...);
    }

    // [any] Whether the sender of messages of this number waits.
    static constexpr bool isSent(UINT number) { return ((number == Messages::NUMBER && Messages::IS_SENT) || ...); }

    // Whether these are the family's messages, each once.
    template <class... Others>
    static constexpr bool isListOf() {
        return sizeof...(Others) == sizeof...(Messages) && (isOneOf<Messages, Others...>() && ...);
    }

    // Calls function with each message of the family.
    template <class Function>
    static constexpr void forEach(Function&& function) {
        (function(Messages()), ...);
    }

private:
    template <class Message, class... Others>
    static constexpr bool isOneOf() {
        return (std::is_same_v<Message, Others> || ...);
    }
};

// The family of these messages. Together with the unused numbers they must fill the range of their manager.
template <const MessageRange& RANGE, class UnusedNumbers, class... Messages>
constexpr MessageFamily<Messages...> familyOf(UnusedNumbers, Messages...) {
    static_assert(isFilledBy(RANGE, UnusedNumbers(), Messages()...),
                  "each number of a manager's range has one message, or is named as unused");
    return {};
}

}
