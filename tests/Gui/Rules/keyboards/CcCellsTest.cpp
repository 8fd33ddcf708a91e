#include "Gui/Rules/keyboards/CcCells.h"

#include <gtest/gtest.h>

namespace Gui::CcCells {
namespace {

struct WideCase {
    int cell;
    int left;
    int top;
    int status;
    const char* label;
};

constexpr WideCase WIDE[] = {
    {128, 2, 55, 160, "KEY    PRESSURE"},       {129, 138, 55, 192, "PROGRAM    CHANGE"},
    {130, 274, 55, 208, "CHANNEL    PRESSURE"}, {131, 410, 55, 224, "PITCH    BEND"},
    {132, 2, 69, 242, "SONG    POSITION"},      {133, 138, 69, 243, "SONG    SELECT"},
    {134, 274, 69, 245, "BUS    SELECT"},       {135, 410, 69, 246, "TUNE    REQUEST"},
    {136, 2, 83, 248, "TIMING    TICK"},        {137, 138, 83, 250, "START    SONG"},
    {138, 274, 83, 251, "CONTINUE    SONG"},    {139, 410, 83, 252, "STOP    SONG"},
    {140, 2, 97, 254, "ACTIVE    SENSING"},     {141, 138, 97, 255, "SYSTEM    RESET"},
    {142, 274, 97, 240, "SYSTEM    EXCLUSIVE"}, {143, 410, 97, 247, "END    OF    SYSEX"},
};

TEST(CcCells, ControllersStandInFourRows) {
    EXPECT_EQ(getRect(0), (Rect{2, 2, 17, 12}));
    EXPECT_EQ(getRect(31), (Rect{529, 2, 544, 12}));
    EXPECT_EQ(getRect(32), (Rect{2, 15, 17, 25}));
    EXPECT_EQ(getRect(64), (Rect{2, 28, 17, 38}));
    EXPECT_EQ(getRect(127), (Rect{529, 41, 544, 51}));
    EXPECT_EQ(getLabel(0), "0");
    EXPECT_EQ(getLabel(127), "127");
    EXPECT_EQ(getEvent(64), (Event{176, 64}));
}

TEST(CcCells, OtherEventsStandBelow) {
    for (const WideCase& row : WIDE) {
        EXPECT_EQ(getRect(row.cell), (Rect{row.left, row.top, row.left + 134, row.top + 10})) << row.cell;
        EXPECT_EQ(getLabel(row.cell), row.label);
        EXPECT_EQ(getEvent(row.cell), (Event{row.status, 0}));
    }
}

TEST(CcCells, EventsFindTheirCells) {
    for (const WideCase& row : WIDE) {
        EXPECT_EQ(findEvent(row.status, 5), row.cell);
        if (row.status < 240) {
            EXPECT_EQ(findEvent(row.status + 15, 5), row.cell);
        }
    }
    for (int controller = 0; controller < 128; ++controller)
        EXPECT_EQ(findEvent(177, controller), controller);
    for (const int status : {0, 127, 128, 143, 144, 159, 241, 244, 249, 253})
        EXPECT_EQ(findEvent(status, 60), std::nullopt) << status;
    EXPECT_EQ(findEvent(176, 128), std::nullopt);
    EXPECT_EQ(findEvent(176, -1), std::nullopt);
}

TEST(CcCells, AreFoundUnderThePointerButNotBetweenThem) {
    for (int cell = 0; cell < CELLS; ++cell) {
        const Rect rect = getRect(cell);
        EXPECT_EQ(findCell(rect.left, rect.top), cell);
        EXPECT_EQ(findCell(rect.right - 1, rect.bottom - 1), cell);
        EXPECT_EQ(findCell(rect.right, rect.top), std::nullopt) << cell;
        EXPECT_EQ(findCell(rect.left, rect.bottom), std::nullopt) << cell;
    }
    EXPECT_EQ(findCell(0, 0), std::nullopt);
}

}
}
