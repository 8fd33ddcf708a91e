#include "Backend/core/xml/Text.h"

#include <gtest/gtest.h>

namespace Backend::Text {
namespace {

TEST(TextTest, TrimTakesWhiteSpaceFromBothEnds) {
    EXPECT_EQ(trim(" \t a b \r\n"), "a b");
    EXPECT_EQ(trim(" \t\n"), "");
    EXPECT_EQ(trim(""), "");
}

TEST(TextTest, IntegerStopsAtTheFirstNonDigit) {
    EXPECT_EQ(readInteger(" 12x"), 12);
    EXPECT_EQ(readInteger("-7 8"), -7);
    EXPECT_EQ(readInteger("+5"), 5);
    EXPECT_EQ(readInteger("0x10"), 0);
}

TEST(TextTest, TextWithoutAReadableNumberGivesTheDefault) {
    for (const char* text : {"", " ", "abc", "-", "+", "+-3", "- 3", "99999999999", "-99999999999"})
        EXPECT_EQ(readInteger(text, 42), 42) << text;
}

TEST(TextTest, ReadsFlagsInTheirSpellings) {
    for (const char* text : {"true", "TRUE", "yes", "YES"})
        EXPECT_EQ(readBool(text), true) << text;
    for (const char* text : {"false", "FALSE", "no", "NO"})
        EXPECT_EQ(readBool(text), false) << text;
    for (const char* text : {"", "True", "1", "0", "on", " true"})
        EXPECT_EQ(readBool(text), std::nullopt) << text;
}

TEST(TextTest, LowByteWraps) {
    EXPECT_EQ(lowByte(200), -56);
    EXPECT_EQ(lowByte(-1), -1);
    EXPECT_EQ(lowByte(256 + 5), 5);
}

}
}
