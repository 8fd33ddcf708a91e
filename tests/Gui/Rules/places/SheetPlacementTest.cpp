#include "Gui/Rules/places/SheetPlacement.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

constexpr Rect SCREEN = {0, 0, 1000, 800};

TEST(SheetPlacement, StandsOverTheMiddle) {
    EXPECT_EQ(placeSheet({0, 0, 300, 200}, {400, 300, 600, 500}, SCREEN), (Rect{350, 300, 650, 500}));
}

TEST(SheetPlacement, StaysOnTheScreen) {
    EXPECT_EQ(placeSheet({7, 7, 307, 207}, {400, 780, 600, 800}, SCREEN), (Rect{350, 600, 650, 800}));
    EXPECT_EQ(placeSheet({0, 0, 300, 200}, {0, 0, 100, 20}, SCREEN), (Rect{0, 0, 300, 200}));
    EXPECT_EQ(placeSheet({0, 0, 300, 200}, {-900, 0, -800, 20}, {-1000, 0, 0, 800}), (Rect{-1000, 0, -700, 200}));
}

TEST(SheetPlacement, TooLargeASheetShowsItsTopLeftCorner) {
    EXPECT_EQ(placeSheet({0, 0, 1200, 900}, {400, 300, 600, 500}, SCREEN), (Rect{0, 0, 1200, 900}));
}

}
}
