// What a manager does for each message of its family.
#pragma once

#include "Backend/core/messages/MessageFamily.h"

namespace Backend {

// The values that a handler takes, as the parameters of a function. A handler is an operation of the object that
// carries messages out, or a function whose first parameter is that object.
template <class Handler>
struct HandlerSignature : HandlerSignature<decltype(&Handler::operator())> {};

template <class Result, class Object, class... Values>
struct HandlerSignature<Result (Object::*)(Values...)> {
    using Type = void(std::remove_cvref_t<Values>...);
};

template <class Result, class Object, class... Values>
struct HandlerSignature<Result (*)(Object&, Values...)> {
    using Type = void(std::remove_cvref_t<Values>...);
};

template <class Result, class Function, class Object, class... Values>
struct HandlerSignature<Result (Function::*)(Object&, Values...) const> {
    using Type = void(std::remove_cvref_t<Values>...);
};

// The handler for messages that a manager ignores.
struct Ignore {};
inline constexpr Ignore IGNORED;

template <class Handler>
using ValuesTaken = typename HandlerSignature<Handler>::Type;

template <class Message>
using ValuesCarried = typename Message::Content::Signature;

// Whether a handler takes exactly what a message carries.
template <class Handler, class Message>
concept HandlerOf = std::is_same_v<Handler, Ignore> || std::is_same_v<ValuesTaken<Handler>, ValuesCarried<Message>>;

template <class MessageType, class Handler>
struct MessageRow {
    using Message = MessageType;
    Handler handler;
};

// One row of a table: a message, and the handler that carries it out.
template <class Message, HandlerOf<Message> Handler>
constexpr MessageRow<Message, Handler> on(Message, Handler handler) {
    return {handler};
}

// The rows of a manager, one for each message of its family. A table that lacks one does not compile.
template <class Family, class... Rows>
class MessageTable : private Rows... {
    static_assert(Family::template isListOf<typename Rows::Message...>(), "each message of the family has one row");

public:
    constexpr MessageTable(Family, Rows... rows) : Rows(rows)... {}

    // [receiver] Carries a message out on object, then destroys what its words own. If the operation returns a result,
    // it goes into answer. Returns false and does nothing for a number without a message.
    template <class Object, class Answer>
    bool handle(Object& object, UINT number, WPARAM wParam, LPARAM lParam, Answer& answer) const {
        return ((number == Rows::Message::NUMBER && (handleRow<Rows>(*this, object, wParam, lParam, answer), true)) ||
                ...);
    }

    // [receiver] The same where no operation has a result.
    template <class Object>
    bool handle(Object& object, UINT number, WPARAM wParam, LPARAM lParam) const {
        const Nothing none;
        return handle(object, number, wParam, lParam, none);
    }

    template <class Object>
    bool handle(Object& object, const MSG& message) const {
        return handle(object, message.message, message.wParam, message.lParam);
    }

private:
    template <class Row, class Object, class Answer>
    static void handleRow(const Row& row, Object& object, WPARAM wParam, LPARAM lParam, Answer& answer) {
        Row::Message::open(wParam, lParam, [&](auto&&... values) {
            const auto call = [&]() -> decltype(auto) {
                return carryOut(object, row.handler, std::forward<decltype(values)>(values)...);
            };
            if constexpr (std::is_void_v<decltype(call())>)
                call();
            else
                answer = call();
        });
    }

    template <class Object, class Handler, class... Values>
    static decltype(auto) carryOut(Object& object, Handler handler, Values&&... values) {
        if constexpr (std::is_member_function_pointer_v<Handler>)
            return (object.*handler)(std::forward<Values>(values)...);
        else if constexpr (!std::is_same_v<Handler, Ignore>)
            return handler(object, std::forward<Values>(values)...);
    }
};

}
