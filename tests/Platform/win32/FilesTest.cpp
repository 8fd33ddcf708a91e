#include "Platform/Files.h"

#include "Platform/SystemPath.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace Platform {
namespace {

using TestSupport::TemporaryFolder;

TEST(WindowsFilesTest, DeviceNamesAreRefused) {
    const TemporaryFolder folder;
    for (const std::string& path : {std::string("nul"), folder.file("nul"), std::string("\\\\.\\NUL")}) {
        EXPECT_EQ(Files::read(path), std::nullopt) << path;
        EXPECT_FALSE(Files::replace(path, "x")) << path;
        EXPECT_FALSE(Files::append(path, "x")) << path;
    }
}

TEST(WindowsFilesTest, ReadOnlyFileIsNotReplaced) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a");
    ASSERT_TRUE(Files::replace(path, "1"));
    ASSERT_TRUE(SetFileAttributesW(systemPath(path)->c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(Files::replace(path, "2"));
    EXPECT_EQ(Files::read(path), "1");
    SetFileAttributesW(systemPath(path)->c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsFilesTest, FileThatAnotherProgramHoldsStaysAndNothingElseDoes) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.prg");
    ASSERT_TRUE(Files::replace(path, "old"));
    const HANDLE held = CreateFileW(systemPath(path)->c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(Files::replace(path, "new"));
    CloseHandle(held);
    EXPECT_EQ(Files::read(path), "old");
    std::size_t entries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(*systemPath(folder.path())))
        ++entries;
    EXPECT_EQ(entries, 1u);
}

TEST(WindowsFilesTest, PathThatIsNotUtf8IsRefused) {
    EXPECT_EQ(Files::read("\xFF"), std::nullopt);
    EXPECT_FALSE(Files::replace("\xFF", "x"));
    EXPECT_FALSE(Files::createFolders("\xFF"));
}

}
}
