// Saves of a process that is killed halfway.
#include "Backend/core/settings/RegistrySettings.h"
#include "Backend/functions/values/SelectType.h"
#include "tests/support/FileDesk.h"
#include "tests/support/posix/FileSizeLimit.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <memory>
#include <random>
#include <set>

namespace Backend {
namespace {

using TestSupport::FileSizeLimit;
using TestSupport::TemporaryFolder;

namespace Files = Platform::Files;

// Saves alternately what one number stands for and what another one does.
using Save = std::function<void(std::size_t)>;

constexpr int VERSIONS = 2;

// Kills a process at some moment of one of its saves. What prepare does before them is never interrupted.
void killWhileSaving(const std::function<Save()>& prepare, std::mt19937& random) {
    int begun[2];
    ASSERT_EQ(::pipe(begun), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const Save save = prepare();
        for (std::size_t i = 0;; ++i) {
            if (::write(begun[1], "x", 1) != 1)
                ::_exit(1);
            save(i % VERSIONS);
        }
    }
    ::close(begun[1]);
    // During the first save, or during one after which both versions existed; then up to a few saves later.
    const int saves = std::uniform_int_distribution(1, VERSIONS + 1)(random);
    for (int i = 0; i < saves; ++i) {
        char byte = 0;
        EXPECT_EQ(::read(begun[0], &byte, 1), 1) << "it died before its work";
    }
    const unsigned turns = 1u << std::uniform_int_distribution(0, 12)(random);
    for (unsigned i = std::uniform_int_distribution(0u, turns)(random); i > 0; --i)
        ::sched_yield();
    ::kill(child, SIGKILL);
    ::close(begun[0]);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
}

std::string bankOf(int programs) {
    std::string text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n<Bank>\n";
    for (int i = 0; i < programs; ++i)
        text += "<Program name=\"P" + std::to_string(i) + "\">\n\t<Layers merge=\"false\">\n\t</Layers>\n</Program>\n";
    return text + "</Bank>\n";
}

void saveNamed(Host::Cli::ScriptDesk& desk, const std::string& name) {
    desk.run([&name](Mirel& mirel) {
        mirel.changeProgramName(name);
        mirel.saveToCurrentBank(64, nullptr);
    });
}

// In several runs, as each takes its time.
class KilledSaveTest : public testing::TestWithParam<unsigned> {
protected:
    static constexpr int BANK_KILLS = 100;
    static constexpr int SETTINGS_KILLS = 30;

    ~KilledSaveTest() override { MirelUtils::useDataFolder(""); }

