#pragma once

#include "Backend/functions/values/SelectControlType.h"
#include "Backend/midi/Cell.h"

#include <functional>
#include <optional>

namespace Gui {

// [any] The cell that the focus moves to, up, down, left or right from the cell that has it (outside the grid: none has
// it): the next cell in that direction for which isControl is true. Left and right continue in the row before or after;
// nothing beyond the ends of the grid, nor for up and left without a start.
std::optional<Cell> findFocusCell(const Cell& focus, SelectControlType::Mode direction,
                                  const std::function<bool(const Cell&)>& isControl);

}
