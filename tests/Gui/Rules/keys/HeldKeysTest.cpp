#include "Gui/Rules/keys/HeldKeys.h"

#include <gtest/gtest.h>

namespace {

using Gui::HeldKeys;

TEST(HeldKeys, GivesEachKeyAsItWasPressedFirst) {
    HeldKeys held;
    EXPECT_TRUE(held.press({65, true, false, false, false}, false));
    EXPECT_TRUE(held.press({65, false, false, true, false}, false));
    EXPECT_TRUE(held.press({66, false, false, false, false}, false));
    const auto keys = held.takeAll();
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_EQ(keys[0], Key(65, true, false, false, false));
    EXPECT_EQ(keys[1], Key(66, false, false, false, false));
}

TEST(HeldKeys, HoldsNothingOnceTaken) {
    HeldKeys held;
    EXPECT_TRUE(held.press({65, false, false, false, false}, false));
    held.takeAll();
    EXPECT_TRUE(held.takeAll().empty());
}

TEST(HeldKeys, ForgetsAKeyThatCameUpUnderOtherModifiers) {
    HeldKeys held;
    EXPECT_TRUE(held.press({65, true, true, false, false}, false));
    EXPECT_TRUE(held.release(65));
    EXPECT_TRUE(held.release(66));
    EXPECT_TRUE(held.takeAll().empty());
}

TEST(HeldKeys, AKeyReportedAsReleasedIsNotReportedAgainWhileItIsHeld) {
    const Key key(65, false, false, false, false);
    HeldKeys held;
    held.press(key, false);
    held.takeAll();
    EXPECT_FALSE(held.press(key, true));
    EXPECT_TRUE(held.takeAll().empty());
    EXPECT_FALSE(held.release(65));
    EXPECT_TRUE(held.release(65)) << "the next time is news";
}

TEST(HeldKeys, AFreshPressStartsOver) {
    const Key key(65, false, false, false, false);
    HeldKeys held;
    held.press(key, false);
    held.takeAll();
    EXPECT_TRUE(held.press(key, false));
    EXPECT_TRUE(held.press(key, true));
    EXPECT_TRUE(held.release(65));
}

}
