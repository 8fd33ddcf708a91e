#include "Backend/core/installation/MirelUtils.h"

#include "Platform/Files.h"
#include "Platform/Folders.h"
#include "Platform/SettingsStore.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Backend {
namespace {

namespace Files = Platform::Files;

class MirelFoldersTest : public testing::Test {
protected:
    ~MirelFoldersTest() override { MirelUtils::useDataFolder(""); }

    // With what the installer left in the settings.
    std::string programFolder(const std::string& folder) {
        MirelUtils::useDataFolder(m_folder.path());
        const auto key = MirelUtils::createSettingsStore()->open(MirelUtils::getMainRegistryKeyLite());
        key->writeText("ProgDir", folder);
        EXPECT_TRUE(key->save());
        return MirelUtils::getMirelProgDir();
    }

    TestSupport::TemporaryFolder m_folder;
};

TEST_F(MirelFoldersTest, EachEditionHasItsKey) {
    EXPECT_EQ(MirelUtils::getMainRegistryKey(), "Software\\Tamsel Software\\Mirel Console 3\\3.2");
    EXPECT_EQ(MirelUtils::getMainRegistryKeyLite(), "Software\\Tamsel Software\\Mirel Console 3 LE\\3.2");
    EXPECT_EQ(MirelUtils::getRegistryKey("Other"), "Software\\Tamsel Software\\Other\\3.2");
}

TEST_F(MirelFoldersTest, DataLieInTheMakersFolderOfTheUser) {
    const std::string company = Files::join(Platform::userDataFolder(), "Tamsel Software");
    EXPECT_EQ(MirelUtils::getCompanyAppDataDir(), company);
    EXPECT_EQ(MirelUtils::getMirelAppDataDir(), Files::join(company, "Mirel Console 3 LE"));
}

TEST_F(MirelFoldersTest, AChosenFolderHoldsDataAndSettings) {
    MirelUtils::useDataFolder(m_folder.path());
    EXPECT_EQ(MirelUtils::getMirelAppDataDir(), m_folder.path());
    const auto key = MirelUtils::createSettingsStore()->open("key");
    ASSERT_NE(key, nullptr);
    EXPECT_TRUE(Files::size(m_folder.file("settings")).has_value());
}

TEST_F(MirelFoldersTest, TheProgramFolderHasNoSeparatorAtItsEnd) {
    EXPECT_EQ(programFolder("C:\\Prog\\"), "C:\\Prog");
    EXPECT_EQ(programFolder("C:\\Prog"), "C:\\Prog");
    EXPECT_EQ(programFolder("C:\\Prog\\\\"), "C:\\Prog\\") << "one alone";
    EXPECT_EQ(programFolder("/opt/prog/"), "/opt/prog");
    EXPECT_EQ(programFolder("/"), "/");
    EXPECT_EQ(programFolder("C:\\Zo\xC3\xAB \xF0\x9F\x8E\xB9\\"), "C:\\Zo\xC3\xAB \xF0\x9F\x8E\xB9");
}

TEST_F(MirelFoldersTest, WithoutAUsableValueThereIsNoProgramFolder) {
    MirelUtils::useDataFolder(m_folder.path());
    EXPECT_EQ(MirelUtils::getMirelProgDir(), "");
    EXPECT_EQ(programFolder(""), "");
    EXPECT_EQ(programFolder(std::string(999, 'a')), std::string(999, 'a'));
    EXPECT_EQ(programFolder(std::string(1000, 'a')), "") << "with the zero at its end too long for any setting";
    const auto key = MirelUtils::createSettingsStore()->open(MirelUtils::getMainRegistryKeyLite());
    key->writeNumber("ProgDir", 5);
    EXPECT_TRUE(key->save());
    EXPECT_EQ(MirelUtils::getMirelProgDir(), "");
}

TEST_F(MirelFoldersTest, WhereNoSettingsCanBeThereIsNoProgramFolder) {
    ASSERT_TRUE(Files::replace(m_folder.file("file"), "x"));
    MirelUtils::useDataFolder(m_folder.file("file"));
    EXPECT_EQ(MirelUtils::getMirelProgDir(), "");
}

}
}
