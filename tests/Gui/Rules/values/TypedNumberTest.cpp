#include "Gui/Rules/values/TypedNumber.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

namespace Gui {
namespace {

TEST(TypedNumber, IsWhatTheTextBeginsWith) {
    EXPECT_EQ(readTypedNumber("480"), 480);
    EXPECT_EQ(readTypedNumber(" \t-12 ticks"), -12);
    EXPECT_EQ(readTypedNumber("+7"), 7);
    EXPECT_EQ(readTypedNumber("12abc34"), 12);
}

TEST(TypedNumber, IsZeroWithoutADigit) {
    for (const char* const text : {"", "  ", "?", "abc", "-", "+ 5"})
        EXPECT_EQ(readTypedNumber(text), 0) << text;
}

TEST(TypedNumber, StopsAtThirtyTwoBits) {
    EXPECT_EQ(readTypedNumber("2147483647"), INT32_MAX);
    EXPECT_EQ(readTypedNumber("2147483648"), INT32_MAX);
    EXPECT_EQ(readTypedNumber("-2147483649"), INT32_MIN);
    EXPECT_EQ(readTypedNumber("99999999999999999999999999"), INT32_MAX);
    EXPECT_EQ(readTypedNumber("-99999999999999999999999999"), INT32_MIN);
}

TEST(TypedNumber, ReadsNoFurtherThanItsText) {
    EXPECT_EQ(readTypedNumber(std::string_view("12345").substr(0, 2)), 12);
}

}
}
