#include "Gui/Rules/values/TrackbarChannel.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

TEST(TrackbarChannel, LiesInTheMiddleOfTheThumb) {
    // A bar of 30 by 200 pixels with a thumb 20 wide and 10 high.
    EXPECT_EQ(getVerticalChannel({4, 50, 24, 60}, {8, 10, 192, 14}), (Rect{12, 15, 16, 15 + 174}));
}

TEST(TrackbarChannel, StaysUprightIfReportedSo) {
    EXPECT_EQ(getVerticalChannel({4, 50, 24, 60}, {12, 8, 16, 192}), (Rect{12, 8, 16, 192}));
}

TEST(TrackbarChannel, CutsEachHalf) {
    EXPECT_EQ(getVerticalChannel({4, 50, 25, 61}, {8, 10, 192, 15}), (Rect{12, 15, 17, 15 + 174}));
}

}
}
