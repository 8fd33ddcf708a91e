#include "Platform/Files.h"

#include "Platform/SystemPath.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace Platform {
namespace {

using TestSupport::TemporaryFolder;

// "ピアノ.seq"
const std::string UNICODE_NAME = "\xE3\x83\x94\xE3\x82\xA2\xE3\x83\x8E.seq";

std::size_t entries(const std::string& folder) {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(*systemPath(folder)))
        ++count;
    return count;
}

TEST(FilesTest, ReplacedFileReadsBackByteByByte) {
    const TemporaryFolder folder;
    std::string content;
    for (int i = 0; i < 70000; ++i)
        content += static_cast<char>(i % 256);

    for (const std::string& name : {std::string("a.bin"), UNICODE_NAME, std::string("with blank #1 %41.txt")}) {
        const std::string path = folder.file(name);
        EXPECT_EQ(Files::read(path), std::nullopt) << name;
        ASSERT_TRUE(Files::replace(path, content)) << name;
        EXPECT_EQ(Files::read(path), content) << name;
        EXPECT_EQ(Files::size(path), content.size()) << name;
        ASSERT_TRUE(Files::replace(path, "\r\n")) << name;
        EXPECT_EQ(Files::read(path), "\r\n") << name;
        ASSERT_TRUE(Files::replace(path, "")) << name;
        EXPECT_EQ(Files::read(path), "") << name;
    }

    EXPECT_EQ(entries(folder.path()), 3u) << "nothing temporary stays";
}

TEST(FilesTest, AFileWithTheLongestNameIsReplaced) {
    const TemporaryFolder folder;
    std::string name = "a.bnk";
    while (name.size() <= 252)
        name = "\xE3\x83\x94" + name;
    const std::string path = folder.file(name);
    ASSERT_TRUE(Files::replace(path, "1"));
    ASSERT_TRUE(Files::replace(path, "2"));
    EXPECT_EQ(Files::read(path), "2");
    EXPECT_EQ(entries(folder.path()), 1u);
}

TEST(FilesTest, ReadRefusesLargeFilesAndWhatIsNotAPlainFile) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a");
    ASSERT_TRUE(Files::replace(path, "12345"));
    EXPECT_EQ(Files::read(path, 5), "12345");
    EXPECT_EQ(Files::read(path, 4), std::nullopt);
    EXPECT_EQ(Files::read(folder.path()), std::nullopt);
    EXPECT_EQ(Files::read(folder.file("missing")), std::nullopt);
    EXPECT_EQ(Files::read(folder.file("missing/a")), std::nullopt);
    EXPECT_EQ(Files::read(""), std::nullopt);
    EXPECT_EQ(Files::read(path + std::string(1, '\0')), std::nullopt);
}

TEST(FilesTest, FailedReplaceLeavesEverythingAsItWas) {
    const TemporaryFolder folder;
    const std::string inside = folder.file("folder");
    ASSERT_TRUE(Files::createFolders(inside));
    EXPECT_FALSE(Files::replace(inside, "x")) << "a folder";
    EXPECT_FALSE(Files::replace(folder.file("missing/a"), "x")) << "in no folder";
    EXPECT_FALSE(Files::replace("", "x"));
    EXPECT_EQ(entries(folder.path()), 1u);
    EXPECT_EQ(entries(inside), 0u);
}

TEST(FilesTest, ReaderSeesTheOldOrTheNewContentOfAReplacedFile) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a");

    const std::vector<std::string> contents = {std::string(200000, 'a'), std::string(100000, 'b')};
    ASSERT_TRUE(Files::replace(path, contents[0]));

    std::thread writer([&] {
        for (std::size_t i = 0; i < 50; ++i)
            static_cast<void>(Files::replace(path, contents[i % 2]));  // Windows refuses while the file is read.
    });
    int strange = 0;
    for (int i = 0; i < 100; ++i) {
        const auto content = Files::read(path);
        if (content && *content != contents[0] && *content != contents[1])
            ++strange;
    }
    writer.join();
    EXPECT_EQ(strange, 0);
}

TEST(FilesTest, AppendCreatesTheFileOrAddsToItsEnd) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a");
    EXPECT_TRUE(Files::append(path, "one\n"));
    EXPECT_TRUE(Files::append(path, "two\n"));
    EXPECT_EQ(Files::read(path), "one\ntwo\n");
    EXPECT_FALSE(Files::append(folder.path(), "x"));
    EXPECT_FALSE(Files::append(folder.file("missing/a"), "x"));
}

