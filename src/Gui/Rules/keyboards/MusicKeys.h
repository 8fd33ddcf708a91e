// Where the 128 keys of the music keyboard are, in pixels of its client area.
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

// For a note number, 0 to 127; any other counts as the nearest.
bool isBlack(int note);

// The painted part. It leaves a pixel free beside the next white key.
Shape getPaintShape(int note);

// What belongs to the key under the mouse, including that pixel.
Shape getHitShape(int note);

// The smallest rectangle around the painted part.
Rect getBox(int note);

// The key at a point, or nothing outside the keys.
std::optional<int> findKey(int x, int y);

// From the left of one key's box to the right of another's, between two heights: the bar of a layer or zone under the
// keyboard. If the notes are in the wrong order, its right is left of its left.
Rect getRangeBar(int lowNote, int highNote, int top, int bottom);

}
