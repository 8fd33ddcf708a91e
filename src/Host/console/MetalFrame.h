#pragma once

#include "Backend/core/settings/Rect.h"
#include "Host/console/FrameLayout.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Host::Console {

// A picture of 0x00RRGGBB pixels, row by row from the top.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    std::uint32_t& at(int x, int y) {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
    std::uint32_t at(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
};

// What the border shows besides metal.
struct FrameLook {
    bool isActive = true;
    FramePart hovered = FramePart::OUTSIDE;  // The button under the mouse.
    FramePart pressed = FramePart::OUTSIDE;

    bool operator==(const FrameLook&) const = default;
};

// [any] The border of a desk's window, of brushed metal with two round buttons. The place of the desk is left black,
// that of the icon plain metal. An empty layout gives an empty picture.
Picture renderMetalFrame(const FrameLayout& layout, const FrameLook& look);

}
