#include "Platform/Files.h"

#include "tests/support/TemporaryFolder.h"
#include "tests/support/posix/FileSizeLimit.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {
namespace {

using TestSupport::FileSizeLimit;
using TestSupport::TemporaryFolder;

mode_t modeOf(const std::string& path) {
    struct stat state = {};
    EXPECT_EQ(::stat(path.c_str(), &state), 0);
    return state.st_mode & 07777;
}

TEST(PosixFilesTest, PipesAndDevicesAreRefusedAtOnce) {
    const TemporaryFolder folder;
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, std::string("/dev/null"), std::string("/dev/zero")}) {
        EXPECT_EQ(Files::read(path), std::nullopt) << path;
        EXPECT_FALSE(Files::replace(path, "x")) << path;
        EXPECT_FALSE(Files::append(path, "x")) << path;
        EXPECT_EQ(Files::size(path), std::nullopt) << path;
        EXPECT_FALSE(Files::move(path, folder.file("other"))) << path;
    }
}

TEST(PosixFilesTest, FullDiskLeavesTheOldFileAndNothingElse) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.prg");
    ASSERT_TRUE(Files::replace(path, "old"));

    {
        const FileSizeLimit limit(1000);
        EXPECT_FALSE(Files::replace(path, std::string(100000, 'x')));
        EXPECT_FALSE(Files::replace(folder.file("new.prg"), std::string(100000, 'x')));
    }

    EXPECT_EQ(Files::read(path), "old");

    std::size_t entries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path()))
        ++entries;
    EXPECT_EQ(entries, 1u);
}

TEST(PosixFilesTest, ReplacedFileKeepsItsMode) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a");
    ASSERT_TRUE(Files::replace(path, "1"));
    for (const mode_t mode : {0600u, 0640u, 0755u}) {
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        ASSERT_TRUE(Files::replace(path, "2"));
        EXPECT_EQ(modeOf(path), mode);
    }
}

TEST(PosixFilesTest, ReplaceWritesThroughALink) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a");
    const std::string link = folder.file("link");
    ASSERT_TRUE(Files::replace(path, "1"));
    ASSERT_EQ(::symlink("a", link.c_str()), 0);
    EXPECT_TRUE(Files::replace(link, "2"));
    EXPECT_EQ(Files::read(path), "2");
    struct stat state = {};
    ASSERT_EQ(::lstat(link.c_str(), &state), 0);
    EXPECT_TRUE(S_ISLNK(state.st_mode));
}

}
}
