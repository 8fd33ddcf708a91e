#include "Gui/Rules/places/InitialWindowPosition.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Gui::chooseInitialWindowPosition;
using Gui::WindowPosition;

constexpr Rect LAST{30, 400, 630, 700};

TEST(InitialWindowPosition, IsTheLastTopLeftCorner) {
    EXPECT_EQ(chooseInitialWindowPosition(LAST, false, {0, 0, 600, 100}), (WindowPosition{30, 400}));
}

TEST(InitialWindowPosition, KeepsTheBottomEdgeOfADockedWindow) {
    EXPECT_EQ(chooseInitialWindowPosition(LAST, true, {0, 0, 600, 100}), (WindowPosition{30, 600}));
    EXPECT_EQ(chooseInitialWindowPosition(LAST, true, {5, 0, 605, 300}), (WindowPosition{30, 400}));
}

TEST(InitialWindowPosition, AddsTheTopOfADockedWindowThatIsElsewhere) {
    EXPECT_EQ(chooseInitialWindowPosition(LAST, true, {0, 20, 600, 120}), (WindowPosition{30, 620}));
}

TEST(InitialWindowPosition, OfNonsenseIsUnknown) {
    constexpr std::int32_t LOWEST = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t HIGHEST = std::numeric_limits<std::int32_t>::max();
    const Rect host{0, 20, 600, 120};
    EXPECT_FALSE(chooseInitialWindowPosition({LOWEST, LOWEST, LOWEST, LOWEST}, true, host).isKnown());
    EXPECT_FALSE(chooseInitialWindowPosition({0, HIGHEST, 0, HIGHEST}, true, {0, 200, 0, 100}).isKnown());
    EXPECT_FALSE(chooseInitialWindowPosition({30, 10, 630, 40}, true, host).isKnown());
    EXPECT_EQ(chooseInitialWindowPosition({HIGHEST, 0, 0, HIGHEST}, true, {0, 0, 600, 100}),
              (WindowPosition{HIGHEST, HIGHEST - 100}));
}

TEST(InitialWindowPosition, IsKnownOnlyWithoutNegativeCoordinates) {
    EXPECT_TRUE((WindowPosition{0, 0}).isKnown());
    EXPECT_FALSE((WindowPosition{-1, 0}).isKnown());
    EXPECT_FALSE((WindowPosition{0, -1}).isKnown());
    EXPECT_FALSE(WindowPosition().isKnown());
}

}
