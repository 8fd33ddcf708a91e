#include "Backend/core/MirelUtils.h"

#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace Backend {
namespace {

namespace Files = Platform::Files;

// A folder for data of the test's own, instead of the user's.
class InstallationTest : public testing::Test {
protected:
    InstallationTest() { MirelUtils::useDataFolder(m_folder.file("data")); }
    ~InstallationTest() override { MirelUtils::useDataFolder(""); }

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
    EXPECT_FALSE(Files::removeEmptyFolder(m_folder.file("data"))) << "it is gone";
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
