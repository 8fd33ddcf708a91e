#pragma once

#include "Backend/core/settings/Rect.h"

namespace Host::Console {

// The parts of the frame that the mouse can be over.
enum class FramePart { OUTSIDE, DESK, CAPTION, ICON, MINIMISE, CLOSE };

// Where things are in a frame with the metallic border, in pixels from the window's top left corner.
class FrameLayout {
public:
    // The border's width on each side.
    static constexpr int SIDE = 6;
    static constexpr int TOP = 25;
    static constexpr int BOTTOM = 7;

    FrameLayout(int width, int height) : m_width(width), m_height(height) {}

    // [any] The layout of the window around a desk of this size.
    static FrameLayout around(int deskWidth, int deskHeight) {
        return {deskWidth + 2 * SIDE, deskHeight + TOP + BOTTOM};
    }

    int width() const { return m_width; }
    int height() const { return m_height; }

    Rect desk() const;
    Rect icon() const;
    Rect title() const;
    Rect minimise() const;
    Rect close() const;

    FramePart partAt(int x, int y) const;

private:
    Rect buttonFromRight(int index) const;

    int m_width;
    int m_height;
};

}
