#include "Backend/core/installation/MirelUtils.h"

#include "Platform/Files.h"
#include "Platform/SettingsStore.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace Backend {
namespace {

namespace Files = Platform::Files;

// Uses the test's own data folder instead of the user's.
class InstallationTest : public testing::Test {
protected:
    InstallationTest() { MirelUtils::useDataFolder(m_folder.file("data")); }
    ~InstallationTest() override { MirelUtils::useDataFolder(""); }

    static void installInto(const std::string& folder) {
        const auto key = MirelUtils::createSettingsStore()->open(MirelUtils::getMainRegistryKeyLite());
        key->writeText("ProgDir", folder);
        EXPECT_TRUE(key->save());
    }

    std::string makeFile(const std::string& folder, const std::string& name, const std::string& content) {
        Files::createFolders(m_folder.file(folder));
        const std::string path = Files::join(m_folder.file(folder), name);
        EXPECT_TRUE(Files::replace(path, content));
        return path;
    }

    TestSupport::TemporaryFolder m_folder;
};

TEST_F(InstallationTest, UninstallKeepsWhatIsTheUsers) {
    const std::string inputs = makeFile("data", "Midi Inputs.txt", "x");
    const std::string outputs = makeFile("data", "Midi Outputs.txt", "x");
    const std::string bank = makeFile("data", "My.bnk", "x");
    MirelUtils::uninstall();
    EXPECT_FALSE(Files::size(inputs));
    EXPECT_FALSE(Files::size(outputs));
    EXPECT_TRUE(Files::size(bank));
}

TEST_F(InstallationTest, UninstallRemovesAnEmptyFolder) {
    makeFile("data", "Midi Inputs.txt", "x");
    MirelUtils::uninstall();
    EXPECT_FALSE(std::filesystem::exists(m_folder.file("data")));
}

TEST_F(InstallationTest, UninstallKeepsTheSettings) {
    installInto(m_folder.file("prog"));
    MirelUtils::uninstall();
    EXPECT_EQ(MirelUtils::getMirelProgDir(), m_folder.file("prog"));
}

TEST_F(InstallationTest, DefaultFilesAreRemovedButNotWhatTheUserMade) {
    installInto(m_folder.file("prog"));
    makeFile("prog/Default/Sequences", "a.seq", "");
    makeFile("prog/Default/Sequences", "b.seq", "");
    const std::string own = makeFile("data/Sequences", "a.seq", "changed, and still one of ours");
    const std::string mine = makeFile("data/Sequences", "mine.seq", "mine");
    MirelUtils::removeFiles(m_folder.file("data").c_str(), "Sequences");
    EXPECT_FALSE(Files::size(own));
    EXPECT_EQ(Files::read(mine), "mine");
}

TEST_F(InstallationTest, FolderOfDefaultFilesGoesWhenItIsEmpty) {
    installInto(m_folder.file("prog"));
    makeFile("prog/Default/Sequences", "a.seq", "");
    makeFile("data/Sequences", "a.seq", "");
    MirelUtils::removeFiles(m_folder.file("data").c_str(), "Sequences");
    EXPECT_FALSE(std::filesystem::exists(m_folder.file("data/Sequences")));
    EXPECT_TRUE(Files::size(m_folder.file("prog/Default/Sequences/a.seq")));
}

TEST_F(InstallationTest, DefaultFilesAreCopiedOverWhatIsThere) {
    makeFile("data/Default/Sequences", "a.seq", "new");
    makeFile("data/Default/Sequences", "Zo\xC3\xAB.txt", "any kind");
    makeFile("data/Default/Sequences/deeper", "b.seq", "not followed");
    const std::string old = makeFile("data/Sequences", "a.seq", "old");
    const std::string mine = makeFile("data/Sequences", "mine.seq", "mine");
    MirelUtils::copyFiles(m_folder.file("data"), "Sequences");
    EXPECT_EQ(Files::read(old), "new");
    EXPECT_EQ(Files::read(mine), "mine");
    EXPECT_EQ(Files::list(m_folder.file("data/Sequences"), "").size(), 3u);
}

TEST_F(InstallationTest, ACopyThatFailsEndsTheRest) {
    makeFile("data/Default/Layers", "a.pst", "a");
    makeFile("data/Default/Layers", "b.pst", "b");
    Files::createFolders(m_folder.file("data/Layers/a.pst"));
    MirelUtils::copyFiles(m_folder.file("data"), "Layers");
    EXPECT_TRUE(Files::list(m_folder.file("data/Layers"), "").empty());
}

}
}
