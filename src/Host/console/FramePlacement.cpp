#include "Host/console/FramePlacement.h"

#include "Gui/Rules/places/WindowMove.h"
#include "Host/console/FrameLayout.h"

#include <algorithm>

namespace Host::Console {

namespace {

constexpr std::int32_t GRIP_WIDTH = 100;

Rect moveTo(const Rect& window, std::int32_t left, std::int32_t top) {
    return {left, top, left + window.right - window.left, top + window.bottom - window.top};
}

}

Rect moveFrame(const Rect& window, std::uintptr_t x, std::uintptr_t y) {
    return moveTo(window, Gui::unpackWindowMove(x).applyTo(window.left), Gui::unpackWindowMove(y).applyTo(window.top));
}

Rect dockFrame(const Rect& window, const Rect& workArea) {
    return moveTo(window, window.left, workArea.bottom - (window.bottom - window.top));
}

Rect bringIntoReach(const Rect& window, const Rect& workArea, bool isDocked) {
    const std::int32_t width = std::min(GRIP_WIDTH, window.right - window.left);
    const std::int32_t left =
        std::max(std::min(window.left, workArea.right - width), workArea.left + width - (window.right - window.left));
    std::int32_t top = std::min(window.top, workArea.bottom - FrameLayout::TOP);
    if (!isDocked)
        top = std::max(top, workArea.top);
    return moveTo(window, left, top);
}

Rect centreFrame(const Rect& window, const Rect& workArea) {
    const std::int32_t left = (workArea.left + workArea.right - (window.right - window.left)) / 2;
    const std::int32_t top = (workArea.top + workArea.bottom - (window.bottom - window.top)) / 2;
    return moveTo(window, std::max(left, workArea.left), std::max(top, workArea.top));
}

}
