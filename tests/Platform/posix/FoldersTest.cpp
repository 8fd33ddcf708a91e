#include "Platform/Folders.h"

#include "Platform/Files.h"
#include "Platform/SettingsStore.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace Platform {
namespace {

// Sets an environment variable for a test, and restores it afterwards.
class Variable {
public:
    Variable(const char* name, const char* value) : m_name(name) {
        if (const char* old = std::getenv(name))
            m_old = old;
        set(value);
    }
    ~Variable() { set(m_old ? m_old->c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    void set(const char* value) {
        if (value)
            ::setenv(m_name, value, 1);
        else
            ::unsetenv(m_name);
    }

private:
    const char* m_name;
    std::optional<std::string> m_old;
};

class FoldersTest : public testing::Test {
protected:
    TestSupport::TemporaryFolder m_folder;
    Variable m_home{"HOME", m_folder.path().c_str()};
    Variable m_data{"XDG_DATA_HOME", nullptr};
    Variable m_configuration{"XDG_CONFIG_HOME", nullptr};
};

TEST_F(FoldersTest, DataLieBelowTheUsersHomeOrWhereTheSystemSays) {
    EXPECT_EQ(userDataFolder(), m_folder.path() + "/.local/share");
    m_data.set(m_folder.file("data").c_str());
    EXPECT_EQ(userDataFolder(), m_folder.path() + "/data");
    EXPECT_TRUE(std::filesystem::is_directory(m_folder.file("data"))) << "it is made";
    for (const char* relative : {"", "data"}) {
        m_data.set(relative);
        EXPECT_EQ(userDataFolder(), m_folder.path() + "/.local/share") << relative;
    }
}

TEST_F(FoldersTest, WithoutAHomeThereIsNoPlaceForData) {
    m_home.set(nullptr);
    EXPECT_EQ(userDataFolder(), "");
    m_home.set("relative");
    EXPECT_EQ(userDataFolder(), "");
    ASSERT_TRUE(Files::replace(m_folder.file("file"), "x"));
    m_home.set(m_folder.file("file").c_str());
    EXPECT_EQ(userDataFolder(), "") << "a file";
}

TEST_F(FoldersTest, SettingsLieInTheUsersConfiguration) {
    ASSERT_NE(createUserSettingsStore()->open("key"), nullptr);
    EXPECT_EQ(Files::read(m_folder.file(".config/mirel/settings")), "[key]\n");
    m_configuration.set(m_folder.file("other").c_str());
    ASSERT_NE(createUserSettingsStore()->open("key"), nullptr);
    EXPECT_EQ(Files::read(m_folder.file("other/mirel/settings")), "[key]\n");
}

}
}
