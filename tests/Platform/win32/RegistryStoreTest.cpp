#include "Platform/SettingsStore.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace Platform {
namespace {

TEST(RegistryStoreTest, ValuesLieInTheRegistryWithTheirKinds) {
    const std::string key = "Software\\Mirel Tests\\RegistryStoreTest";
    {
        const auto opened = createUserSettingsStore()->open(key);
        ASSERT_NE(opened, nullptr);
        opened->writeNumber("number", 7);
        opened->writeText("text", "Zo\xC3\xAB");
        opened->writeBytes("bytes", std::string_view("\0\1", 2));
        EXPECT_TRUE(opened->save());
    }
    const auto opened = createUserSettingsStore()->open(key);
    EXPECT_EQ(opened->readNumber("number"), 7u);
    EXPECT_EQ(opened->readText("text"), "Zo\xC3\xAB");
    EXPECT_EQ(opened->readBytes("bytes"), std::string("\0\1", 2));
    EXPECT_EQ(opened->readNumber("text"), std::nullopt);
    EXPECT_EQ(opened->readText("missing"), std::nullopt);

    HKEY raw = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &raw), ERROR_SUCCESS);
    DWORD type = 0;
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExA(raw, "text", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, DWORD{REG_SZ});
    EXPECT_EQ(size, 5u);  // Including the terminating zero.
    RegCloseKey(raw);
    EXPECT_EQ(RegDeleteKeyA(HKEY_CURRENT_USER, key.c_str()), ERROR_SUCCESS);
}

}
}
