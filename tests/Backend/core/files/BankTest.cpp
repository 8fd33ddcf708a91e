#include "Backend/core/files/Bank.h"

#include <gtest/gtest.h>

namespace Backend {
namespace {

TEST(BankTest, TheNameIsThatOfTheFileWithoutItsLastExtension) {
    EXPECT_EQ(Bank("/a/b/My Bank.bnk", {}).getName(), "My Bank");
    EXPECT_EQ(Bank("C:\\a b\\c.d.bnk", {}).getName(), "c.d");
    EXPECT_EQ(Bank("C:\\a.b/c", {}).getName(), "c");
    EXPECT_EQ(Bank("Zo\xC3\xAB \xF0\x9F\x8E\xB9.bnk", {}).getName(), "Zo\xC3\xAB \xF0\x9F\x8E\xB9");
    EXPECT_EQ(Bank("/a/b/", {}).getName(), "");
    EXPECT_EQ(Bank().getName(), "");
}

}
}
