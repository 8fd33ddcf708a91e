#pragma once

#include <cstdint>

// A rectangle on the screen, in pixels. Right and bottom lie just outside it.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const Rect&) const = default;
};
