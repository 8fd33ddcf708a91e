// The desk's messages as typed rows. A table of messages (for example LayerMessages.h) gives each its number and says
// what its two words carry; posting, handling and disposing all follow that row.
#pragma once

#include "Backend/core/messages/MessageContent.h"
#include "Platform/WindowTypes.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace Backend {

// One message: its number, and the kinds of content in its first and its second word (see Carried).
template <UINT N, class W = Nothing, class L = Nothing>
struct Message {
    using Content = MessageContent<W, L>;

    static constexpr UINT NUMBER = N;

    // Whether the sender waits until the message has been handled.
    static constexpr bool IS_SENT = false;

    // [any] Calls post(number, wParam, lParam) for a message that carries these values, which must have exactly the
    // types of the row. post returns whether the message was taken, or nothing if it always is. Returns what post
    // returned. If the message was not taken, what its words own is destroyed.
    template <class Post, class... Values>
    requires std::is_same_v<void(Values...), typename MessageContent<W, L>::Signature>
    static bool post(Post&& post, const Values&... values) {
        Content content;
        content.put(values...);
        if constexpr (std::is_void_v<decltype(post(NUMBER, WPARAM{}, LPARAM{}))>)
            post(NUMBER, content.wParam(), content.lParam());
        else if (!post(NUMBER, content.wParam(), content.lParam()))
            return false;
        content.release();
        return true;
    }

    // [any, rt if post is] The same for an object that is on the heap already, which stays the caller's if the message
    // was not taken.
    template <class Post, class T>
    requires std::is_same_v<W, Heap<T>> && std::is_same_v<L, Nothing>
    static bool postOwned(Post&& post, std::unique_ptr<T>& object) {
        if (!post(NUMBER, Carried<W>::template wordOf<WPARAM>(object.get()), LPARAM{0}))
            return false;
        static_cast<void>(object.release());
        return true;
    }

    // [receiver] Calls function with the values in a message of this number, then destroys what its words own.
    template <class Function>
    static void open(WPARAM wParam, LPARAM lParam, Function&& function) {
        const Content content(wParam, lParam);
        content.open(std::forward<Function>(function));
    }

    // [receiver] Destroys what the words of an unhandled message own.
    static void dispose(WPARAM wParam, LPARAM lParam) { static_cast<void>(Content(wParam, lParam)); }
};

// A message whose sender waits until it has been handled.
template <UINT N, class W = Nothing, class L = Nothing>
struct SentMessage : Message<N, W, L> {
    static constexpr bool IS_SENT = true;
};

}
