// What the installer calls, with the test's own registry keys.
#include "Backend/core/installation/InstallerEntryPoints.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Platform/Shell.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace Backend {
namespace {

using Values = std::map<std::string, std::string>;

// For this process only, since others run at the same time.
std::string scratch() {
    return "Software\\MirelInstallerTest" + std::to_string(GetCurrentProcessId());
}
constexpr const char* DRIVERS = "Software\\Microsoft\\Windows NT\\CurrentVersion\\Drivers32";
constexpr const char* INSTALLED = "Software\\Microsoft\\Windows NT\\CurrentVersion\\userinstallable.drivers";
constexpr const char* DESCRIPTIONS = "Software\\Microsoft\\Windows NT\\CurrentVersion\\drivers.desc";
constexpr const char* RESTART = "Mirel Console 3 Install: You must restart Windows before using the virtual midi port";

class InstallerTest : public testing::Test {
protected:
    InstallerTest() {
        removeScratch();
        machine = makeKey(HKEY_CURRENT_USER, scratch() + "\\Machine");
        user = makeKey(HKEY_CURRENT_USER, scratch() + "\\User");
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine);
        RegOverridePredefKey(HKEY_CURRENT_USER, user);
        Platform::setMessageSink(
            [this](const std::string& text, const std::string& title) { messages.push_back(title + ": " + text); });
    }

    ~InstallerTest() override {
        Platform::setMessageSink({});
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(machine);
        RegCloseKey(user);
        removeScratch();
    }

    static HKEY makeKey(HKEY root, const std::string& path) {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        return key;
    }

    static void set(HKEY root, const char* path, const Values& values) {
        const HKEY key = makeKey(root, path);
        for (const auto& [name, text] : values)
            RegSetValueExA(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                           static_cast<DWORD>(text.size() + 1));
        RegCloseKey(key);
    }

    static Values get(const char* path) {
        Values values;
        const HKEY key = makeKey(HKEY_LOCAL_MACHINE, path);
        for (DWORD index = 0;; ++index) {
            char name[500];
            char text[500];
            DWORD nameSize = sizeof(name);
            DWORD textSize = sizeof(text);
            if (RegEnumValueA(key, index, name, &nameSize, nullptr, nullptr, reinterpret_cast<BYTE*>(text),
                              &textSize) != ERROR_SUCCESS)
                break;
            EXPECT_EQ(text[textSize - 1], '\0') << "the text's end is part of the value";
            values[name] = text;
        }
        RegCloseKey(key);
        return values;
    }

    std::vector<std::string> messages;

private:
    static void removeScratch() { RegDeleteTreeA(HKEY_CURRENT_USER, scratch().c_str()); }

    HKEY machine = nullptr;
    HKEY user = nullptr;
};

TEST_F(InstallerTest, PortGetsTheNumberAfterTheHighestOfBothKeys) {
    set(HKEY_LOCAL_MACHINE, DRIVERS, {{"midi", "a.dll"}, {"midi1", "b.dll"}, {"midi7", "c.dll"}, {"wave9", "d.dll"}});
    set(HKEY_LOCAL_MACHINE, INSTALLED, {{"midi9", "e.dll"}});
    EXPECT_EQ(commitPort(), 0);
    EXPECT_EQ(get(DRIVERS)["midi10"], "mirelmidiport.dll");
    EXPECT_EQ(get(INSTALLED)["midi10"], "mirelmidiport.dll");
    EXPECT_EQ(get(DESCRIPTIONS), (Values{{"mirelmidiport.dll", "Mirel Console"}}));
    EXPECT_EQ(get(DRIVERS).size(), 5u);
    EXPECT_EQ(messages, std::vector<std::string>{RESTART});
}

TEST_F(InstallerTest, FirstDriverIsNumberOne) {
    EXPECT_EQ(commitPort(), 0);
    EXPECT_EQ(get(DRIVERS), (Values{{"midi1", "mirelmidiport.dll"}}));
}

TEST_F(InstallerTest, WithoutThePortNothingIsSet) {
    EXPECT_EQ(commitNoPort(), 0);
    EXPECT_TRUE(get(DRIVERS).empty());
    EXPECT_TRUE(messages.empty());
}

