#include "Gui/Rules/texts/AboutText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Gui {
namespace {

TEST(AboutText, BeginsWithProductVersionAndTime) {
    const std::string text = describeProduct(BuildTime{2026, 3, 9, 7, 5, 2});
    EXPECT_TRUE(text.starts_with("Mirel Console 3 LE\r\nVersion 3.2 (03/09/2026 07:05:02)\r\n")) << text;
}

TEST(AboutText, WritesWideNumbersAsTheyAre) {
    EXPECT_NE(describeProduct(BuildTime{2026, 12, 31, 23, 59, 58}).find("(12/31/2026 23:59:58)"), std::string::npos);
}

TEST(AboutText, LeavesAnUnknownTimeOut) {
    const std::string text = describeProduct(std::nullopt);
    EXPECT_TRUE(text.starts_with("Mirel Console 3 LE\r\nVersion 3.2 \r\n")) << text;
    EXPECT_EQ(text.find('('), std::string::npos);
}

TEST(AboutText, NamesThoseWhoMadeIt) {
    EXPECT_NE(describeProduct(std::nullopt).find("\r\nWritten by "), std::string::npos);
}

// The help screen shows ten lines.
TEST(AboutText, FitsTheScreen) {
    const std::string text = describeProduct(BuildTime{2026, 12, 31, 23, 59, 58});
    EXPECT_LE(std::count(text.begin(), text.end(), '\n'), 9);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::count(text.begin(), text.end(), '\r'));
}

}
}
