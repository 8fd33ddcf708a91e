#include "Gui/Rules/keyboards/MusicKeys.h"

#include "Gui/Rules/keyboards/RangeBars.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace Gui {
namespace {

using namespace MusicKeys;
using Backend::Note;

struct KeyCase {
    int note;
    Rect upper;
    Rect lower;
};

TEST(MusicKeys, ArePaintedBesideOneAnother) {
    const KeyCase cases[] = {
        // The first octave.
        {0, {0, 3, 4, 28}, {0, 28, 6, 43}},
        {1, {4, 3, 9, 28}, {}},
        {2, {9, 3, 11, 28}, {7, 28, 13, 43}},
        {3, {11, 3, 16, 28}, {}},
        {4, {16, 3, 20, 28}, {14, 28, 20, 43}},
        {5, {21, 3, 25, 28}, {21, 28, 27, 43}},
        {6, {25, 3, 30, 28}, {}},
        {7, {30, 3, 32, 28}, {28, 28, 34, 43}},
        {8, {32, 3, 37, 28}, {}},
        {9, {37, 3, 39, 28}, {35, 28, 41, 43}},
        {10, {39, 3, 44, 28}, {}},
        {11, {44, 3, 48, 28}, {42, 28, 48, 43}},
        // In the middle, and the short octave at the end.
        {60, {245, 3, 249, 28}, {245, 28, 251, 43}},
        {121, {494, 3, 499, 28}, {}},
        {123, {501, 3, 506, 28}, {}},
        {126, {515, 3, 520, 28}, {}},
        {127, {520, 3, 524, 28}, {518, 28, 524, 43}},
    };
    for (const KeyCase& row : cases)
        EXPECT_EQ(getPaintShape(row.note), (Shape{row.upper, row.lower})) << row.note;
}

TEST(MusicKeys, TakeThePixelBesideThemUnderTheMouse) {
    const KeyCase cases[] = {
        {0, {0, 3, 4, 28}, {0, 28, 7, 43}},           {1, {4, 3, 10, 28}, {}},
        {2, {10, 3, 11, 28}, {7, 28, 14, 43}},        {4, {17, 3, 21, 28}, {14, 28, 21, 43}},
        {127, {521, 3, 525, 28}, {518, 28, 525, 43}},
    };
    for (const KeyCase& row : cases)
        EXPECT_EQ(getHitShape(row.note), (Shape{row.upper, row.lower})) << row.note;
}

TEST(MusicKeys, BlackOnesAreFiveOfTwelve) {
    std::string octave;
    for (int note = 60; note < 72; ++note)
        octave += isBlack(note) ? 'b' : 'w';
    EXPECT_EQ(octave, "wbwbwwbwbwbw");
    EXPECT_FALSE(isBlack(127));
}

// Each pixel of the keyboard below its top edge belongs to one key.
TEST(MusicKeys, ShareTheKeyboardBetweenThem) {
    for (int y = 3; y < HEIGHT; ++y)
        for (int x = 0; x < WIDTH; ++x) {
            int keys = 0;
            for (int note = 0; note < KEYS; ++note)
                keys += getHitShape(note).contains(x, y) ? 1 : 0;
            ASSERT_EQ(keys, 1) << x << " " << y;
        }
}

TEST(MusicKeys, AreFoundUnderThePointer) {
    struct {
        int x;
        int y;
        std::optional<int> note;
    } const cases[] = {
        {0, 3, 0},     {0, 42, 0},   {3, 27, 0},  {4, 27, 1},  {4, 28, 0},   {9, 27, 1},    {10, 27, 2},
        {6, 40, 0},    {7, 40, 2},   {20, 10, 4}, {21, 10, 5}, {49, 40, 12}, {524, 5, 127}, {524, 42, 127},
        {520, 5, 126}, {525, 5, {}}, {-1, 5, {}}, {0, 2, {}},  {0, 43, {}},
    };
    for (const auto& row : cases)
        EXPECT_EQ(findKey(row.x, row.y), row.note) << row.x << " " << row.y;
}

TEST(MusicKeys, HaveBoxesAroundAllOfThem) {
    for (int note = 0; note < KEYS; ++note) {
        const Shape shape = getPaintShape(note);
        const Rect box = getBox(note);
        EXPECT_EQ(box.top, shape.upper.top);
        EXPECT_EQ(box.bottom, isBlack(note) ? shape.upper.bottom : shape.lower.bottom);
        EXPECT_EQ(box.left, isBlack(note) ? shape.upper.left : shape.lower.left);
        EXPECT_EQ(box.right, isBlack(note) ? shape.upper.right : shape.lower.right);
    }
    EXPECT_EQ(getBox(-5), getBox(0));
    EXPECT_EQ(getBox(300), getBox(127));
}

BarRange range(int low, int high, int transpose = 0) {
    return {Note(static_cast<std::uint8_t>(low)), Note(static_cast<std::uint8_t>(high)), transpose};
}

TEST(LayerBars, ReachFromTheLowestKeyToTheHighest) {
    EXPECT_EQ(LayerBars::getBar(0, range(0, 127), 16), (Rect{16, 2, 540, 13}));
    EXPECT_EQ(LayerBars::getBar(2, range(60, 60), 16), (Rect{261, 34, 267, 45}));
    EXPECT_EQ(LayerBars::getBar(1, range(61, 72), 0), (Rect{249, 18, 300, 29}));
    EXPECT_EQ(LayerBars::getBox(0), (Rect{0, 2, 15, 13}));
    EXPECT_EQ(LayerBars::getBox(3), (Rect{0, 50, 15, 61}));
    EXPECT_EQ(LayerBars::getHeight(0), 0);
    EXPECT_EQ(LayerBars::getHeight(1), 15);
    EXPECT_EQ(LayerBars::getHeight(4), 63);
}

TEST(LayerBars, AreHitAndTheirBoxesBeforeThem) {
    const std::vector<BarRange> rows = {range(0, 127), range(60, 71), range(72, 60)};
    const auto find = [&rows](int x, int y, int keyboardX = 16) { return LayerBars::find(rows, keyboardX, x, y); };
    using LayerBars::Hit;
    EXPECT_EQ(find(20, 5), (Hit{0, false}));
    EXPECT_EQ(find(14, 12), (Hit{0, true}));
    EXPECT_EQ(find(15, 5), std::nullopt);
    EXPECT_EQ(find(20, 13), std::nullopt);
    EXPECT_EQ(find(20, 20), std::nullopt);
    EXPECT_EQ(find(265, 20), (Hit{1, false}));
    EXPECT_EQ(find(5, 20), (Hit{1, true}));
    EXPECT_EQ(find(265, 40), std::nullopt);  // Its notes stand in the wrong order.
    EXPECT_EQ(find(5, 40), (Hit{2, true}));
    EXPECT_EQ(find(5, 5, 0), (Hit{0, true}));
    EXPECT_EQ(find(5, 60), std::nullopt);
}

TEST(ZoneBars, StandWhereTheirNotesSound) {
    EXPECT_EQ(ZoneBars::getBar(0, range(48, 59), 10), (Rect{206, 0, 254, 13}));
    EXPECT_EQ(ZoneBars::getBar(1, range(48, 59, 12), 10), (Rect{255, 18, 303, 31}));
    // Beyond the keyboard, and without notes.
    EXPECT_EQ(ZoneBars::getBar(0, range(0, 59, -60), 0), (Rect{0, 0, 6, 13}));
    EXPECT_EQ(ZoneBars::getBar(0, range(100, 127, 60), 0), (Rect{518, 0, 524, 13}));
    EXPECT_EQ(ZoneBars::getBar(0, BarRange{}, 0), (Rect{518, 0, 524, 13}));
    EXPECT_EQ(ZoneBars::getHeight(0), 0);
    EXPECT_EQ(ZoneBars::getHeight(1), 13);
    EXPECT_EQ(ZoneBars::getHeight(3), 49);
}

TEST(ZoneBars, AreHitAndFoundBesideThem) {
    const std::vector<BarRange> rows = {range(48, 59), range(60, 71)};
    EXPECT_EQ(ZoneBars::find(rows, 10, 210, 12), 0);
    EXPECT_EQ(ZoneBars::find(rows, 10, 260, 18), 1);
    EXPECT_EQ(ZoneBars::find(rows, 10, 260, 12), std::nullopt);
    EXPECT_EQ(ZoneBars::find(rows, 10, 210, 13), std::nullopt);
    EXPECT_EQ(ZoneBars::findAtHeight(2, 0), 0);
    EXPECT_EQ(ZoneBars::findAtHeight(2, 13), std::nullopt);
    EXPECT_EQ(ZoneBars::findAtHeight(2, 30), 1);
    EXPECT_EQ(ZoneBars::findAtHeight(2, 36), std::nullopt);
    EXPECT_EQ(ZoneBars::findAtHeight(2, -1), std::nullopt);
}

}
}
