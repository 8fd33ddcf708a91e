#pragma once

#include "Backend/core/settings/Rect.h"

namespace Gui {

// [any] Where to draw the channel of a vertical track bar. Most systems report it sideways, its left and right along
// the bar; it is then centred on the thumb. One that is already upright is left as it is.
constexpr Rect getVerticalChannel(const Rect& thumb, const Rect& channel) {
    if (channel.bottom - channel.top > channel.right - channel.left)
        return channel;
    const int width = channel.bottom - channel.top;
    const int left = thumb.left + (thumb.right - thumb.left) / 2 - width / 2;
    const int top = channel.top + (thumb.bottom - thumb.top) / 2;
    const int height = channel.right - channel.left - channel.top;
    return {left, top, left + width, top + height};
}

}
