#include "Gui/Rules/HeldKeys.h"

#include <gtest/gtest.h>

namespace {

using Gui::HeldKeys;

TEST(HeldKeys, GivesEachKeyAsItWasPressedFirst) {
    HeldKeys held;
    held.press({65, true, false, false, false});
    held.press({65, false, false, true, false});
    held.press({66, false, false, false, false});
    const auto keys = held.takeAll();
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_EQ(keys[0], Key(65, true, false, false, false));
    EXPECT_EQ(keys[1], Key(66, false, false, false, false));
}

TEST(HeldKeys, HoldsNothingOnceTaken) {
    HeldKeys held;
    held.press({65, false, false, false, false});
    held.takeAll();
    EXPECT_TRUE(held.takeAll().empty());
}

TEST(HeldKeys, ForgetsAKeyThatCameUpUnderOtherModifiers) {
    HeldKeys held;
    held.press({65, true, true, false, false});
    held.release(65);
    held.release(66);
    EXPECT_TRUE(held.takeAll().empty());
}

}
