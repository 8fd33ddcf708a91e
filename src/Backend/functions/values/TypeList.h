#pragma once

#include <cstddef>
#include <tuple>
#include <type_traits>

namespace Backend::FunctionManagement {

// A list of types whose order matters. They need not be complete.
template <class... Types>
struct TypeList {
    static constexpr std::size_t SIZE = sizeof...(Types);

    template <std::size_t INDEX>
    using At = std::tuple_element_t<INDEX, std::tuple<Types...>>;

    template <class Type>
    static constexpr bool CONTAINS = (std::is_same_v<Type, Types> || ...);

    // Whether another list contains exactly these types, in any order.
    template <class Other>
    static constexpr bool HAS_TYPES_OF = SIZE == Other::SIZE && (Other::template CONTAINS<Types> && ...);
};

}
