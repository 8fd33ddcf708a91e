#include "Gui/Rules/keyboards/MusicKeys.h"

#include "Gui/Rules/keyboards/RectContains.h"

#include <algorithm>
#include <array>

namespace Gui::MusicKeys {

namespace {

constexpr int NOTES_OF_OCTAVE = 12;
constexpr int OCTAVE_WIDTH = 49;
constexpr int TOP = 3;
constexpr int BLACK_BOTTOM = 28;

struct KeyRow {
    bool isBlack;
    int left;  // In the octave.
};

// By the note in the octave.
constexpr std::array<KeyRow, NOTES_OF_OCTAVE> ROWS = {{
    {false, 0},
    {true, 4},
    {false, 7},
    {true, 11},
    {false, 14},
    {false, 21},
    {true, 25},
    {false, 28},
    {true, 32},
    {false, 35},
    {true, 39},
    {false, 42},
}};

struct Widths {
    int white;
    int black;
};

constexpr Widths PAINTED = {6, 5};
constexpr Widths HIT = {7, 6};

int clampNote(int note) {
    return std::clamp(note, 0, KEYS - 1);
}

const KeyRow& rowOf(int note) {
    return ROWS[static_cast<std::size_t>(note % NOTES_OF_OCTAVE)];
}

bool isBlackNeighbour(int note) {
    return note >= 0 && note < KEYS && rowOf(note).isBlack;
}

// A whole key, including the parts of a white one that lie under black ones.
Rect wholeOf(int note, const Widths& widths) {
    const KeyRow& row = rowOf(note);
    const int left = note / NOTES_OF_OCTAVE * OCTAVE_WIDTH + row.left;
    return {left, TOP, left + (row.isBlack ? widths.black : widths.white), row.isBlack ? BLACK_BOTTOM : HEIGHT};
}

Shape shapeOf(int note, const Widths& widths) {
    const Rect whole = wholeOf(note, widths);
    if (rowOf(note).isBlack)
        return {whole, {}};
    Shape shape = {whole, whole};
    shape.upper.bottom = shape.lower.top = BLACK_BOTTOM;
    if (isBlackNeighbour(note - 1))
        shape.upper.left = std::max(whole.left, wholeOf(note - 1, widths).right);
    if (isBlackNeighbour(note + 1))
        shape.upper.right = std::min(whole.right, wholeOf(note + 1, widths).left);
    return shape;
}

}

bool Shape::contains(int x, int y) const {
    return Gui::contains(upper, x, y) || Gui::contains(lower, x, y);
}

bool isBlack(int note) {
    return rowOf(clampNote(note)).isBlack;
}

Shape getPaintShape(int note) {
    return shapeOf(clampNote(note), PAINTED);
}

Shape getHitShape(int note) {
    return shapeOf(clampNote(note), HIT);
}

Rect getBox(int note) {
    return wholeOf(clampNote(note), PAINTED);
}

std::optional<int> findKey(int x, int y) {
    for (int note = 0; note < KEYS; ++note)
        if (getHitShape(note).contains(x, y))
            return note;
    return std::nullopt;
}

Rect getRangeBar(int lowNote, int highNote, int top, int bottom) {
    return {getBox(lowNote).left, top, getBox(highNote).right, bottom};
}

}
