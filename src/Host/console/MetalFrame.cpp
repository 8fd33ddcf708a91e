#include "Host/console/MetalFrame.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Host::Console {

namespace {

struct Colour {
    double red;
    double green;
    double blue;
};

// The bars at the sides are tubes, bright where they face the lamp above the desk. From the outer edge inwards.
constexpr std::array<double, FrameLayout::SIDE> SIDE_PROFILE = {34, 150, 186, 160, 118, 46};
constexpr std::array<double, FrameLayout::BOTTOM> BOTTOM_PROFILE = {26, 92, 122, 150, 168, 122, 46};
constexpr double GRAIN = 11;  // The strength of the brush marks.

// Evenly distributed between -1 and 1, and the same for the same place.
double noise(std::uint32_t x, std::uint32_t y) {
    std::uint32_t bits = x * 0x9e3779b1u ^ y * 0x85ebca6bu;
    bits = (bits ^ bits >> 15) * 0x2c1b3c6du;
    bits = (bits ^ bits >> 12) * 0x297a2d39u;
    bits ^= bits >> 15;
    return static_cast<double>(bits & 0xffff) / 32767.5 - 1;
}

// Brush strokes along a bar: noise that changes slowly in one direction and with every line in the other.
double grain(int along, int across) {
    constexpr int STROKE = 24;
    const auto line = static_cast<std::uint32_t>(across) + 7u;
    const int place = along + static_cast<int>(noise(line, 3) * STROKE);
    const auto cell = static_cast<std::uint32_t>(place + (1 << 20)) / STROKE;
    const double share = static_cast<double>((place + (1 << 20)) % STROKE) / STROKE;
    const double stroke = noise(cell, line) * (1 - share) + noise(cell + 1, line) * share;
    return 0.6 * noise(1, line) + 0.5 * stroke;
}

std::uint32_t pack(const Colour& colour) {
    const auto byte = [](double value) {
        return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 255.0)));
    };
    return byte(colour.red) << 16 | byte(colour.green) << 8 | byte(colour.blue);
}

Colour unpack(std::uint32_t pixel) {
    return {static_cast<double>(pixel >> 16 & 0xff), static_cast<double>(pixel >> 8 & 0xff),
            static_cast<double>(pixel & 0xff)};
}

Colour mix(const Colour& a, const Colour& b, double share) {
    return {a.red + (b.red - a.red) * share, a.green + (b.green - a.green) * share, a.blue + (b.blue - a.blue) * share};
}

// Steel has a touch of blue; a window without the keyboard focus is darker and flatter.
Colour steel(double light, bool isActive) {
    const double value = isActive ? light : 52 + (light - 52) * 0.6;
    return {value * 0.97, value * 0.99, value * 1.04};
}

// The title bar: a soft gloss above its middle, a groove at its lower edge.
double captionProfile(int y) {
    constexpr int LAST = FrameLayout::TOP - 1;
    if (y == 0)
        return 40;
    if (y == 1)
        return 214;
    if (y == LAST)
        return 46;
    if (y == LAST - 1)
        return 96;
    const double place = static_cast<double>(y - 2) / (LAST - 4);
    const double gloss = std::exp(-std::pow((place - 0.3) / 0.24, 2));
    return 176 - 58 * place + 26 * gloss;
}

double lightAt(const FrameLayout& layout, int x, int y) {
    const int fromSide = std::min(x, layout.width() - 1 - x);
    const int fromBottom = layout.height() - 1 - y;
    // Bars meet on the diagonals of the corners.
    if (y < FrameLayout::TOP && fromSide * FrameLayout::TOP >= y && fromSide > 0)
        return captionProfile(y) + GRAIN * grain(x, y);
    if (fromSide < FrameLayout::SIDE && fromSide <= fromBottom)
        return SIDE_PROFILE[static_cast<std::size_t>(fromSide)] + GRAIN * grain(y, x);
    return BOTTOM_PROFILE[static_cast<std::size_t>(std::min(fromBottom, FrameLayout::BOTTOM - 1))] +
           GRAIN * grain(x, y);
}

// How much of a pixel lies within a distance of a place, softened over one pixel.
double coverage(double distance, double limit) {
    return std::clamp(limit - distance + 0.5, 0.0, 1.0);
}

double distanceToLine(double x, double y, double x1, double y1, double x2, double y2) {
    const double length = (x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1);
    const double share = std::clamp(((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length, 0.0, 1.0);
    return std::hypot(x - x1 - share * (x2 - x1), y - y1 - share * (y2 - y1));
}

// How much of a place, relative to a button's centre, the button's sign covers.
double signCoverage(FramePart part, double x, double y) {
    constexpr double REACH = 2.6;
    constexpr double STRENGTH = 0.8;
    if (part == FramePart::MINIMISE)
        return coverage(distanceToLine(x, y, -REACH - 0.4, 1.5, REACH + 0.4, 1.5), STRENGTH);
    const double cross = std::min(distanceToLine(x, y, -REACH, -REACH, REACH, REACH),
                                  distanceToLine(x, y, -REACH, REACH, REACH, -REACH));
    return coverage(cross, STRENGTH);
}

void drawButton(Picture& picture, const Rect& rect, FramePart part, const FrameLook& look) {
    const double radius = (rect.right - rect.left) / 2.0 - 0.5;
    const double centreX = (rect.left + rect.right - 1) / 2.0;
    const double centreY = (rect.top + rect.bottom - 1) / 2.0;
    const bool isPressed = look.pressed == part && look.hovered == part;
    const bool isLit = look.hovered == part && (look.pressed == part || look.pressed == FramePart::OUTSIDE);
    const Colour lamp = part == FramePart::CLOSE ? Colour{226, 74, 58} : Colour{98, 206, 92};
    for (int y = std::max(rect.top, 0); y < std::min(rect.bottom, picture.height); ++y) {
        for (int x = std::max(rect.left, 0); x < std::min(rect.right, picture.width); ++x) {
            const double dx = x - centreX;
            const double dy = y - centreY;
            const double distance = std::hypot(dx, dy);
            std::uint32_t& pixel = picture.at(x, y);
            Colour colour = unpack(pixel);
            // A recess, a dark ring inside it, and the button's dome.
            colour = mix(colour, steel(dy < 0 ? 84 : 216, look.isActive), 0.8 * coverage(distance, radius));
            colour = mix(colour, {30, 32, 36}, coverage(distance, radius - 0.8));
            const double light = isPressed ? 104 + dy * 6 : 168 - dy * 10;
            Colour dome = steel(light, look.isActive);
            if (isLit)
                dome = mix(dome, {lamp.red * light / 168, lamp.green * light / 168, lamp.blue * light / 168}, 0.8);
            colour = mix(colour, dome, coverage(distance, radius - 1.8));
            colour = mix(colour, {24, 26, 30}, signCoverage(part, dx, dy));
            pixel = pack(colour);
        }
    }
}

}

Picture renderMetalFrame(const FrameLayout& layout, const FrameLook& look) {
    Picture picture{std::max(layout.width(), 0), std::max(layout.height(), 0), {}};
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    const Rect desk = layout.desk();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (y >= desk.top && y < desk.bottom && x == desk.left)
                x = std::max(x, desk.right);  // The desk draws itself.
            if (x < picture.width)
                picture.at(x, y) = pack(steel(lightAt(layout, x, y), look.isActive));
        }
    }
    drawButton(picture, layout.minimise(), FramePart::MINIMISE, look);
    drawButton(picture, layout.close(), FramePart::CLOSE, look);
    return picture;
}

}
