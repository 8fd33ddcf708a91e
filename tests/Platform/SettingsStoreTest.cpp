#include "Platform/SettingsStore.h"

#include "Platform/Files.h"
#include "Platform/SystemPath.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace Platform {
namespace {

const std::string NAME_BEYOND_ASCII = "Zo\xC3\xAB \xE2\x80\x93 \xE3\x83\x94\xE3\x82\xA2\xE3\x83\x8E \xF0\x9F\x8E\xB9";

class SettingsStoreTest : public testing::Test {
protected:
    TestSupport::TemporaryFolder m_folder;
    std::string m_path = m_folder.file("sub/settings");
    std::unique_ptr<SettingsStore> m_store = createFileSettingsStore(m_path);
};

void writeAll(SettingsStore& store, const std::string& key) {
    const auto opened = store.open(key);
    ASSERT_NE(opened, nullptr);
    opened->writeNumber("number", 4000000000u);
    opened->writeText("text", "a=b:[c]%\r\n\t" + NAME_BEYOND_ASCII);
    opened->writeText("empty", "");
    opened->writeBytes("bytes", std::string_view("\0\xff\x10", 3));
    EXPECT_TRUE(opened->save());
}

void expectAll(SettingsStore& store, const std::string& key) {
    const auto opened = store.open(key);
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->readNumber("number"), 4000000000u);
    EXPECT_EQ(opened->readText("text"), "a=b:[c]%\r\n\t" + NAME_BEYOND_ASCII);
    EXPECT_EQ(opened->readText("empty"), "");
    EXPECT_EQ(opened->readBytes("bytes"), std::string("\0\xff\x10", 3));
    EXPECT_EQ(opened->readNumber("text"), std::nullopt);
    EXPECT_EQ(opened->readText("number"), std::nullopt);
    EXPECT_EQ(opened->readBytes("missing"), std::nullopt);
}

TEST_F(SettingsStoreTest, ValuesAreKeptForTheNextOpening) {
    writeAll(*m_store, "A\\B\\1.0");
    expectAll(*m_store, "A\\B\\1.0");
    expectAll(*createFileSettingsStore(m_path), "A\\B\\1.0");
}

TEST_F(SettingsStoreTest, KeysDoNotShareTheirValues) {
    writeAll(*m_store, "one");
    EXPECT_EQ(m_store->open("two")->readNumber("number"), std::nullopt);
    expectAll(*m_store, "one");
}

TEST_F(SettingsStoreTest, OpeningCreatesTheKey) {
    ASSERT_NE(m_store->open("key"), nullptr);
    EXPECT_EQ(Files::read(m_path), "[key]\n");
}

TEST_F(SettingsStoreTest, NonsenseInTheFileCountsAsNoValue) {
    ASSERT_TRUE(Files::createFolders(m_folder.file("sub")));
    ASSERT_TRUE(Files::replace(m_path,
                               "lost=number:1\n[key]\na\nb=number:x\nc=number:1x\nd=number:99999999999\n"
                               "e=bytes:0\nf=bytes:0g\ng=text:%4\nh=text:%zz\n=number:3\ni=what:1\n"
                               "j=number:7\r\n[%zz]\nk=number:1\n\xff\xfe"));

    const auto key = m_store->open("key");
    ASSERT_NE(key, nullptr);

    for (const char* name : {"lost", "a", "b", "c", "d", "i", "k"})
        EXPECT_EQ(key->readNumber(name), std::nullopt) << name;

    for (const char* name : {"e", "f"})
        EXPECT_EQ(key->readBytes(name), std::nullopt) << name;

    for (const char* name : {"g", "h"})
        EXPECT_EQ(key->readText(name), std::nullopt) << name;

    EXPECT_EQ(key->readNumber(""), 3u);
    EXPECT_EQ(key->readNumber("j"), 7u);
}

TEST_F(SettingsStoreTest, OnlyAnExistingKeyOpensAsExisting) {
    EXPECT_EQ(m_store->openExisting("key"), nullptr);
    EXPECT_EQ(Files::read(m_path), std::nullopt);
    writeAll(*m_store, "key");
    EXPECT_EQ(m_store->openExisting("other"), nullptr);
    const auto key = m_store->openExisting("key");
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->readNumber("number"), 4000000000u);
}

// For instance one that is far too large to hold settings, or that another program holds open.
TEST_F(SettingsStoreTest, AFileThatCanNotBeReadIsNotReplacedByAnEmptyOne) {
    ASSERT_TRUE(Files::createFolders(m_folder.file("sub")));
    ASSERT_TRUE(Files::replace(m_path, "[key]\nnumber=number:5\n"));
    std::filesystem::resize_file(Platform::systemPath(m_path).value(), Files::MAX_SIZE + 1);
    EXPECT_EQ(m_store->open("key"), nullptr);
    EXPECT_EQ(Files::size(m_path), Files::MAX_SIZE + 1);
}

TEST_F(SettingsStoreTest, APlaceThatCanNotBeWrittenCanNotBeOpened) {
    ASSERT_TRUE(Files::replace(m_folder.file("file"), "x"));
    EXPECT_EQ(createFileSettingsStore(m_folder.file("file/settings"))->open("key"), nullptr);
}

}
}