TEST_F(InstallerTest, UninstallRemovesJustItsOwnDrivers) {
    set(HKEY_LOCAL_MACHINE, DRIVERS,
        {{"midi", "mirelmidiport.dll"},
         {"midi0", "mirelmidiport.dll"},
         {"midi1", "other.dll"},
         {"midi2", "mirelmidiport.dll"},
         {"midi5", "mirelmidiport.dll"},
         {"midi6", "MirelMidiPort.dll"}});
    set(HKEY_LOCAL_MACHINE, INSTALLED, {{"midi2", "mirelmidiport.dll"}, {"midi5", "x.dll"}, {"midi6", "y.dll"}});
    set(HKEY_LOCAL_MACHINE, DESCRIPTIONS, {{"mirelmidiport.dll", "Mirel Console"}, {"other.dll", "Other"}});

    EXPECT_EQ(uninstall(), 0);
    EXPECT_EQ(get(DRIVERS), (Values{{"midi", "mirelmidiport.dll"},
                                    {"midi0", "mirelmidiport.dll"},
                                    {"midi1", "other.dll"},
                                    {"midi6", "MirelMidiPort.dll"}}));
    EXPECT_EQ(get(INSTALLED), (Values{{"midi6", "y.dll"}}));
    EXPECT_EQ(get(DESCRIPTIONS), (Values{{"other.dll", "Other"}}));
    EXPECT_TRUE(messages.empty());
}

TEST_F(InstallerTest, UninstallLeavesThePortToTheOtherEdition) {
    set(HKEY_LOCAL_MACHINE, DRIVERS, {{"midi2", "mirelmidiport.dll"}});
    set(HKEY_CURRENT_USER, MirelUtils::getMainRegistryKey().c_str(), {{"ProgDir", "C:\\Full"}});
    EXPECT_EQ(uninstall(), 0);
    EXPECT_EQ(get(DRIVERS).size(), 1u);
}

TEST_F(InstallerTest, UninstallAsksForTheOtherEditionWithoutATrace) {
    EXPECT_EQ(uninstall(), 0);
    HKEY key = nullptr;
    EXPECT_NE(RegOpenKeyExA(HKEY_CURRENT_USER, MirelUtils::getMainRegistryKey().c_str(), 0, KEY_READ, &key),
              ERROR_SUCCESS);
}

TEST_F(InstallerTest, BlankFolderOfTheOtherEditionDoesNotCount) {
    set(HKEY_LOCAL_MACHINE, DRIVERS, {{"midi2", "mirelmidiport.dll"}});
    set(HKEY_CURRENT_USER, MirelUtils::getMainRegistryKey().c_str(), {{"ProgDir", "  "}});
    EXPECT_EQ(uninstall(), 0);
    EXPECT_TRUE(get(DRIVERS).empty());
}

TEST_F(InstallerTest, ProgramsFolderEndsWithoutASeparator) {
    EXPECT_EQ(MirelUtils::getMirelProgDir(), "");
    set(HKEY_CURRENT_USER, MirelUtils::getMainRegistryKeyLite().c_str(), {{"ProgDir", "C:\\Prog\\"}});
    EXPECT_EQ(MirelUtils::getMirelProgDir(), "C:\\Prog");
    set(HKEY_CURRENT_USER, MirelUtils::getMainRegistryKeyLite().c_str(), {{"ProgDir", "C:\\Prog"}});
    EXPECT_EQ(MirelUtils::getMirelProgDir(), "C:\\Prog");
}

TEST_F(InstallerTest, LibraryExportsItsEntryPoints) {
    const auto library = static_cast<HMODULE>(MirelUtils::getDllInstance());
    char path[MAX_PATH] = {};
    GetModuleFileNameA(library, path, sizeof(path));
    EXPECT_TRUE(std::string(path).ends_with("mirel.dll")) << path;
    for (const char* name : {"commitPort", "commitNoPort", "uninstall"})
        EXPECT_NE(GetProcAddress(library, name), nullptr) << name;
}

}
}
