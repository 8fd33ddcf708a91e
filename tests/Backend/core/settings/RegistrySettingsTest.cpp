#include "Backend/core/settings/RegistrySettings.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>

namespace Backend {
namespace {

// A store in memory whose values can be read as text: "number 5", "text abc", "bytes 00ff".
class MemoryStore : public Platform::SettingsStore {
public:
    using Values = std::map<std::string, std::string>;

    std::unique_ptr<Platform::SettingsKey> open(const std::string& key) override {
        return canOpen ? std::make_unique<Key>(keys[key]) : nullptr;
    }

    std::unique_ptr<Platform::SettingsKey> openExisting(const std::string& key) override {
        return keys.count(key) > 0 ? open(key) : nullptr;
    }

    std::map<std::string, Values> keys;
    bool canOpen = true;

private:
    class Key : public Platform::SettingsKey {
    public:
        explicit Key(Values& values) : m_values(values) {}

        std::optional<std::uint32_t> readNumber(const std::string& name) const override {
            const auto text = read(name, "number ");
            return text ? std::optional(static_cast<std::uint32_t>(std::stoul(*text))) : std::nullopt;
        }
        std::optional<std::string> readText(const std::string& name) const override { return read(name, "text "); }
        std::optional<std::string> readBytes(const std::string& name) const override {
            const auto hex = read(name, "bytes ");
            if (!hex)
                return std::nullopt;
            std::string bytes;
            for (std::size_t i = 0; i < hex->size(); i += 2)
                bytes += static_cast<char>(std::stoi(hex->substr(i, 2), nullptr, 16));
            return bytes;
        }
        void writeNumber(const std::string& name, std::uint32_t value) override {
            m_values[name] = "number " + std::to_string(value);
        }
        void writeText(const std::string& name, const std::string& value) override { m_values[name] = "text " + value; }
        void writeBytes(const std::string& name, std::string_view value) override {
            std::string hex;
            for (const char byte : value) {
                char digits[3];
                std::snprintf(digits, sizeof(digits), "%02x", static_cast<unsigned char>(byte));
                hex += digits;
            }
            m_values[name] = "bytes " + hex;
        }
        bool save() override { return true; }

    private:
        std::optional<std::string> read(const std::string& name, const std::string& kind) const {
            const auto value = m_values.find(name);
            if (value == m_values.end() || !value->second.starts_with(kind))
                return std::nullopt;
            return value->second.substr(kind.size());
        }

