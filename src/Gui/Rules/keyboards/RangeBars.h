// Where the bars of layers and zones lie under the music keyboard, in pixels of the control that shows them. keyboardX
// is where the keyboard's own left edge lies in there.
#pragma once

#include "Backend/core/settings/Rect.h"
#include "Backend/midi/Note.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Gui {

// The notes of a bar. What is no note counts as the highest one.
struct BarRange {
    Backend::Note low;
    Backend::Note high;
    int transpose = 0;  // Half-steps that both move by; they stop at the ends of the keyboard.
};

namespace LayerBars {

inline constexpr int BOX_WIDTH = 15;  // Of the "M" or "S" at the left.

// All rows together; 0 without any.
int getHeight(int rows);

Rect getBox(int row);
Rect getBar(int row, const BarRange& range, int keyboardX);

// What lies at a point. Where a bar reaches under a box, the box is hit.
struct Hit {
    int row;
    bool isBox;

    bool operator==(const Hit&) const = default;
};

std::optional<Hit> find(const std::vector<BarRange>& rows, int keyboardX, int x, int y);

}

namespace ZoneBars {

int getHeight(int rows);
Rect getBar(int row, const BarRange& range, int keyboardX);

// The row whose bar lies at a point.
std::optional<int> find(const std::vector<BarRange>& rows, int keyboardX, int x, int y);

// The row at this height, beside its bar too.
std::optional<int> findAtHeight(int rows, int y);

}

}
