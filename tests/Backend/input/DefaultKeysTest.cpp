// The keys that a desk starts with, one by one.
#include "Backend/core/files/DefaultXml.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "tests/support/DataTable.h"
#include "tests/support/FakeHost.h"
#include "tests/support/FunctionRows.h"

#include <gtest/gtest.h>

namespace {

using Backend::ComputerInput::KeyConfiguration;
using Backend::ComputerInput::KeyConfigurationMap;
using Backend::FunctionManagement::Function;

constexpr std::size_t KEYS = 75;

std::string slot(const std::unique_ptr<Function>& function) {
    return function ? TestSupport::write(*function) : std::string();
}

class DefaultKeysTest : public testing::Test {
protected:
    DefaultKeysTest() { m_keys.readXml(m_document.getRootElement(), m_host.mirel(), m_useKeyUpMod); }

    TestSupport::FakeHost m_host;
    const Backend::XmlDocument m_document{Backend::DEFAULT_COMPUTER_INPUT_XML, false};
    KeyConfigurationMap m_keys;
    bool m_useKeyUpMod = true;
};

TEST_F(DefaultKeysTest, EachKeyDoesWhatTheTableSays) {
    const auto rows = TestSupport::readTable("default-keys.txt");
    ASSERT_EQ(rows.size(), KEYS);
    ASSERT_EQ(m_keys.size(), KEYS);

    for (const auto& row : rows) {
        SCOPED_TRACE(row[0]);
        ASSERT_EQ(row.size(), 4u);
        const KeyConfiguration* key = m_keys.find(Key(std::string_view(row[0])));
        ASSERT_TRUE(key);
        EXPECT_TRUE(key->isGlobal());
        if (row[1] == "none") {
            EXPECT_EQ(key->getFunctionCount(), 0);
            continue;
        }
        ASSERT_EQ(key->getFunctionCount(), 1);
        EXPECT_EQ(key->getKeepSending(0), row[1] == "keep");
        EXPECT_EQ(slot(key->getFunctions()[0].downFunction), row[2]);
        EXPECT_EQ(slot(key->getFunctions()[0].upFunction), row[3]);
    }
}

TEST_F(DefaultKeysTest, TheElementReplacesAndIgnoresModifiersOfReleases) {
    const auto root = m_document.getRootElement();
    EXPECT_EQ(root.getName(), "ComputerInput");
    EXPECT_FALSE(root.getBoolAttribute("merge", true));
    EXPECT_FALSE(root.getBoolAttribute("useKeyUpMod", true));
    EXPECT_FALSE(m_useKeyUpMod);

    int keys = 0;
    for (auto child = root.begin(); child != root.end(); child.next()) {
        if (child.getName() != "Key")
            continue;
        EXPECT_EQ(child.getAttribute("global"), "true");
        ++keys;
    }

    EXPECT_EQ(keys, static_cast<int>(KEYS));
}

TEST_F(DefaultKeysTest, AllNamedKeysReachTheDesk) {
    for (const auto& row : TestSupport::readTable("default-keys.txt"))
        EXPECT_TRUE(row[0].empty() || Key(std::string_view(row[0])).isAvailable()) << row[0];
}

TEST_F(DefaultKeysTest, TheTwoManualsReachOverTheirNotes) {
    const auto ranges = m_keys.getZoneRanges();
    ASSERT_EQ(ranges.size(), 2u);
    for (const auto& range : ranges) {
        EXPECT_EQ(range.lowNote.getName(), range.id == 0 ? "C4" : "C3");
        EXPECT_EQ(range.highNote.getName(), range.id == 0 ? "G5" : "E4");
    }
    EXPECT_NE(ranges[0].id, ranges[1].id);
}

}
