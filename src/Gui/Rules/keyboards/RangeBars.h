// Where the bars of layers and zones are under the music keyboard, in pixels of the control that shows them. keyboardX
// is the position of the keyboard's left edge in that control.
#pragma once

#include "Backend/core/settings/Rect.h"
#include "Backend/midi/Note.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Gui {

// The notes of a bar. Anything that is not a note counts as the highest one.
struct BarRange {
    Backend::Note low;
    Backend::Note high;
    int transpose = 0;  // Half-steps that both move by; they stop at the ends of the keyboard.
};

namespace LayerBars {

inline constexpr int BOX_WIDTH = 15;  // Of the "M" or "S" at the left.

// The height of all rows together; 0 if there are none.
int getHeight(int rows);

Rect getBox(int row);
Rect getBar(int row, const BarRange& range, int keyboardX);

// What is at a point. Where a bar reaches under a box, the box is hit.
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

// The row whose bar is at a point.
std::optional<int> find(const std::vector<BarRange>& rows, int keyboardX, int x, int y);

// The row at this height, even beside its bar.
std::optional<int> findAtHeight(int rows, int y);

}

}