        Values& m_values;
    };
};

const std::string KEY = "Software\\Tamsel Software\\Test\\3.2";

void expectDefaults(const RegistrySettings& settings) {
    EXPECT_EQ(settings.getProgDir(), "");
    EXPECT_EQ(settings.getDefaultBank(), "");
    EXPECT_EQ(settings.getGlobalKeyboard(), false);
    EXPECT_EQ(settings.getMidiThru(), true);
    EXPECT_EQ(settings.isRetroRecordEnabled(), false);
    EXPECT_EQ(settings.getRetroRecordBufferSize(), 100000);
    EXPECT_EQ(settings.getMidiBufferDir(), "");
    EXPECT_EQ(settings.getLargeDisplayFont(), false);
    EXPECT_EQ(settings.getMouseSensitivity(), 1);
    EXPECT_EQ(settings.getDockToBottomEdge(), false);
    EXPECT_EQ(settings.getDisplayMidiInputEvents(), false);
    EXPECT_EQ(settings.getDisplayMidiOutputEvents(), true);
    EXPECT_EQ(settings.getDisplayNumbers(), false);
    EXPECT_EQ(settings.getDisplayHeight(), 200);
    EXPECT_EQ(settings.getLastWindowPosition(), (Rect{-1, -1, -1, -1}));
    EXPECT_EQ(settings.getAlwaysOnTop(), false);
    EXPECT_EQ(settings.getUseSkinBorder(), true);
    EXPECT_EQ(settings.getDefaultMidiOutput(), -1);
    EXPECT_EQ(settings.getLiteVelocity(), 100);
    EXPECT_EQ(settings.getLiteChannel(), 0);
    EXPECT_EQ(settings.getLiteStackNotes(), true);
    EXPECT_EQ(settings.getClickZoneChannelTranspose(), false);
    EXPECT_TRUE(settings.getEnabledMidiInputs().empty());
    EXPECT_TRUE(settings.getEnabledMidiOutputs().empty());
}

TEST(RegistrySettingsTest, AFirstRunHasTheDefaultsAndMakesTheKey) {
    MemoryStore store;
    RegistrySettings settings(store);
    expectDefaults(settings);
    settings.loadFromRegistry(KEY);
    expectDefaults(settings);
    EXPECT_EQ(store.keys.count(KEY), 1u);
}

TEST(RegistrySettingsTest, EachChangedValueIsWrittenUnderItsNameAndReadBack) {
    MemoryStore store;
    RegistrySettings settings(store);
    settings.setDefaultBank("DefaultBank text");
    settings.setGlobalKeyboard(!settings.getGlobalKeyboard());
    settings.setMidiThru(!settings.getMidiThru());
    settings.setRetroRecordEnabled(!settings.isRetroRecordEnabled());
    settings.setRetroRecordBufferSize(1005);
    settings.setMidiBufferDir("MidiBufferDir text");
    settings.setLargeDisplayFont(!settings.getLargeDisplayFont());
    settings.setMouseSensitivity(1008);
    settings.setDockToBottomEdge(!settings.getDockToBottomEdge());
    settings.setDisplayMidiInputEvents(!settings.getDisplayMidiInputEvents());
    settings.setDisplayMidiOutputEvents(!settings.getDisplayMidiOutputEvents());
    settings.setDisplayNumbers(!settings.getDisplayNumbers());
    settings.setDisplayHeight(1013);
    settings.setLastWindowPosition(Rect{1, -2, 3, 40000});
    settings.setAlwaysOnTop(!settings.getAlwaysOnTop());
    settings.setUseSkinBorder(!settings.getUseSkinBorder());
    settings.setDefaultMidiOutput(1017);
    settings.setLiteVelocity(1018);
    settings.setLiteChannel(1019);
    settings.setLiteStackNotes(!settings.getLiteStackNotes());
    settings.setClickZoneChannelTranspose(!settings.getClickZoneChannelTranspose());
    settings.saveToRegistry(KEY);
    const MemoryStore::Values expected = {
        {"DefaultBank", "text DefaultBank text"},
        {"GlobalKeyboard", "number 1"},
        {"MidiThru", "number 0"},
        {"RetroRecordEnabled", "number 1"},
        {"MaxMidiBufferFileSize", "number 1005"},
        {"MidiBufferDir", "text MidiBufferDir text"},
        {"LargeDisplayFont", "number 1"},
        {"MouseSensitivity", "number 1008"},
        {"DockToBottomEdge", "number 1"},
        {"DisplayMidiInputEvents", "number 1"},
        {"DisplayMidiOutputEvents", "number 0"},
        {"DisplayNumbers", "number 1"},
        {"DisplayHeight", "number 1013"},
        {"LastWindowPosition", "bytes 01000000feffffff03000000409c0000"},
        {"EnabledMidiInputs", "text "},
        {"EnabledMidiOutputs", "text "},
        {"AlwaysOnTop", "number 1"},
        {"UseSkinBorder", "number 0"},
        {"DefaultMidiOutput", "number 1017"},
        {"LiteVelocity", "number 1018"},
        {"LiteChannel", "number 1019"},
        {"LiteStackNotes", "number 0"},
        {"ClickZoneChannelTranspose", "number 1"},
    };
    EXPECT_EQ(store.keys[KEY], expected);

    RegistrySettings read(store);
    read.loadFromRegistry(KEY);
    EXPECT_EQ(read.getDefaultBank(), "DefaultBank text");
    EXPECT_EQ(read.getGlobalKeyboard(), true);
    EXPECT_EQ(read.getMidiThru(), false);
    EXPECT_EQ(read.isRetroRecordEnabled(), true);
    EXPECT_EQ(read.getRetroRecordBufferSize(), 1005);
    EXPECT_EQ(read.getMidiBufferDir(), "MidiBufferDir text");
    EXPECT_EQ(read.getLargeDisplayFont(), true);
    EXPECT_EQ(read.getMouseSensitivity(), 1008);
    EXPECT_EQ(read.getDockToBottomEdge(), true);
    EXPECT_EQ(read.getDisplayMidiInputEvents(), true);
    EXPECT_EQ(read.getDisplayMidiOutputEvents(), false);
    EXPECT_EQ(read.getDisplayNumbers(), true);
    EXPECT_EQ(read.getDisplayHeight(), 1013);
    EXPECT_EQ(read.getLastWindowPosition(), (Rect{1, -2, 3, 40000}));
    EXPECT_EQ(read.getAlwaysOnTop(), true);
    EXPECT_EQ(read.getUseSkinBorder(), false);
    EXPECT_EQ(read.getDefaultMidiOutput(), 1017);
    EXPECT_EQ(read.getLiteVelocity(), 1018);
    EXPECT_EQ(read.getLiteChannel(), 1019);
    EXPECT_EQ(read.getLiteStackNotes(), false);
    EXPECT_EQ(read.getClickZoneChannelTranspose(), true);
}

struct Flag {
    const char* name;
    bool (RegistrySettings::*get)() const;
    void (RegistrySettings::*set)(bool);
};

constexpr Flag FLAGS[] = {
    {"GlobalKeyboard", &RegistrySettings::getGlobalKeyboard, &RegistrySettings::setGlobalKeyboard},
    {"MidiThru", &RegistrySettings::getMidiThru, &RegistrySettings::setMidiThru},
    {"RetroRecordEnabled", &RegistrySettings::isRetroRecordEnabled, &RegistrySettings::setRetroRecordEnabled},
    {"LargeDisplayFont", &RegistrySettings::getLargeDisplayFont, &RegistrySettings::setLargeDisplayFont},
    {"DockToBottomEdge", &RegistrySettings::getDockToBottomEdge, &RegistrySettings::setDockToBottomEdge},
    {"DisplayMidiInputEvents", &RegistrySettings::getDisplayMidiInputEvents,
     &RegistrySettings::setDisplayMidiInputEvents},
    {"DisplayMidiOutputEvents", &RegistrySettings::getDisplayMidiOutputEvents,
     &RegistrySettings::setDisplayMidiOutputEvents},
    {"DisplayNumbers", &RegistrySettings::getDisplayNumbers, &RegistrySettings::setDisplayNumbers},
    {"AlwaysOnTop", &RegistrySettings::getAlwaysOnTop, &RegistrySettings::setAlwaysOnTop},
    {"UseSkinBorder", &RegistrySettings::getUseSkinBorder, &RegistrySettings::setUseSkinBorder},
    {"LiteStackNotes", &RegistrySettings::getLiteStackNotes, &RegistrySettings::setLiteStackNotes},
    {"ClickZoneChannelTranspose", &RegistrySettings::getClickZoneChannelTranspose,
     &RegistrySettings::setClickZoneChannelTranspose},
};

TEST(RegistrySettingsTest, EachFlagChangesOnItsOwn) {
    for (const Flag& flag : FLAGS) {
        MemoryStore store;
        RegistrySettings settings(store);
        const bool flipped = !(settings.*flag.get)();
        (settings.*flag.set)(flipped);
        settings.saveToRegistry(KEY);
        EXPECT_EQ(store.keys[KEY], (MemoryStore::Values{{"EnabledMidiInputs", "text "},
                                                        {"EnabledMidiOutputs", "text "},
                                                        {flag.name, flipped ? "number 1" : "number 0"}}));
        RegistrySettings read(store);
        read.loadFromRegistry(KEY);
        const RegistrySettings untouched(store);
        for (const Flag& other : FLAGS)
            EXPECT_EQ((read.*other.get)(), (untouched.*other.get)() != (other.name == flag.name))
                << flag.name << ' ' << other.name;
    }
}

TEST(RegistrySettingsTest, TheListsOfPortsAreReadEachFromItsOwnText) {
    MemoryStore store;
    store.keys[KEY] = {{"EnabledMidiInputs", "text YN"}, {"EnabledMidiOutputs", "text NYY"}};
    RegistrySettings settings(store);
    settings.loadFromRegistry(KEY);
    EXPECT_EQ(settings.getEnabledMidiInputs(), (std::vector<bool>{true, false}));
    EXPECT_EQ(settings.getEnabledMidiOutputs(), (std::vector<bool>{false, true, true}));
}

TEST(RegistrySettingsTest, WhatWasSavedOutlivesTheStoreThatTookIt) {
    const TestSupport::TemporaryFolder folder;
    {
        const auto store = Platform::createFileSettingsStore(folder.file("settings"));
        RegistrySettings settings(*store);
        settings.loadFromRegistry(KEY);
        settings.setDefaultBank("a.bnk");
        settings.setLiteVelocity(5);
        settings.setAlwaysOnTop(true);
        settings.setLastWindowPosition(Rect{1, -2, 3, 40000});
        settings.setMidiInputEnabled(1, true);
        settings.saveToRegistry(KEY);
    }

    const auto store = Platform::createFileSettingsStore(folder.file("settings"));
    RegistrySettings settings(*store);

    settings.loadFromRegistry(KEY);
    EXPECT_EQ(settings.getDefaultBank(), "a.bnk");
    EXPECT_EQ(settings.getLiteVelocity(), 5);
    EXPECT_TRUE(settings.getAlwaysOnTop());
    EXPECT_EQ(settings.getLastWindowPosition(), (Rect{1, -2, 3, 40000}));
    EXPECT_EQ(settings.getEnabledMidiInputs(), (std::vector<bool>{false, true}));
}

TEST(RegistrySettingsTest, ARunThatChangesNothingWritesTheTwoListsOfPorts) {
    MemoryStore store;
    RegistrySettings settings(store);
    settings.loadFromRegistry(KEY);
    settings.saveToRegistry(KEY);
    EXPECT_EQ(store.keys[KEY], (MemoryStore::Values{{"EnabledMidiInputs", "text "}, {"EnabledMidiOutputs", "text "}}));
}

TEST(RegistrySettingsTest, AValueIsWrittenOnceForEachChangeEvenToTheSame) {
    MemoryStore store;
    RegistrySettings settings(store);
    settings.setMidiThru(true);
    settings.saveToRegistry(KEY);
    EXPECT_EQ(store.keys[KEY]["MidiThru"], "number 1");
    store.keys[KEY].erase("MidiThru");
    settings.saveToRegistry(KEY);
    EXPECT_EQ(store.keys[KEY].count("MidiThru"), 0u);
}

TEST(RegistrySettingsTest, TheProgramFolderIsReadAndNeverWritten) {
    MemoryStore store;
    store.keys[KEY]["ProgDir"] = "text C:\\Mirel";
    RegistrySettings settings(store);
    settings.loadFromRegistry(KEY);
    EXPECT_EQ(settings.getProgDir(), "C:\\Mirel");
    store.keys[KEY].clear();
    settings.saveToRegistry(KEY);
    EXPECT_EQ(store.keys[KEY].count("ProgDir"), 0u);
}

TEST(RegistrySettingsTest, NonsenseInTheStoreLeavesTheDefaults) {
    MemoryStore store;
    store.keys[KEY] = {{"MidiThru", "text N"},
                       {"DisplayHeight", "bytes 00"},
                       {"DefaultBank", "text " + std::string(1000, 'x')},
                       {"LastWindowPosition", "bytes 0102"},
                       {"AlwaysOnTop", "number 4000000000"},
                       {"LiteVelocity", "number 4294967295"}};
    RegistrySettings settings(store);

    settings.loadFromRegistry(KEY);
    EXPECT_TRUE(settings.getMidiThru());
    EXPECT_EQ(settings.getDisplayHeight(), 200);
    EXPECT_EQ(settings.getDefaultBank(), "");
    EXPECT_EQ(settings.getLastWindowPosition(), (Rect{-1, -1, -1, -1}));
    EXPECT_TRUE(settings.getAlwaysOnTop());
    EXPECT_EQ(settings.getLiteVelocity(), -1);

    store.keys[KEY]["DefaultBank"] = "text " + std::string(999, 'x');
    settings.loadFromRegistry(KEY);
    EXPECT_EQ(settings.getDefaultBank().size(), 999u);
}

TEST(RegistrySettingsTest, AStoreThatDoesNotOpenChangesNothing) {
    MemoryStore store;
    store.canOpen = false;
    RegistrySettings settings(store);
    settings.setLiteVelocity(5);
    settings.loadFromRegistry(KEY);
    settings.saveToRegistry(KEY);
    EXPECT_EQ(settings.getLiteVelocity(), 5);
    EXPECT_TRUE(store.keys.empty());
}

TEST(RegistrySettingsTest, EnablingAPortMakesTheListEndThere) {
    MemoryStore store;
    store.keys[KEY]["EnabledMidiInputs"] = "text yNyX";
    RegistrySettings settings(store);

    settings.loadFromRegistry(KEY);
    EXPECT_EQ(settings.getEnabledMidiInputs(), (std::vector<bool>{true, false, true, false}));

    settings.setMidiInputEnabled(1, true);
    EXPECT_EQ(settings.getEnabledMidiInputs(), (std::vector<bool>{true, true}));

    settings.setMidiInputEnabled(-1, true);
    EXPECT_EQ(settings.getEnabledMidiInputs().size(), 2u);

    settings.setMidiOutputEnabled(2, true);
    EXPECT_EQ(settings.getEnabledMidiOutputs(), (std::vector<bool>{false, false, true}));

    settings.saveToRegistry(KEY);
    EXPECT_EQ(store.keys[KEY]["EnabledMidiInputs"], "text YY");
    EXPECT_EQ(store.keys[KEY]["EnabledMidiOutputs"], "text NNY");
}

TEST(RegistrySettingsTest, FlagsAreTextOfYAndN) {
    EXPECT_EQ(RegistrySettings::getBoolVectorFromString("yNy"), (std::vector<bool>{true, false, true}));
    EXPECT_TRUE(RegistrySettings::getBoolVectorFromString("").empty());
    EXPECT_EQ(RegistrySettings::getStringFromBoolVector({true, false}), "YN");
}

}
}
