#include "Gui/Rules/selection/SelectionClick.h"

#include "Gui/Rules/selection/OrderedSelection.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace Gui {
namespace {

constexpr SelectionKind EDIT = SelectionKind::EDIT;
constexpr SelectionKind DATA = SelectionKind::DATA;

// Five rows, the marks of one kind written as a line: "#" for a marked row.
class Rows : public OrderedSelection<int> {
public:
    explicit Rows(std::string_view line = ".....") {
        setItems({0, 1, 2, 3, 4});
        for (int i = 0; i < 5; ++i)
            setSelected(i, line[static_cast<std::size_t>(i)] == '#', DATA);
        changes.clear();
    }

    std::string line(SelectionKind kind = DATA) const {
        std::string text;
        for (int i = 0; i < 5; ++i)
            text += isSelected(i, kind) ? '#' : '.';
        return text;
    }

    // As where only neighbours form a range.
    bool selectRange(const int& from, const int& to, SelectionKind kind) override {
        return refusesRanges ? false : OrderedSelection::selectRange(from, to, kind);
    }

    bool canSelect(const int& id, SelectionKind) const override { return id != blocked; }
    void selectionChanged(const int& id, SelectionKind) override { changes += std::to_string(id); }

    bool refusesRanges = false;
    int blocked = -1;
    std::string changes;
};

constexpr ClickKeys PLAIN{};
constexpr ClickKeys CONTROL{true, false};
constexpr ClickKeys SHIFT{false, true};
constexpr ClickKeys BOTH{true, true};

constexpr ClickOutcome REFUSED{false, false};
constexpr ClickOutcome DONE{true, false};
constexpr ClickOutcome LAST{true, true};

struct Case {
    const char* before;
    int clicked;
    ClickKeys keys;
    const char* after;
    ClickOutcome outcome;
};

std::string describe(const Case& row) {
    return std::string(row.before) + " click " + std::to_string(row.clicked) + (row.keys.control ? " control" : "") +
           (row.keys.shift ? " shift" : "");
}

TEST(SelectionClick, RangesOfLayersBeginAtTheFirstMarkedOne) {
    const Case cases[] = {
        // What is not marked yet.
        {".....", 2, PLAIN, "..#..", LAST},
        {"#..#.", 2, PLAIN, "..#..", LAST},
        {"#..#.", 2, CONTROL, "#.##.", LAST},
        {".#...", 3, SHIFT, ".###.", LAST},
        {"...##", 1, SHIFT, ".###.", LAST},
        {".....", 3, SHIFT, "...#.", LAST},
        {".#...", 3, BOTH, ".#.#.", LAST},
        // What is marked.
        {"..#..", 2, PLAIN, ".....", DONE},
        {"..#..", 2, SHIFT, ".....", DONE},
        {"..#..", 2, CONTROL, ".....", DONE},
        {"#.#.#", 2, PLAIN, "..#..", LAST},
        {"#.#.#", 2, CONTROL, "#...#", DONE},
        {"#.#.#", 2, BOTH, "#...#", DONE},
        {"#.#.#", 2, SHIFT, "###..", DONE},
    };
    for (const Case& row : cases) {
        Rows rows(row.before);
        const auto outcome = clickSelection(rows, row.clicked, DATA, row.keys, rangeFromFirst(rows, DATA));
        EXPECT_EQ(rows.line(), row.after) << describe(row);
        EXPECT_EQ(outcome, row.outcome) << describe(row);
    }
}

struct LastCase {
    std::optional<int> last;
    Case row;
};

TEST(SelectionClick, RangesOfKeysAndControlsBeginAtTheLastOneClicked) {
    const LastCase cases[] = {
        {1, {"#....", 3, SHIFT, ".###.", LAST}},     {4, {"#....", 3, SHIFT, "...##", LAST}},
        {{}, {"#....", 3, SHIFT, "...#.", LAST}},    {4, {"#..#.", 3, SHIFT, "...##", DONE}},
        {{}, {"#..#.", 3, SHIFT, "#..#.", REFUSED}}, {1, {"#....", 3, CONTROL, "#..#.", LAST}},
        {1, {"#....", 3, PLAIN, "...#.", LAST}},     {1, {"#..#.", 3, PLAIN, "...#.", LAST}},
    };
    for (const auto& [last, row] : cases) {
        Rows rows(row.before);
        const auto outcome = clickSelection(rows, row.clicked, DATA, row.keys, rangeFromLast(last));
        EXPECT_EQ(rows.line(), row.after) << describe(row);
        EXPECT_EQ(outcome, row.outcome) << describe(row);
    }
}

// Cells form a range only along a row or a column.
TEST(SelectionClick, WithoutARangeControlsAreLeftAndLayersMarkedAlone) {
    struct Refused {
        const char* before;
        RangeRule<int> rule;
        const char* after;
        ClickOutcome outcome;
    };
    const Refused cases[] = {
        {"#....", {0, false}, "#....", REFUSED},
        {"#..#.", {0, false}, "#..#.", REFUSED},
        {"#....", {0, true}, "#..#.", LAST},
        {"#..#.", {0, true}, "#..#.", REFUSED},
    };
    for (const Refused& row : cases) {
        Rows rows(row.before);
        rows.refusesRanges = true;
        EXPECT_EQ(clickSelection(rows, 3, DATA, SHIFT, row.rule), row.outcome) << row.before;
        EXPECT_EQ(rows.line(), row.after) << row.before;
    }
}

TEST(SelectionClick, LeavesTheOtherKindOfMark) {
    Rows rows("#..#.");
    clickSelection(rows, 2, EDIT, PLAIN, rangeFromFirst(rows, EDIT));
    clickSelection(rows, 4, EDIT, SHIFT, rangeFromFirst(rows, EDIT));
    EXPECT_EQ(rows.line(EDIT), "..###");
    EXPECT_EQ(rows.line(DATA), "#..#.");
}

TEST(OrderedSelection, WalksTheMarkedOnesInOrder) {
    Rows rows(".#.##");
    EXPECT_EQ(rows.firstSelected(DATA), 1);
    EXPECT_EQ(rows.nextSelected(false, DATA), 3);
    EXPECT_EQ(rows.nextSelected(false, EDIT), std::nullopt);
    EXPECT_EQ(rows.nextSelected(false, DATA), 4);
    EXPECT_EQ(rows.nextSelected(false, DATA), std::nullopt);
    EXPECT_EQ(rows.nextSelected(false, DATA), 1);
    EXPECT_EQ(rows.nextSelected(true, DATA), 1);
    EXPECT_EQ(rows.getSelected(DATA), (std::vector<int>{1, 3, 4}));
    EXPECT_TRUE(rows.anySelected(DATA));
    EXPECT_FALSE(rows.anySelected(EDIT));
}

TEST(OrderedSelection, RepaintsOnlyWhatChanges) {
    Rows rows("#.#..");
    rows.setSelected(0, true, DATA);
    EXPECT_EQ(rows.changes, "");
    rows.selectOnly(2, true, DATA);
    EXPECT_EQ(rows.changes, "0");
    rows.selectRange(3, 1, DATA);
    EXPECT_EQ(rows.line(), ".###.");
    EXPECT_EQ(rows.changes, "013");
    rows.selectOnly(3, false, DATA);
    EXPECT_EQ(rows.line(), ".....");
}

TEST(OrderedSelection, PassesOverWhatCannotBeMarked) {
    Rows rows;
    rows.blocked = 2;
    rows.setSelected(2, true, DATA);
    EXPECT_EQ(rows.line(), ".....");
    rows.selectRange(1, 3, DATA);
    EXPECT_EQ(rows.line(), ".#.#.");
    rows.invert(DATA);
    EXPECT_EQ(rows.line(), "#...#");
    rows.selectAll(true, DATA);
    EXPECT_EQ(rows.line(), "##.##");
    rows.selectAll(false, DATA);
    EXPECT_EQ(rows.line(), ".....");
}

TEST(OrderedSelection, IgnoresWhatIsNotThere) {
    Rows rows("#....");
    rows.setSelected(5, true, DATA);
    EXPECT_FALSE(rows.isSelected(5, DATA));
    EXPECT_FALSE(rows.isSelected(-1, DATA));
    EXPECT_FALSE(rows.selectRange(-1, 3, DATA));
    EXPECT_FALSE(rows.selectRange(3, 5, DATA));
    EXPECT_EQ(rows.line(), "#....");
    rows.setItems({7, 8});
    EXPECT_FALSE(rows.anySelected(DATA));
    EXPECT_EQ(rows.firstSelected(DATA), std::nullopt);
}

}
}
