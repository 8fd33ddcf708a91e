#include "Gui/Rules/texts/DisplayText.h"

#include <gtest/gtest.h>

namespace Gui::DisplayText {
namespace {

TEST(DisplayText, IsFullAtThirtyThousand) {
    EXPECT_FALSE(isFull(29979, 20));
    EXPECT_TRUE(isFull(29980, 20));
    EXPECT_TRUE(isFull(0, 30000));
}

TEST(DisplayText, KeepsTheLastHalf) {
    EXPECT_EQ(makeRoom("abcdef", 1), "def");
    EXPECT_EQ(makeRoom("abcde", 1), "de");
    EXPECT_EQ(makeRoom("", 1), "");
    EXPECT_EQ(makeRoom(std::string(29990, 'x'), 20).size(), 14995u);
}

TEST(DisplayText, KeepsLessWhenMoreComes) {
    EXPECT_EQ(makeRoom(std::string(29990, 'x'), 20000).size(), 9999u);
    EXPECT_EQ(makeRoom(std::string(29990, 'x'), 29999).size(), 0u);
    EXPECT_EQ(makeRoom(std::string(29990, 'x'), 40000).size(), 0u);
}

TEST(DisplayText, KeepsWholeCharacters) {
    EXPECT_EQ(makeRoom("aéé", 1), "é");
    EXPECT_EQ(makeRoom("éaé", 1), "é");
    EXPECT_EQ(makeRoom("é", 1), "");
}

TEST(DisplayText, IsNeverLowerThanTwentyFive) {
    EXPECT_EQ(limitHeight(24), 25);
    EXPECT_EQ(limitHeight(25), 25);
    EXPECT_EQ(limitHeight(26), 26);
    EXPECT_EQ(limitHeight(-300), 25);
}

}
}
