#include "Gui/Rules/values/TimeIntervalScale.h"

#include "Backend/midi/TimeInterval.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <numbers>

namespace Gui {
namespace {

using Backend::TimeInterval;
using Backend::TimeIntervalType;
using TimeIntervalScale::Range;

constexpr auto NOTE = TimeIntervalType::noteInterval;
constexpr auto PPQ = TimeIntervalType::ppq;
constexpr Range WHOLE = {20, 30720};

struct Length {
    int index;
    std::int32_t ticks;
    const char* menuText;
    const char* displayText;
};

constexpr Length LENGTHS[] = {
    {1, 20, "1/64 Triplet", "1/64 T"},
    {2, 40, "1/32 Triplet", "1/32 T"},
    {3, 60, "1/32", "1/32"},
    {4, 80, "1/16 Triplet", "1/16 T"},
    {5, 120, "1/16", "1/16"},
    {6, 160, "1/8 Triplet", "1/8 T"},
    {7, 180, "1/16 Dotted", "1/16 D"},
    {8, 240, "1/8", "1/8"},
    {9, 320, "1/4 Triplet", "1/4 T"},
    {10, 360, "1/8 Dotted", "1/8 D"},
    {11, 480, "1/4", "1/4"},
    {12, 640, "1/2 Triplet", "1/2 T"},
    {13, 720, "1/4 Dotted", "1/4 D"},
    {14, 960, "1/2", "1/2"},
    {15, 1280, "Whole Triplet", "1 T"},
    {16, 1440, "1/2 Dotted", "1/2 D"},
    {17, 1920, "Whole", "1"},
    {18, 2880, "Whole Dotted", "1 D"},
    {19, 3840, "2 Whole", "2"},
    {20, 7680, "4 Whole", "4"},
    {21, 15360, "8 Whole", "8"},
    {22, 30720, "16 Whole", "16"},
};

TEST(TimeIntervalScale, NamesEveryLengthInTheMenuAndInTheBox) {
    ASSERT_EQ(std::size(LENGTHS), std::size_t{TimeInterval::LAST_INDEX});
    for (const Length& row : LENGTHS) {
        EXPECT_EQ(TimeInterval::fromIndex(row.index).getPpq(), row.ticks);
        EXPECT_EQ(TimeInterval(row.ticks).toString(), row.menuText);
        EXPECT_EQ(TimeIntervalScale::displayText(NOTE, row.ticks), row.displayText);
        EXPECT_EQ(TimeIntervalScale::displayText(PPQ, row.ticks), std::to_string(row.ticks));
    }
}

TEST(TimeIntervalScale, ShowsNoNameForAnotherLengthOrMode) {
    EXPECT_EQ(TimeIntervalScale::displayText(NOTE, 100), "?");
    EXPECT_EQ(TimeInterval(100).toString(), "100");
    EXPECT_EQ(TimeIntervalScale::displayText(static_cast<TimeIntervalType::Mode>(7), 480), "?");
    EXPECT_EQ(TimeInterval::fromIndex(99).getPpq(), 480);
}

TEST(TimeIntervalScale, MapsOneRangeOnAnother) {
    struct Case {
        int inLow, inHigh, value, outLow, outHigh, result;
    };
    const Case cases[] = {
        {0, 127, 0, 1, 22, 1},   {0, 127, 127, 1, 22, 22}, {1, 22, 1, 0, 127, 0},       {1, 22, 22, 0, 127, 127},
        {1, 22, 11, 0, 127, 60}, {0, 10, 5, 0, 1, 1},      {0, 10, 4, 0, 1, 0},         {0, 10, 99, 0, 100, 100},
        {5, 10, 1, 0, 100, 0},   {0, 10, -5, 0, 100, -49}, {0, 10, -99, 0, 100, -99},   {0, 10, 10, 50, 0, 0},
        {0, 10, 0, 50, 0, 50},   {7, 7, 7, 3, 9, 3},       {0, 10, INT_MIN, 0, 10, -9}, {0, 10, INT_MAX, 0, 10, 10},
    };
    for (const Case& row : cases)
        EXPECT_EQ(TimeIntervalScale::scale(row.inLow, row.inHigh, row.value, row.outLow, row.outHigh), row.result)
            << row.value << " of " << row.inLow << " to " << row.inHigh;
}

TEST(TimeIntervalScale, PpqReachesBothEndsExactly) {
    const Range ranges[] = {WHOLE, {1, 2}, {20, 480}, {1, 99999}, {37, 38}, {120, 7680}};
    for (const Range range : ranges) {
        EXPECT_EQ(TimeIntervalScale::valueAt(PPQ, range, 127), range.min);
        EXPECT_EQ(TimeIntervalScale::valueAt(PPQ, range, 0), range.max);
        EXPECT_EQ(TimeIntervalScale::positionOf(PPQ, range, range.min), 127);
        EXPECT_EQ(TimeIntervalScale::positionOf(PPQ, range, range.max), 0);
    }
}

TEST(TimeIntervalScale, PpqFollowsTheLogarithm) {
    // The geometric mean lies in the middle: 127 / 2, rounded up.
    EXPECT_EQ(TimeIntervalScale::positionOf(PPQ, {1, 10000}, 100), 64);
    for (int position = 0; position <= 127; ++position) {
        const double expected =
            std::exp((std::log(30720.0) - std::log(20.0)) * (127 - position) / 127 + std::log(20.0));
        EXPECT_NEAR(TimeIntervalScale::valueAt(PPQ, WHOLE, position), expected, 0.6) << position;
    }
}

TEST(TimeIntervalScale, PpqComesBackToItsPosition) {
    // Where a step of the knob is more than a number.
    for (int position = 0; position <= 127; ++position)
        EXPECT_EQ(TimeIntervalScale::positionOf(PPQ, WHOLE, TimeIntervalScale::valueAt(PPQ, WHOLE, position)),
                  position);
}

TEST(TimeIntervalScale, NoteLengthsLieEvenly) {
    // 127 - (index - 1) * 127 / 21, to the nearest.
    const int positions[] = {127, 121, 115, 109, 103, 97, 91, 85, 79, 73, 67, 60, 54, 48, 42, 36, 30, 24, 18, 12, 6, 0};
    for (const Length& row : LENGTHS) {
        const int position = positions[row.index - 1];
        EXPECT_EQ(TimeIntervalScale::positionOf(NOTE, WHOLE, row.ticks), position) << row.menuText;
        EXPECT_EQ(TimeIntervalScale::valueAt(NOTE, WHOLE, position), row.ticks) << row.menuText;
    }
}

TEST(TimeIntervalScale, NoteLengthBetweenTwoCountsAsTheLonger) {
    EXPECT_EQ(TimeIntervalScale::positionOf(NOTE, WHOLE, 100), TimeIntervalScale::positionOf(NOTE, WHOLE, 120));
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 100, 0), 120);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 100, 1), 160);
}

