#pragma once

#include "Backend/functions/values/SelectControlType.h"
#include "Backend/midi/Cell.h"

#include <functional>
#include <optional>

namespace Gui {

// [any] The cell that the focus goes to from the cell that has it (outside the grid: none has it) when it moves up,
// down, left or right: the next cell in that direction for which isControl is true. Left and right go on in the row
// before or behind; nothing beyond the ends of the grid, nor for up and left without a start.
std::optional<Cell> findFocusCell(const Cell& focus, SelectControlType::Mode direction,
                                  const std::function<bool(const Cell&)>& isControl);

}
