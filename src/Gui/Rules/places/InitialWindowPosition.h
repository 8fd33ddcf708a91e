#pragma once

#include "Backend/core/settings/Rect.h"

#include <cstdint>

namespace Gui {

// The top left corner of a window on the screen, in pixels.
struct WindowPosition {
    std::int32_t x = -1;
    std::int32_t y = -1;

    // Whether the host's window may be moved there.
    bool isKnown() const { return x >= 0 && y >= 0; }

    bool operator==(const WindowPosition&) const = default;
};

// [any] Where the host's window should start, given its place at the end of the last run. A window docked to its bottom
// edge keeps that edge even if its height has changed; host is its current rectangle. Unknown if the place would be
// above the screen or out of range.
WindowPosition chooseInitialWindowPosition(const Rect& last, bool dockToBottomEdge, const Rect& host);

}
