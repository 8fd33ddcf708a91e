// The driver's entries, with the test's own keys in place of the system's.
#include "Backend/core/installation/InstallerEntryPoints.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Platform/MachineRegistry.h"
#include "Platform/Shell.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace Backend {
namespace {

using Values = std::map<std::string, std::string>;

const std::string FOLDER = "Software\\Microsoft\\Windows NT\\CurrentVersion\\";
const std::string RESTART = "Mirel Console 3 Install: You must restart Windows before using the virtual midi port";

class MidiPortInstallationTest : public testing::Test {
protected:
    MidiPortInstallationTest() {
        Platform::setMachineRegistry([this](const std::string& path) -> std::unique_ptr<Platform::MachineRegistryKey> {
            return path == m_closed ? nullptr : std::make_unique<Key>(*this, m_keys[path]);
        });
        Platform::setMidiInputNames([this] { return m_inputs; });
        Platform::setMessageSink(
            [this](const std::string& text, const std::string& title) { m_messages.push_back(title + ": " + text); });
    }

    ~MidiPortInstallationTest() override {
        Platform::setMachineRegistry({});
        Platform::setMidiInputNames({});
        Platform::setMessageSink({});
    }

    Values& drivers() { return m_keys[FOLDER + "Drivers32"]; }
    Values& installed() { return m_keys[FOLDER + "userinstallable.drivers"]; }

    std::string m_closed;
    long m_writeError = 0;
    std::vector<std::string> m_inputs;
    std::vector<std::string> m_messages;
    std::map<std::string, Values> m_keys;

private:
    class Key : public Platform::MachineRegistryKey {
    public:
        Key(const MidiPortInstallationTest& test, Values& values) : m_test(test), m_values(values) {}

        std::vector<std::string> getValueNames() const override {
            std::vector<std::string> names;
            for (const auto& [name, text] : m_values)
                names.push_back(name);
            return names;
        }

        std::optional<std::string> readText(const std::string& name) const override {
            const auto value = m_values.find(name);
            return value == m_values.end() ? std::nullopt : std::optional(value->second);
        }

        long writeText(const std::string& name, const std::string& text) override {
            if (m_test.m_writeError == 0)
                m_values[name] = text;
            return m_test.m_writeError;
        }

        void remove(const std::string& name) override { m_values.erase(name); }

    private:
        const MidiPortInstallationTest& m_test;
        Values& m_values;
    };
};

TEST_F(MidiPortInstallationTest, SecondTimeChangesNothingWhereThePortWorks) {
    commitPort();
    EXPECT_EQ(drivers().count("midi1"), 1u);
    m_inputs = {"Other", "Mirel Console"};
    m_messages.clear();
    const auto before = m_keys;
    EXPECT_EQ(commitPort(), 0);
    EXPECT_EQ(m_keys, before);
    EXPECT_TRUE(m_messages.empty());
}

TEST_F(MidiPortInstallationTest, PortExistsByItsWholeName) {
    for (const char* name : {"mirel console", "Mirel Console 2", "Mirel Consol", ""}) {
        m_inputs = {name};
        EXPECT_FALSE(MirelUtils::virtualMidiPortExists()) << name;
    }
    m_inputs = {"Other", MirelUtils::getMirelPortName()};
    EXPECT_TRUE(MirelUtils::virtualMidiPortExists());
}

TEST_F(MidiPortInstallationTest, KeyThatDoesNotOpenEndsIt) {
    const char* const names[] = {"Drivers32", "userinstallable.drivers", "drivers.desc"};
    for (int i = 0; i < 3; ++i) {
        m_keys.clear();
        m_messages.clear();
        m_closed = FOLDER + names[i];
        EXPECT_EQ(commitPort(), 0);
        EXPECT_EQ(m_messages,
                  std::vector<std::string>{"ERROR: Couldn't open/create registry key (" + std::to_string(i + 1) + ")"});
        for (const auto& [path, values] : m_keys)
            EXPECT_TRUE(values.empty()) << path;
    }
}

TEST_F(MidiPortInstallationTest, ValuesThatAreNotWrittenAreReportedOneByOne) {
    m_writeError = 5;
    EXPECT_EQ(commitPort(), 0);
    EXPECT_EQ(m_messages,
              (std::vector<std::string>{"ERROR: Couldn't set registry value (1). Return value = 5",
                                        "ERROR: Couldn't set registry value (2). Return value = 5",
                                        "ERROR: Couldn't set registry value (3). Return value = 5", RESTART}));
}

TEST_F(MidiPortInstallationTest, NumberOfADriverHasAnEnd) {
    installed()["midi2147483647"] = "x.dll";
    EXPECT_EQ(commitPort(), 0);
    EXPECT_EQ(drivers().count("midi2147483647"), 1u);
}

}
}