TEST(FilesTest, RemoveTakesOneFile) {
    const TemporaryFolder folder;
    const std::string path = folder.file(UNICODE_NAME);
    ASSERT_TRUE(Files::replace(path, "x"));
    EXPECT_TRUE(Files::remove(path));
    EXPECT_EQ(Files::size(path), std::nullopt);
    EXPECT_FALSE(Files::remove(path));
    EXPECT_FALSE(Files::remove(folder.path())) << "a folder is no file";
    EXPECT_FALSE(Files::remove(""));
}

TEST(FilesTest, MoveKeepsAnExistingTarget) {
    const TemporaryFolder folder;
    const std::string from = folder.file("from");
    const std::string to = folder.file(UNICODE_NAME);

    ASSERT_TRUE(Files::replace(from, "1"));
    EXPECT_TRUE(Files::move(from, to));
    EXPECT_EQ(Files::size(from), std::nullopt);
    EXPECT_EQ(Files::read(to), "1");
    ASSERT_TRUE(Files::replace(from, "2"));
    EXPECT_FALSE(Files::move(from, to));
    EXPECT_EQ(Files::read(from), "2");
    EXPECT_EQ(Files::read(to), "1");
    EXPECT_FALSE(Files::move(folder.file("missing"), folder.file("other")));
    EXPECT_FALSE(Files::move(from, folder.file("missing/other")));
    EXPECT_FALSE(Files::move(folder.path(), folder.path() + "2")) << "a folder";
}

TEST(FilesTest, CreateFoldersCreatesParentsToo) {
    const TemporaryFolder folder;
    const std::string deep = folder.file("a/b/" + UNICODE_NAME);
    EXPECT_TRUE(Files::createFolders(deep));
    EXPECT_TRUE(Files::createFolders(deep)) << "also when it is there";
    EXPECT_TRUE(Files::replace(Files::join(deep, "x"), "1"));
    EXPECT_FALSE(Files::createFolders(Files::join(deep, "x"))) << "a file stands there";
    EXPECT_FALSE(Files::createFolders(""));
}

TEST(FilesTest, ListGivesPlainFilesOfTheExtensionInByteOrder) {
    const TemporaryFolder folder;
    for (const std::string& name : {std::string("b.seq"), std::string("B.seq"), UNICODE_NAME, std::string("a.seq2"),
                                    std::string("c.SEQ"), std::string("seq"), std::string("a.x.seq")}) {
        ASSERT_TRUE(Files::append(folder.file(name), "")) << name;
    }

    ASSERT_TRUE(Files::createFolders(folder.file("folder.seq")));

    std::vector<std::string> expected = {"a.x.seq", "b.seq", UNICODE_NAME};
    // Where case does not count, "b.seq" and "B.seq" are one file, and ".SEQ" is the same extension.
    if (entries(folder.path()) == 8)
        expected.insert(expected.begin(), "B.seq");
    else
        expected.insert(expected.end() - 1, "c.SEQ");

    EXPECT_EQ(Files::list(folder.path(), ".seq"), expected);
    EXPECT_TRUE(Files::list(folder.file("missing"), ".seq").empty());
    EXPECT_TRUE(Files::list(folder.file("b.seq"), ".seq").empty());
    EXPECT_TRUE(Files::list("", ".seq").empty());
}

TEST(FilesTest, OnlyPlainFilesHaveASize) {
    const TemporaryFolder folder;
    ASSERT_TRUE(Files::replace(folder.file("a"), "123"));
    EXPECT_EQ(Files::size(folder.file("a")), 3u);
    EXPECT_EQ(Files::size(folder.path()), std::nullopt);
    EXPECT_EQ(Files::size(folder.file("missing")), std::nullopt);
}

TEST(FilesTest, OnlyNewlinesBecomeTheSystemsLineEnds) {
    const bool isWindows = std::filesystem::path::preferred_separator == '\\';
    EXPECT_EQ(Files::withSystemLineEnds("a\n\nb\tc"), isWindows ? "a\r\n\r\nb\tc" : "a\n\nb\tc");
    EXPECT_EQ(Files::withSystemLineEnds(""), "");
}

TEST(FilesTest, JoinPutsOneSeparatorBetween) {
    const std::string separator(1, static_cast<char>(std::filesystem::path::preferred_separator));
    EXPECT_EQ(Files::join("a", "b"), "a" + separator + "b");
    EXPECT_EQ(Files::join("a/", "b"), "a/b");
    EXPECT_EQ(Files::join("a" + separator, "b"), "a" + separator + "b");
    EXPECT_EQ(Files::join("", "b"), "b");
}

}
}
