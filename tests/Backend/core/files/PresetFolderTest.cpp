#include "Backend/core/files/PresetFolder.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "tests/support/FileDesk.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Backend {
namespace {

using TestSupport::FileDesk;

namespace Files = Platform::Files;

const std::string NAME_BEYOND_ASCII = "Zo\xC3\xAB \xE2\x80\x93 \xE3\x83\x94\xE3\x82\xA2\xE3\x83\x8E \xF0\x9F\x8E\xB9";

class PresetFolderTest : public testing::Test {
protected:
    void save(const std::string& name, const std::string& text = "<A merge=\"false\"/>\n") {
        m_presets.save(name, [&text](std::ostream& stream) { stream << text; });
    }

    // "-" follows those that are not merged.
    std::vector<std::string> names() {
        std::vector<std::string> result;
        for (const auto& preset : m_presets.getPresets())
            result.push_back(preset.name + (preset.merge ? "" : "-"));
        return result;
    }

    std::string read(const std::string& name) const {
        return Files::read(m_desk.dataFile("Some Presets", name + ".pst")).value_or("none");
    }

    FileDesk m_desk;  // Only its folder is used.
    PresetFolder m_presets{"Some Presets"};
};

TEST_F(PresetFolderTest, AFileIsTheHeaderAndWhatIsWritten) {
    EXPECT_EQ(m_presets.getPresetPath("a b"), m_desk.dataFile("Some Presets", "a b.pst"));
    save("a b", "<A merge=\"true\">\n</A>\n");
    EXPECT_EQ(read("a b"),
              Files::withSystemLineEnds("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n<A merge=\"true\">\n</A>\n"));
}

TEST_F(PresetFolderTest, TheListIsSortedAndHoldsEachNameOnce) {
    for (const char* name : {"b", "c", "B", "a", "10", "9", "b", "c", "b"})
        save(name);
    EXPECT_EQ(names(), (std::vector<std::string>{"10-", "9-", "B-", "a-", "b-", "c-"}));
}

TEST_F(PresetFolderTest, MergeIsThatOfTheFileThatWasSavedLast) {
    save("a", "<A merge=\"true\"/>");
    save("b", "<A merge=\"yes\"/>");
    save("c", "<A merge=\"True\"/>");
    save("d", "<A merge=\"true\"");
    EXPECT_EQ(names(), (std::vector<std::string>{"a", "b", "c-", "d-"}));
    save("a", "<A/>");
    save("c", "<A merge=\"true\"/>");
    EXPECT_EQ(names(), (std::vector<std::string>{"a-", "b", "c", "d-"}));
}

TEST_F(PresetFolderTest, ANewFolderListsNothingOfWhatWasThere) {
    save("a");
    const PresetFolder other("Some Presets");
    EXPECT_TRUE(other.getPresets().empty());
    bool wasRead = false;
    EXPECT_TRUE(other.load("a", [&](const XmlElement& element) { wasRead = element.getName() == "A"; }));
    EXPECT_TRUE(wasRead) << "though it can be loaded";
}

TEST_F(PresetFolderTest, RenamingMovesFileAndEntry) {
    save("b", "<A merge=\"true\"/>\n");
    save("c");
    const std::string text = read("b");
    m_presets.renamePreset("b", NAME_BEYOND_ASCII);
    EXPECT_EQ(names(), (std::vector<std::string>{NAME_BEYOND_ASCII, "c-"}));
    EXPECT_EQ(read("b"), "none");
    EXPECT_EQ(read(NAME_BEYOND_ASCII), text);
    m_presets.renamePreset(NAME_BEYOND_ASCII, "d");
    EXPECT_EQ(names(), (std::vector<std::string>{"c-", "d"}));
    EXPECT_EQ(read("d"), text);
}

TEST_F(PresetFolderTest, RenamingToAFileThatExistsKeepsBothFilesAndShowsTheNewName) {
    save("a", "<A>1</A>");
    ASSERT_TRUE(Files::replace(m_presets.getPresetPath("z"), "other"));
    const std::string text = read("a");
    m_presets.renamePreset("a", "z");
    EXPECT_EQ(names(), std::vector<std::string>{"z-"});
    EXPECT_EQ(read("z"), "other");
    EXPECT_EQ(read("a"), text);
}

TEST_F(PresetFolderTest, RenamingToANameOfTheListListsItOnce) {
    save("a");
    save("b", "<A merge=\"true\"/>\n");
    m_presets.renamePreset("a", "b");
    EXPECT_EQ(names(), std::vector<std::string>{"b"}) << "what the file of that name still is";
    m_presets.renamePreset("b", "b");
    EXPECT_EQ(names(), std::vector<std::string>{"b"});
    EXPECT_NE(read("a"), "none");
    EXPECT_NE(read("b").find("true"), std::string::npos);
}

TEST_F(PresetFolderTest, WhatIsNotInTheListIsNeitherRenamedNorDeleted) {
    save("a");
    ASSERT_TRUE(Files::replace(m_presets.getPresetPath("foreign"), "other"));
    m_presets.renamePreset("foreign", "b");
    m_presets.deletePreset("foreign");
    m_presets.renamePreset("missing", "b");
    m_presets.deletePreset("missing");
    EXPECT_EQ(names(), std::vector<std::string>{"a-"});
    EXPECT_EQ(read("foreign"), "other");
    EXPECT_EQ(read("b"), "none");
}

TEST_F(PresetFolderTest, DeletingTakesFileAndEntry) {
    save("a");
    save(NAME_BEYOND_ASCII);
    m_presets.deletePreset(NAME_BEYOND_ASCII);
    EXPECT_EQ(names(), std::vector<std::string>{"a-"});
    EXPECT_EQ(read(NAME_BEYOND_ASCII), "none");
    EXPECT_NE(read("a"), "none");
    m_presets.deletePreset("a");
    EXPECT_TRUE(names().empty());
}

TEST_F(PresetFolderTest, ANameThatLeadsElsewhereIsNotAPresets) {
    save("a");
    ASSERT_TRUE(Files::replace(m_desk.dataFile("", "outside.pst"), "<A/>"));
    for (const std::string name : {"../outside", "..\\outside", "/tmp/mirel-outside", "c:outside", "", "a\nb", "a\"b",
                                   "<Program ", "a*", "a?", "a|b"}) {
        save(name);
        EXPECT_FALSE(m_presets.load(name, [](const XmlElement&) {})) << name;
        m_presets.renamePreset("a", name);
        EXPECT_EQ(names(), std::vector<std::string>{"a-"}) << name;
    }
    EXPECT_EQ(Files::read(m_desk.dataFile("", "outside.pst")), "<A/>");
}

TEST_F(PresetFolderTest, ASaveThatFailsListsNothing) {
    ASSERT_TRUE(Files::createFolders(m_presets.getPresetPath("a")));
    save("a");
    EXPECT_TRUE(names().empty());
    EXPECT_FALSE(m_presets.load("a", [](const XmlElement&) {})) << "a folder";
    const PresetFolder blocked("File");
    ASSERT_TRUE(Files::replace(m_desk.dataFile("", "File"), "x"));
    EXPECT_FALSE(blocked.write("a", "x")) << "a file in place of the folder";
    EXPECT_EQ(Files::read(m_desk.dataFile("", "File")), "x");
}

// Presets of the components.

class PresetsTest : public testing::Test {
protected:
    static Key key(const char* name) { return Key(std::string_view(name)); }

