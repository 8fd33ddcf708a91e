#include "Gui/Rules/places/ButtonLook.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

TEST(ButtonLook, IsSmallBelowSixteenHighOrElevenWide) {
    EXPECT_FALSE(isSmallButton(11, 16));
    EXPECT_TRUE(isSmallButton(10, 16));
    EXPECT_TRUE(isSmallButton(11, 15));
    EXPECT_TRUE(isSmallButton(10, 15));
}

TEST(ButtonLook, RecognisesTheTwoSigns) {
    EXPECT_TRUE(isSign("+"));
    EXPECT_TRUE(isSign("-"));
    for (const char* text : {"", "++", "--", "+-", " +", "F"})
        EXPECT_FALSE(isSign(text)) << text;
}

TEST(ButtonLook, HasAKindForEveryType) {
    for (unsigned type = 0; type < 16; ++type) {
        ButtonKind expected = ButtonKind::pushButton;
        if (type == 4 || type == 9)
            expected = ButtonKind::radioButton;
        else if (type == 2 || type == 3 || type == 5 || type == 6 || type == 10 || type == 11)
            expected = ButtonKind::checkBox;
        EXPECT_EQ(getButtonKind(type), expected) << type;
    }
}

}
}
