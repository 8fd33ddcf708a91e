// The manual opens with the user's program for texts, which here is one of the test's own.
#include "Backend/core/installation/MirelUtils.h"
#include "Platform/Files.h"
#include "Platform/SettingsStore.h"
#include "tests/support/Eventually.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace Backend {
namespace {

namespace Files = Platform::Files;
namespace fs = std::filesystem;

class ManualTest : public testing::Test {
protected:
    ManualTest() {
        EXPECT_TRUE(Files::replace(
            m_folder.file("xdg-open"),
            "#!/bin/sh\nprintf '%s' \"$1\" >'" + m_opened + ".new'; mv '" + m_opened + ".new' '" + m_opened + "'\n"));
        fs::permissions(m_folder.file("xdg-open"), fs::perms::owner_all);
        ::setenv("PATH", (m_folder.path() + ":" + m_path).c_str(), 1);
        MirelUtils::useDataFolder(m_folder.file("data"));
        const auto key = MirelUtils::createSettingsStore()->open(MirelUtils::getMainRegistryKeyLite());
        key->writeText("ProgDir", m_folder.path() + "/");
        EXPECT_TRUE(key->save());
    }

    ~ManualTest() override {
        MirelUtils::useDataFolder("");
        ::setenv("PATH", m_path.c_str(), 1);
    }

    const std::string m_path = std::getenv("PATH");
    const TestSupport::TemporaryFolder m_folder;
    const std::string m_opened = m_folder.file("opened");
};

TEST_F(ManualTest, OpensTheFileInTheProgramsFolderWhateverPageIsAskedFor) {
    EXPECT_TRUE(Files::replace(m_folder.file("README.txt"), "How to play"));
    MirelUtils::showManual("presets.htm");
    EXPECT_TRUE(TestSupport::eventually([this] { return Files::read(m_opened).has_value(); }));
    EXPECT_EQ(Files::read(m_opened), m_folder.file("README.txt"));
}

TEST_F(ManualTest, MissingManualIsIgnored) {
    MirelUtils::showManual("");
    EXPECT_FALSE(Files::read(m_opened));
}

}
}
