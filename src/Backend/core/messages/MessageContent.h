#pragma once

#include "Backend/core/messages/MessagePayload.h"
#include "Platform/WindowTypes.h"

#include <cstdint>
#include <type_traits>

namespace Backend {

// [any] Both words of a message whose row names these kinds of content. Unless it is released, this object destroys
// what the words own.
template <class W, class L>
class MessageContent {
    static constexpr bool HAS_W = !std::is_same_v<W, Nothing>;
    static constexpr bool HAS_L = !std::is_same_v<L, Nothing>;
    using WValue = typename Carried<W>::Value;
    using LValue = typename Carried<L>::Value;

public:
    // The values, as the parameters of a function.
    using Signature =
        std::conditional_t<HAS_W && HAS_L, void(WValue, LValue),
                           std::conditional_t<HAS_W, void(WValue), std::conditional_t<HAS_L, void(LValue), void()>>>;

    MessageContent() = default;
    MessageContent(WPARAM wParam, LPARAM lParam) : m_wParam(wParam), m_lParam(lParam) {}
    MessageContent(const MessageContent&) = delete;
    MessageContent& operator=(const MessageContent&) = delete;

    ~MessageContent() {
        Carried<W>::drop(m_wParam);
        Carried<L>::drop(m_lParam);
    }

    void put() {}

    template <class Value>
    void put(const Value& value) {
        if constexpr (HAS_W)
            m_wParam = Carried<W>::template put<WPARAM>(value);
        else
            m_lParam = Carried<L>::template put<LPARAM>(value);
    }

    void put(const WValue& first, const LValue& second) {
        m_wParam = Carried<W>::template put<WPARAM>(first);
        m_lParam = Carried<L>::template put<LPARAM>(second);
    }

    // Calls function with the values in the words. If a copy is missing, function is not called; the desk itself never
    // posts such a message.
    template <class Function>
    void open(Function&& function) const {
        if (!Carried<W>::has(m_wParam) || !Carried<L>::has(m_lParam))
            return;
        if constexpr (HAS_W && HAS_L)
            function(Carried<W>::get(m_wParam), Carried<L>::get(m_lParam));
        else if constexpr (HAS_W)
            function(Carried<W>::get(m_wParam));
        else if constexpr (HAS_L)
            function(Carried<L>::get(m_lParam));
        else
            function();
    }

    WPARAM wParam() const { return m_wParam; }
    LPARAM lParam() const { return m_lParam; }

    // The words belong to the receiver from here on.
    void release() {
        m_wParam = 0;
        m_lParam = 0;
    }

private:
    WPARAM m_wParam = 0;
    LPARAM m_lParam = 0;
};

template <class T>
class MessageContent<BothWords<T>, Nothing> {
public:
    using Signature = void(T);

    MessageContent() = default;
    MessageContent(WPARAM wParam, LPARAM lParam) : m_wParam(wParam), m_lParam(lParam) {}

    void put(const T& value) {
        m_wParam = static_cast<WPARAM>(value.getWparam());
        m_lParam = static_cast<LPARAM>(value.getLparam());
    }

    template <class Function>
    void open(Function&& function) const {
        function(T(std::uint64_t{m_wParam}, std::int64_t{m_lParam}));
    }

    WPARAM wParam() const { return m_wParam; }
    LPARAM lParam() const { return m_lParam; }
    void release() {}

private:
    WPARAM m_wParam = 0;
    LPARAM m_lParam = 0;
};

}