TEST(TimeIntervalScale, NoteRangeGivenTheOtherWayRoundTurnsTheKnobRound) {
    const Range turned = {30720, 20};
    for (const Length& row : LENGTHS) {
        const int position = TimeIntervalScale::positionOf(NOTE, turned, row.ticks);
        EXPECT_NEAR(position, 127 - TimeIntervalScale::positionOf(NOTE, WHOLE, row.ticks), 1) << row.menuText;
        EXPECT_EQ(TimeIntervalScale::valueAt(NOTE, turned, position), row.ticks) << row.menuText;
    }
}

TEST(TimeIntervalScale, NarrowRangesStayInside) {
    EXPECT_EQ(TimeIntervalScale::valueAt(NOTE, {100, 200}, 0), 200);
    EXPECT_EQ(TimeIntervalScale::valueAt(NOTE, {100, 200}, 127), 120);
    EXPECT_EQ(TimeIntervalScale::valueAt(NOTE, {480, 480}, 64), 480);
    EXPECT_EQ(TimeIntervalScale::valueAt(PPQ, {480, 480}, 64), 480);
    EXPECT_EQ(TimeIntervalScale::positionOf(NOTE, {480, 480}, 480), 127);
    EXPECT_EQ(TimeIntervalScale::positionOf(PPQ, {480, 480}, 480), 127);
    EXPECT_EQ(TimeIntervalScale::valueAt(PPQ, WHOLE, 500), 20);
    EXPECT_EQ(TimeIntervalScale::valueAt(PPQ, WHOLE, -500), 30720);
}