    const TemporaryFolder m_folder;
    std::mt19937 m_random{GetParam()};
};

TEST_P(KilledSaveTest, ABankIsTheOldOrTheNewOneWhereverASaveEnds) {
    const std::string path = m_folder.file("a.bnk");
    MirelUtils::useDataFolder(m_folder.file("data"));
    ASSERT_TRUE(Files::replace(path, bankOf(128)));
    const std::array<std::string, VERSIONS> names = {"old", std::string(2000, 'n')};
    std::array<std::string, VERSIONS> whole;
    const auto openBank = [&path] {
        auto desk = std::make_shared<Host::Cli::ScriptDesk>(Host::Cli::ScriptPlayer::Options{});
        desk->run([&path](Mirel& mirel) { mirel.loadBank(path); });
        return desk;
    };
    for (std::size_t i = 0; i < VERSIONS; ++i) {
        saveNamed(*openBank(), names[i]);
        whole[i] = Files::read(path).value_or("");
    }
    ASSERT_NE(whole[0], whole[1]);

    std::set<std::string> seen;
    for (int i = 0; i < BANK_KILLS && !HasFailure(); ++i) {
        killWhileSaving(
            [&]() -> Save {
                return [desk = openBank(), &names](std::size_t version) { saveNamed(*desk, names[version]); };
            },
            m_random);
        const std::string text = Files::read(path).value_or("");
        ASSERT_TRUE(text == whole[0] || text == whole[1]) << "kill " << i << ": " << text.size() << " bytes";
        seen.insert(text);
    }
    EXPECT_EQ(seen.size(), 2u) << "the kills came too early or too late to tell";
}

TEST_P(KilledSaveTest, SettingsAreTheOldOrTheNewOnesWhereverASaveEnds) {
    const std::string path = m_folder.file("settings");
    const std::array<std::string, VERSIONS> banks = {"old", std::string(900, 'n')};
    const Save save = [&](std::size_t version) {
        const auto store = Platform::createFileSettingsStore(path);
        RegistrySettings settings(*store);
        settings.loadFromRegistry("key");
        settings.setDefaultBank(banks[version]);
        settings.setDisplayHeight(static_cast<int>(banks[version].size()));
        settings.saveToRegistry("key");
    };
    save(0);

    std::set<std::string> seen;
    for (int i = 0; i < SETTINGS_KILLS && !HasFailure(); ++i) {
        killWhileSaving([&] { return save; }, m_random);
        const auto store = Platform::createFileSettingsStore(path);
        RegistrySettings settings(*store);
        settings.loadFromRegistry("key");
        const std::string bank = settings.getDefaultBank();
        ASSERT_TRUE(bank == banks[0] || bank == banks[1]) << "kill " << i << ": \"" << bank << "\"";
        ASSERT_EQ(settings.getDisplayHeight(), static_cast<int>(bank.size())) << "one save, not parts of two";
        seen.insert(bank);
    }

    EXPECT_EQ(seen.size(), 2u) << "the kills came too early or too late to tell";
}

INSTANTIATE_TEST_SUITE_P(Runs, KilledSaveTest, testing::Range(1u, 6u));

TEST(FullDiskTest, WhatIsThereSurvivesASaveThatFindsNoRoom) {
    TestSupport::FileDesk desk;
    const std::string bank = bankOf(128);
    desk.write("a.bnk", bank);
    desk.write("a.prg", "old");
    desk.write("old.bnk", "P 1 " + std::string(5000, 'a') + "\n");
    std::string preset;

    desk.run([&](Mirel& mirel) {
        mirel.loadBank(desk.file("a.bnk"));
        mirel.getLayers().loadDefaultLayers();
        mirel.getLayers().savePreset("a", {});
        preset = Files::read(desk.dataFile("Layer Presets", "a.pst")).value_or("");
        EXPECT_FALSE(preset.empty());
        mirel.changeProgramName(std::string(5000, 'x'));
        const FileSizeLimit full(100);
        mirel.saveToProgram(desk.file("a.prg"), nullptr);
        mirel.getLayers().savePreset("a", {});
        mirel.getLayers().savePreset("b", {});
        EXPECT_EQ(mirel.getLayers().getPresets().getPresets().size(), 1u) << "b is no preset";
        mirel.importVersion2Bank(desk.file("old.bnk"), desk.file("a.bnk"), nullptr);
        EXPECT_EQ(mirel.getCurrentBank().getProgramNames().size(), 128u);
        mirel.changeBankSize(200, nullptr);
        EXPECT_EQ(mirel.getCurrentBank().getProgramNames().size(), 128u);
        mirel.saveToCurrentBank(3, nullptr);
        EXPECT_EQ(mirel.getCurrentBank().getProgramNames().size(), 128u);
        EXPECT_EQ(mirel.getCurrentProgram().getName(), "P0") << "the edit is lost, the bank is not";
    });
    EXPECT_EQ(desk.read("a.bnk"), bank);
    EXPECT_EQ(desk.read("a.prg"), "old");
    EXPECT_EQ(Files::read(desk.dataFile("Layer Presets", "a.pst")), preset);
    EXPECT_EQ(Files::size(desk.dataFile("Layer Presets", "b.pst")), std::nullopt);

    int entries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(desk.file("")))
        ++entries;
    EXPECT_EQ(entries, 4) << "the data folder, two banks and a program";
}

TEST(FullDiskTest, SettingsThatFindNoRoomStayTheOldOnes) {
    const TemporaryFolder folder;
    const std::string path = folder.file("settings");
    const auto store = Platform::createFileSettingsStore(path);
    RegistrySettings settings(*store);
    settings.setDefaultBank("old");
    settings.saveToRegistry("key");
    const auto text = Files::read(path);

    {
        const FileSizeLimit full(10);
        settings.setDefaultBank("new");
        settings.saveToRegistry("key");
        EXPECT_EQ(store->open("key"), nullptr);
    }

    EXPECT_EQ(Files::read(path), text);
}

}
}
