#include "Gui/Rules/selection/ControlFocus.h"

namespace Gui {

namespace {

constexpr int GRID_SIZE = 16;

bool isInGrid(const Cell& cell) {
    return cell.getRow() >= 0 && cell.getRow() < GRID_SIZE && cell.getColumn() >= 0 && cell.getColumn() < GRID_SIZE;
}

// A cell outside the grid, from which the first step leads to its first cell.
std::optional<Cell> findStart(const Cell& focus, SelectControlType::Mode direction) {
    if (isInGrid(focus))
        return focus;
    switch (direction) {
        case SelectControlType::DOWN: return Cell(-1, 0);
        case SelectControlType::RIGHT: return Cell(0, -1);
        default: return std::nullopt;
    }
}

Cell step(const Cell& from, SelectControlType::Mode direction) {
    const int row = from.getRow();
    const int column = from.getColumn();
    switch (direction) {
        case SelectControlType::UP: return {row - 1, column};
        case SelectControlType::DOWN: return {row + 1, column};
        case SelectControlType::LEFT: return column > 0 ? Cell(row, column - 1) : Cell(row - 1, GRID_SIZE - 1);
        case SelectControlType::RIGHT: return column < GRID_SIZE - 1 ? Cell(row, column + 1) : Cell(row + 1, 0);
        default: return {};
    }
}

}

std::optional<Cell> findFocusCell(const Cell& focus, SelectControlType::Mode direction,
                                  const std::function<bool(const Cell&)>& isControl) {
    const auto start = findStart(focus, direction);
    if (!start)
        return std::nullopt;
    for (Cell cell = step(*start, direction); isInGrid(cell); cell = step(cell, direction))
        if (isControl(cell))
            return cell;
    return std::nullopt;
}

}
