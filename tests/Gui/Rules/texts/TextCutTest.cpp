#include "Gui/Rules/texts/TextCut.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

TEST(TextCut, KeepsShortText) {
    EXPECT_EQ(cutText("abc", 3), "abc");
    EXPECT_EQ(cutText("", 3), "");
}

TEST(TextCut, CutsLongText) {
    EXPECT_EQ(cutText("abcd", 3), "abc");
    EXPECT_EQ(cutText("abcd", 0), "");
}

TEST(TextCut, LeavesNoPartOfACharacter) {
    EXPECT_EQ(cutText("aé", 2), "a");
    EXPECT_EQ(cutText("aé", 3), "aé");
    EXPECT_EQ(cutText("ピアノ", 8), "ピア");
}

TEST(TextCut, FindsTheNextCharacter) {
    EXPECT_EQ(nextCharacter("aéb", 0), 0u);
    EXPECT_EQ(nextCharacter("aéb", 1), 1u);
    EXPECT_EQ(nextCharacter("aéb", 2), 3u);
    EXPECT_EQ(nextCharacter("aéb", 4), 4u);
    EXPECT_EQ(nextCharacter("aéb", 9), 4u);
}

}
}
