#include "Host/console/FrameLayout.h"

#include <algorithm>

namespace Host::Console {

namespace {

constexpr int ICON_SIZE = 16;
constexpr int BUTTON_SIZE = 15;
constexpr int GAP = 4;
constexpr int CAPTION_TOP = (FrameLayout::TOP - ICON_SIZE) / 2;

bool contains(const Rect& rect, int x, int y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

}

Rect FrameLayout::desk() const {
    return {SIDE, TOP, std::max(SIDE, m_width - SIDE), std::max(TOP, m_height - BOTTOM)};
}

Rect FrameLayout::icon() const {
    return {SIDE, CAPTION_TOP, SIDE + ICON_SIZE, CAPTION_TOP + ICON_SIZE};
}

Rect FrameLayout::title() const {
    const int left = icon().right + GAP;
    return {left, 2, std::max(left, minimise().left - GAP), TOP - 2};
}

Rect FrameLayout::minimise() const {
    return buttonFromRight(1);
}

Rect FrameLayout::close() const {
    return buttonFromRight(0);
}

Rect FrameLayout::buttonFromRight(int index) const {
    constexpr int MARGIN = (TOP - BUTTON_SIZE) / 2;
    const int right = m_width - SIDE - index * (BUTTON_SIZE + GAP);
    return {right - BUTTON_SIZE, MARGIN, right, MARGIN + BUTTON_SIZE};
}

FramePart FrameLayout::partAt(int x, int y) const {
    if (!contains({0, 0, m_width, m_height}, x, y))
        return FramePart::OUTSIDE;
    if (contains(close(), x, y))
        return FramePart::CLOSE;
    if (contains(minimise(), x, y))
        return FramePart::MINIMISE;
    if (contains(icon(), x, y))
        return FramePart::ICON;
    return contains(desk(), x, y) ? FramePart::DESK : FramePart::CAPTION;
}

}
