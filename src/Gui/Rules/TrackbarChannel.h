#pragma once

#include "Backend/core/Rect.h"

namespace Gui {

// [any] Where the channel of a vertical track bar is drawn. The system tells it crosswise, its left and right along the
// bar; it is centred on the thumb.
constexpr Rect getVerticalChannel(const Rect& thumb, const Rect& crosswise) {
    const int width = crosswise.bottom - crosswise.top;
    const int left = thumb.left + (thumb.right - thumb.left) / 2 - width / 2;
    const int top = crosswise.top + (thumb.bottom - thumb.top) / 2;
    const int height = crosswise.right - crosswise.left - crosswise.top;
    return {left, top, left + width, top + height};
}

}
