#pragma once

#include <compare>
#include <cstdint>

namespace Backend::Layers {

// A layer by its position in the list, from 0.
struct LayerId {
    std::int32_t value = -1;

    auto operator<=>(const LayerId&) const = default;
};

}