    std::string layers() {
        return describe([](Mirel& mirel, std::ostream& stream) { mirel.getLayers().writeXml(stream, 0, {}); });
    }
    std::string controls() {
        return describe([](Mirel& mirel, std::ostream& stream) { mirel.getControls().writeXml(stream, 0, {}); });
    }
    std::string keys() {
        return describe(
            [](Mirel& mirel, std::ostream& stream) { mirel.getComputerInput().writeXml(stream, 0, {}, true); });
    }

    template <class Write>
    std::string describe(Write write) {
        std::ostringstream stream;
        m_desk.run([&](Mirel& mirel) { write(mirel, stream); });
        return stream.str();
    }

    void writePreset(const std::string& folder, const std::string& name, const std::string& text) {
        ASSERT_TRUE(Files::createFolders(m_desk.dataFile(folder, "")));
        ASSERT_TRUE(Files::replace(m_desk.dataFile(folder, name + ".pst"), text));
    }

    static int count(const std::string& text, const std::string& what) {
        int found = 0;
        for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
            ++found;
        return found;
    }

    FileDesk m_desk;
};

TEST_F(PresetsTest, AWholePresetBringsBackWhatWasSaved) {
    const std::string oldLayers = layers();
    const std::string oldControls = controls();
    const std::string oldKeys = keys();

    m_desk.run([](Mirel& mirel) {
        mirel.getLayers().savePreset(NAME_BEYOND_ASCII, {});
        mirel.getControls().savePreset(NAME_BEYOND_ASCII, {});
        mirel.getComputerInput().savePreset(NAME_BEYOND_ASCII, {});
        mirel.loadProgramFromXml(
            "<X><Program><Layers><Layer/><Layer/></Layers><Controls><Control cell='9,9' "
            "type='label'/></Controls><ComputerInput useKeyUpMod='true'><Key id='Z'/>"
            "</ComputerInput></Program></X>",
            0);
    });
    EXPECT_NE(layers(), oldLayers);
    EXPECT_NE(controls(), oldControls);
    EXPECT_NE(keys(), oldKeys);

    m_desk.run([](Mirel& mirel) {
        mirel.getLayers().loadPreset(NAME_BEYOND_ASCII);
        mirel.getControls().loadPreset(NAME_BEYOND_ASCII);
        mirel.getComputerInput().loadPreset(NAME_BEYOND_ASCII);
        EXPECT_EQ(mirel.getComputerInput().getCurrentPreset(), NAME_BEYOND_ASCII);
    });
    EXPECT_EQ(layers(), oldLayers);
    EXPECT_EQ(controls(), oldControls);
    EXPECT_EQ(keys(), oldKeys);

    const std::string header = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n";
    EXPECT_EQ(Files::read(m_desk.dataFile("Layer Presets", NAME_BEYOND_ASCII + ".pst")),
              Files::withSystemLineEnds(header + oldLayers));
    EXPECT_EQ(Files::read(m_desk.dataFile("Control Presets", NAME_BEYOND_ASCII + ".pst")),
              Files::withSystemLineEnds(header + oldControls));
    EXPECT_EQ(Files::read(m_desk.dataFile("Computer Input Presets", NAME_BEYOND_ASCII + ".pst")),
              Files::withSystemLineEnds(header + oldKeys));
}

TEST_F(PresetsTest, APresetOfSomeAddsThemToWhatIsThere) {
    m_desk.run([](Mirel& mirel) {
        mirel.loadProgramFromXml(
            "<X><Program><Layers><Layer channel='1'/><Layer channel='2'/><Layer channel='3'/>"
            "</Layers><Controls><Control cell='0,1' type='edit' name='a'/>"
            "<Control cell='0,2' type='edit' name='b'/><Control cell='0,3' type='edit' name='c'/>"
            "</Controls></Program></X>",
            0);
        mirel.getLayers().savePreset("some", {{0}, {2}, {77}});
        mirel.getControls().savePreset("some", {Cell(0, 2), Cell(5, 5)});
        EXPECT_TRUE(mirel.getLayers().getPresets().getPresets().at(0).merge);
        EXPECT_TRUE(mirel.getControls().getPresets().getPresets().at(0).merge);
        mirel.loadProgramFromXml(
            "<X><Program><Layers><Layer channel='9'/></Layers><Controls><Control cell='0,2' "
            "type='edit' name='old'/><Control cell='0,4' type='edit' name='kept'/></Controls>"
            "</Program></X>",
            0);
        mirel.getLayers().loadPreset("some");
        mirel.getControls().loadPreset("some");
        std::vector<int> channels;
        for (const auto& layer : Layers::LayerList(mirel.getLayers().getLayerList()))
            channels.push_back(layer.channel);
        EXPECT_EQ(channels, (std::vector<int>{9, 1, 3}));
    });
    const std::string text = controls();
    EXPECT_EQ(count(text, "<Control "), 2);
    EXPECT_NE(text.find("cell=\"0,2\" type=\"edit\" name=\"b\""), std::string::npos);
    EXPECT_NE(text.find("cell=\"0,4\" type=\"edit\" name=\"kept\""), std::string::npos);
}

TEST_F(PresetsTest, APresetOfSomeKeysClearsThoseThatHadNoEntry) {
    m_desk.run([](Mirel& mirel) {
        mirel.loadProgramFromXml(
            "<X><Program><ComputerInput><Key id='Q'><Function><Down><ResetMirel/></Down>"
            "</Function></Key></ComputerInput></Program></X>",
            0);
        mirel.getComputerInput().savePreset("some", {key("Q"), key("Shift W")});
    });
    EXPECT_EQ(Files::read(m_desk.dataFile("Computer Input Presets", "some.pst")),
              Files::withSystemLineEnds("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n"
                                        "<ComputerInput merge=\"true\" useKeyUpMod=\"false\">\n"
                                        "\t<Key id=\"Q\" global=\"true\">\n"
                                        "\t\t<Function keepSending=\"false\">\n"
                                        "\t\t\t<Down>\n\t\t\t\t<ResetMirel/>\n\t\t\t</Down>\n"
                                        "\t\t</Function>\n"
                                        "\t</Key>\n"
                                        "\t<Key id=\"Shift W\" global=\"true\">\n"
                                        "\t</Key>\n"
                                        "</ComputerInput>\n"));

    m_desk.run([](Mirel& mirel) {
        mirel.loadProgramFromXml(
            "<X><Program><ComputerInput><Key id='Shift W'><Function><Down><ResetMirel/></Down>"
            "</Function></Key><Key id='E'/></ComputerInput></Program></X>",
            0);
        mirel.getComputerInput().loadPreset("some");
        auto map = mirel.getComputerInput().getKeyConfigurations();
        ASSERT_NE(map.find(key("Q")), nullptr);
        EXPECT_TRUE(map.find(key("Q"))->hasFunction());
        ASSERT_NE(map.find(key("Shift W")), nullptr);
        EXPECT_FALSE(map.find(key("Shift W"))->hasFunction());
        EXPECT_NE(map.find(key("E")), nullptr);
    });
}

TEST_F(PresetsTest, AMissingPresetChangesNothingNotEvenTheLastName) {
    const std::string oldLayers = layers();
    const std::string oldControls = controls();
    const std::string oldKeys = keys();

    m_desk.run([this](Mirel& mirel) {
        mirel.getComputerInput().savePreset("a", {});
        mirel.getComputerInput().loadPreset("a");
        ASSERT_TRUE(Files::createFolders(m_desk.dataFile("Computer Input Presets", "folder.pst")));
        for (const char* name : {"missing", "folder", "", "../a"}) {
            mirel.getComputerInput().loadPreset(name);
            mirel.getLayers().loadPreset(name);
            mirel.getControls().loadPreset(name);
        }
        EXPECT_EQ(mirel.getComputerInput().getCurrentPreset(), "a");
    });
    EXPECT_EQ(layers(), oldLayers);
    EXPECT_EQ(controls(), oldControls);
    EXPECT_EQ(keys(), oldKeys);
}

TEST_F(PresetsTest, AMalformedPresetEmptiesLayersAndControlsAndLeavesKeys) {
    const std::string oldKeys = keys();
    for (const std::string& text :
         {std::string("<Layers merge=\"true\"><Layer/>"), std::string(), std::string("\x1f\x8b\x08\0\0", 5),
          std::string("<!DOCTYPE Layers><Layers merge='true'><Layer/></Layers>")}) {
        m_desk.run([](Mirel& mirel) {
            mirel.getLayers().loadDefaultLayers();
            mirel.getControls().loadDefaultControls();
        });
        for (const char* folder : {"Layer Presets", "Control Presets", "Computer Input Presets"})
            writePreset(folder, "bad", text);
        m_desk.run([](Mirel& mirel) {
            mirel.getLayers().loadPreset("bad");
            mirel.getControls().loadPreset("bad");
            mirel.getComputerInput().loadPreset("bad");
        });
        EXPECT_EQ(layers(), "<Layers merge=\"false\">\n</Layers>\n") << text;
        EXPECT_EQ(controls(), "<Controls merge=\"false\">\n</Controls>\n") << text;
        EXPECT_EQ(keys(), oldKeys) << text;
    }
}

TEST_F(PresetsTest, AHugeOrDeepPresetEndsInNothing) {
    std::string deep = "<Layers>";
    for (int i = 0; i < 100000; ++i)
        deep += "<Layer>";
    writePreset("Layer Presets", "deep", deep);
    m_desk.run([](Mirel& mirel) { mirel.getLayers().loadPreset("deep"); });
    EXPECT_EQ(layers(), "<Layers merge=\"false\">\n</Layers>\n");
    m_desk.run([](Mirel& mirel) { mirel.getLayers().loadDefaultLayers(); });
    writePreset("Layer Presets", "huge", "<Layers>" + std::string((64u << 20) + 1, ' ') + "</Layers>");
    m_desk.run([](Mirel& mirel) { mirel.getLayers().loadPreset("huge"); });
    EXPECT_EQ(layers(), "<Layers merge=\"false\">\n</Layers>\n");
}

TEST_F(PresetsTest, AbsurdlyManyLayersAreLeftOut) {
    std::string xml = "<Layers>";
    for (int i = 0; i < 70000; ++i)
        xml += "<Layer/>";
    const XmlDocument document(xml + "</Layers>", false);
    m_desk.run([&](Mirel& mirel) {
        Layers::LayerList layers;
        layers.readXml(document.getRootElement(), mirel.getSequencePresets());
        EXPECT_EQ(layers.size(), 65536u);
    });
}

TEST_F(PresetsTest, SavingKeysWritesThemEvenIfTheyAreThoseOfAPreset) {
    m_desk.run([](Mirel& mirel) {
        mirel.getComputerInput().savePreset("a", {});
        mirel.getComputerInput().loadPreset("a");
        mirel.getComputerInput().savePreset("b", {});
    });
    EXPECT_EQ(Files::read(m_desk.dataFile("Computer Input Presets", "a.pst")),
              Files::read(m_desk.dataFile("Computer Input Presets", "b.pst")));
}

}
}
