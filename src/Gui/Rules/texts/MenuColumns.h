#pragma once

#include <cstddef>

namespace Gui {

// [any] Whether a menu item opens a new column. index is its place, from 0; if rowsPerColumn is above 0, a column holds
// that many rows, otherwise columns open where items ask for one.
constexpr bool opensMenuColumn(std::size_t index, int rowsPerColumn, bool asksForColumn) {
    if (rowsPerColumn > 0)
        return index != 0 && index % static_cast<std::size_t>(rowsPerColumn) == 0;
    return asksForColumn;
}

}
