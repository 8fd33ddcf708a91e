#pragma once

#include "Backend/core/settings/Rect.h"

namespace Gui {

// [any] Whether a pixel is inside a rectangle.
constexpr bool contains(const Rect& rect, int x, int y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

}
