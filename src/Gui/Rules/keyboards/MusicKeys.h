// Where the 128 keys of the music keyboard lie, in pixels of its client area.
#pragma once

#include "Backend/core/settings/Rect.h"

#include <optional>

namespace Gui::MusicKeys {

inline constexpr int KEYS = 128;
inline constexpr int WIDTH = 525;
inline constexpr int HEIGHT = 43;

// A key is made of two rectangles that don't overlap: beside the black keys, and below them. A black key has no lower
// one.
struct Shape {
    Rect upper;
    Rect lower;

    bool contains(int x, int y) const;
    bool operator==(const Shape&) const = default;
};

// Of a note number, 0 to 127; another counts as the nearest.
bool isBlack(int note);

// What is painted. It leaves free a pixel beside the next white key.
Shape getPaintShape(int note);

// What belongs to the key under the mouse, that pixel included.
Shape getHitShape(int note);

// The smallest rectangle around what is painted.
Rect getBox(int note);

// The key at a point, or nothing beside the keys.
std::optional<int> findKey(int x, int y);

// From the left of one key's box to the right of another's, between two heights: the bar of a layer or zone under the
// keyboard. Its right lies left of its left if the notes stand in the wrong order.
Rect getRangeBar(int lowNote, int highNote, int top, int bottom);

}
