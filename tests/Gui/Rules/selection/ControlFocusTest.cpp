#include "Gui/Rules/selection/ControlFocus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace Gui {
namespace {

using Mode = SelectControlType::Mode;

constexpr Mode UP = SelectControlType::UP;
constexpr Mode DOWN = SelectControlType::DOWN;
constexpr Mode LEFT = SelectControlType::LEFT;
constexpr Mode RIGHT = SelectControlType::RIGHT;

struct Case {
    Cell from;
    Mode direction;
    std::optional<Cell> to;
};

TEST(ControlFocus, GoesToTheNextControlInItsDirection) {
    const std::vector<Cell> controls = {{0, 0}, {0, 5}, {2, 0}, {2, 15}, {3, 3}, {15, 0}};
    const auto isControl = [&controls](const Cell& cell) {
        return std::find(controls.begin(), controls.end(), cell) != controls.end();
    };
    const Case cases[] = {
        {{0, 0}, RIGHT, Cell(0, 5)},
        {{0, 5}, RIGHT, Cell(2, 0)},
        {{2, 15}, RIGHT, Cell(3, 3)},
        {{15, 0}, RIGHT, {}},
        {{3, 3}, LEFT, Cell(2, 15)},
        {{0, 0}, LEFT, {}},
        {{0, 0}, DOWN, Cell(2, 0)},
        {{2, 0}, DOWN, Cell(15, 0)},
        {{15, 0}, DOWN, {}},
        {{2, 15}, UP, {}},
        {{15, 0}, UP, Cell(2, 0)},
        {{1, 1}, DOWN, {}},
        // Without a focus.
        {{}, DOWN, Cell(0, 0)},
        {{}, RIGHT, Cell(0, 0)},
        {{}, UP, {}},
        {{}, LEFT, {}},
        {{0, 16}, RIGHT, Cell(0, 0)},
        {{0, 0}, SelectControlType::ALL, {}},
    };
    for (const Case& row : cases)
        EXPECT_EQ(findFocusCell(row.from, row.direction, isControl), row.to)
            << row.from.toXmlString() << " " << row.direction;
}

TEST(ControlFocus, FindsNothingInAnEmptyGrid) {
    for (const Mode direction : {UP, DOWN, LEFT, RIGHT})
        EXPECT_EQ(findFocusCell(Cell(8, 8), direction, [](const Cell&) { return false; }), std::nullopt);
}

}
}