TEST(TimeIntervalScale, LengthsOfNothingCountAsTheShortest) {
    EXPECT_EQ(TimeIntervalScale::positionOf(PPQ, {0, 100}, -5), 127);
    EXPECT_EQ(TimeIntervalScale::positionOf(PPQ, {0, 100}, 100), 0);
}

TEST(TimeIntervalScale, WheelOverTheValueStepsThroughIt) {
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 480, 1), 640);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 480, -2), 320);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 480, 100), 30720);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 480, -100), 20);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, {120, 960}, 480, 100), 960);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(PPQ, WHOLE, 480, 3), 483);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(PPQ, WHOLE, 21, -3), 20);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(PPQ, WHOLE, 30719, 3), 30720);
}

TEST(TimeIntervalScale, WheelBearsAnyNumberOfSteps) {
    const Range wide = {20, INT_MAX};
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(PPQ, wide, INT_MAX, 1), INT_MAX);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(PPQ, {INT_MIN, 480}, INT_MIN, -1), INT_MIN);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 480, INT_MAX), 30720);
    EXPECT_EQ(TimeIntervalScale::valueAfterSteps(NOTE, WHOLE, 480, INT_MIN), 20);
    for (const auto mode : {NOTE, PPQ}) {
        EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(mode, WHOLE, 480, INT_MAX), 20);
        EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(mode, WHOLE, 480, INT_MIN), 30720);
    }
}

TEST(TimeIntervalScale, WheelOverTheKnobTurnsIt) {
    EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(NOTE, WHOLE, 480, 1), 360);
    EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(NOTE, WHOLE, 480, -1), 640);
    EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(NOTE, WHOLE, 20, 1), 20);
    const int position = TimeIntervalScale::positionOf(PPQ, WHOLE, 480);
    EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(PPQ, WHOLE, 480, 5),
              TimeIntervalScale::valueAt(PPQ, WHOLE, position + 5));
    EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(PPQ, WHOLE, 480, 500), 20);
    EXPECT_EQ(TimeIntervalScale::valueAfterKnobSteps(PPQ, WHOLE, 480, -500), 30720);
}

TEST(TimeIntervalScale, DragCountsWholePositions) {
    EXPECT_EQ(TimeIntervalScale::valueAfterDrag(PPQ, WHOLE, 60, 7, 4), TimeIntervalScale::valueAt(PPQ, WHOLE, 61));
    EXPECT_EQ(TimeIntervalScale::valueAfterDrag(PPQ, WHOLE, 60, -7, 4), TimeIntervalScale::valueAt(PPQ, WHOLE, 59));
    EXPECT_EQ(TimeIntervalScale::valueAfterDrag(PPQ, WHOLE, 60, 3, 4), TimeIntervalScale::valueAt(PPQ, WHOLE, 60));
    EXPECT_EQ(TimeIntervalScale::valueAfterDrag(PPQ, WHOLE, 60, 3, 0), TimeIntervalScale::valueAt(PPQ, WHOLE, 63));
    EXPECT_EQ(TimeIntervalScale::valueAfterDrag(PPQ, WHOLE, 60, 1000, 1), 20);
}

TEST(TimeIntervalScale, PointerTurnsFromLowerLeftToLowerRight) {
    constexpr double PI = std::numbers::pi;
    EXPECT_DOUBLE_EQ(TimeIntervalScale::pointerAngle(0), 5 * PI / 8);
    EXPECT_NEAR(TimeIntervalScale::pointerAngle(127), 19 * PI / 8, 1e-12);
    EXPECT_NEAR(TimeIntervalScale::pointerAngle(64) - TimeIntervalScale::pointerAngle(63), 7 * PI / 508, 1e-12);
}

TEST(TimeIntervalScale, PointerIsLongerTowardsTheUpperLeft) {
    EXPECT_EQ(TimeIntervalScale::pointerLength(21, 2.49), 9);
    EXPECT_EQ(TimeIntervalScale::pointerLength(21, 2.5), 10);
    EXPECT_EQ(TimeIntervalScale::pointerLength(21, 5.3), 10);
    EXPECT_EQ(TimeIntervalScale::pointerLength(21, 5.31), 9);
}

}
}
