#include "Backend/core/version2/Version2Import.h"

#include "Backend/core/WindowMessages.h"
#include "Platform/SystemPath.h"
#include "tests/support/FileDesk.h"

#include <gtest/gtest.h>

namespace Backend {
namespace {

using namespace WindowMessages;
using TestSupport::FileDesk;
using TestSupport::PostedNumbers;

namespace Files = Platform::Files;

const std::string HEADER = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n";

// What an empty layer line becomes.
const std::string DEFAULT_LAYER =
    "<Layer mute=\"false\" mono=\"false\" toggle=\"off\" useNoteStack=\"true\" "
    "minNote=\"C-1\" maxNote=\"G9\" minVelocity=\"0\" maxVelocity=\"127\" zone=\"-1\" "
    "output=\"-1\" channel=\"0\" transpose=\"\" key=\"\" velocity=\"\" "
    "compress=\"1_1\">\n";

std::string program(const std::string& name, const std::string& inside = "") {
    const std::string keys = "\t<ComputerInput merge=\"false\" preset=\"000 - Default\">\n\t</ComputerInput>\n";
    const std::string rest =
        "\t<Controls merge=\"false\">\n\t</Controls>\n\t<Layers merge=\"false\">\n\t</Layers>\n"
        "\t<Zones merge=\"false\">\n\t</Zones>\n";
    return "<Program name=\"" + name + "\" tempo=\"120\" tempoSource=\"-1\">\n" +
           (inside.empty() ? keys + rest : inside) + "</Program>\n";
}

class Version2ImportTest : public testing::Test {
protected:
    // Each returns what was written.
    std::string importBank(const std::string& text) {
        m_desk.write("old.bnk", text);
        m_desk.run([this](Mirel& mirel) {
            mirel.importVersion2Bank(m_desk.file("old.bnk"), m_desk.file("new.bnk"), m_notified.window());
        });
        return withoutReturns(m_desk.read("new.bnk"));
    }

    std::string importProgram(const std::string& text) {
        m_desk.write("old.prg", text);
        m_desk.run([this](Mirel& mirel) {
            mirel.importVersion2Program(m_desk.file("old.prg"), m_desk.file("new.prg"), m_notified.window());
        });
        return withoutReturns(m_desk.read("new.prg"));
    }

    std::string importPreset(const std::string& file, const std::string& text, const std::string& folder,
                             const std::string& name = "new") {
        m_desk.write(file, text);
        m_desk.run([&](Mirel& mirel) { mirel.importVersion2Preset(m_desk.file(file), name, m_notified.window()); });
        return withoutReturns(Files::read(m_desk.dataFile(folder, name + ".pst")).value_or("none"));
    }

    // The element of a program of one section: the text between its tags.
    std::string section(const std::string& lines, const std::string& tag) {
        const std::string text = importProgram("P 1 n\n" + lines);
        const std::string start = "\t<" + tag + " merge=\"false\">\n";
        const std::size_t from = text.find(start);
        const std::size_t to = text.find("\t</" + tag + ">\n");
        if (from == std::string::npos || to == std::string::npos)
            return "no " + tag + " in " + text;
        return text.substr(from + start.size(), to - from - start.size());
    }

    static std::string withoutReturns(std::string text) {
        std::erase(text, '\r');
        return text;
    }

    void writeBasePreset() {
        m_desk.run([](Mirel& mirel) {
            mirel.loadProgramFromXml(
                "<X><Program><ComputerInput useKeyUpMod='true'><Key id='Q' global='true'>"
                "<Function><Down><ResetMirel/></Down></Function></Key><Key id='W' global='false'/>"
                "</ComputerInput></Program></X>",
                0);
            mirel.getComputerInput().savePreset("000 - Default", {});
        });
    }

    FileDesk m_desk;
    PostedNumbers m_notified;
};

TEST_F(Version2ImportTest, ABankBecomesOneOfPrograms) {
    EXPECT_EQ(importBank("P 1 One\nP 2 My_Lead 0 a 0 b\n\n  \nP 3 Three\n"),
              HEADER + "<Bank>\n" + program("One") + program("My Lead") + program("Three") + "</Bank>\n");
    EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"One", "My Lead", "Three"}));
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{IMPORT_VERSION_2_BANK_DONE.NUMBER});
}

TEST_F(Version2ImportTest, LineEndsAndBlankLinesDoNotMatter) {
    const std::string expected = HEADER + "<Bank>\n" + program("a") + program("b") + "</Bank>\n";
    for (const std::string text : {"P 1 a\nP 1 b", "P 1 a\r\nP 1 b\r\n", "\n\r\n \t\nP\t1\ta \r\n\n\n P",
                                   "P 1 a\n\nP 1 b\n\n\n", "P 1 a 0 x\nP 1 b\nX 1 c\nP 1 d\n"}) {
        if (text.ends_with(" P"))
            EXPECT_EQ(importBank(text), HEADER + "<Bank>\n" + program("a") + "</Bank>\n")
                << "a blank begins no section";
        else
            EXPECT_EQ(importBank(text), expected) << text;
    }
}

TEST_F(Version2ImportTest, ABankWithoutProgramsIsEmpty) {
    for (const std::string text : {"", "\n\n", "X 1 a\nP 1 b\n", "K 1\nP 1 a\n", " P 1 a\n"})
        EXPECT_EQ(importBank(text), HEADER + "<Bank>\n</Bank>\n") << text;
}

TEST_F(Version2ImportTest, AProgramFileTakesTheFirstProgramAlone) {
    EXPECT_EQ(importProgram("\nP 1 Lead_1\nP 2 Lead_2\n"),
              HEADER + "<ProgramFile>\n" + program("Lead 1") + "</ProgramFile>\n");
    EXPECT_EQ(m_desk.programName(), "Lead 1");
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{IMPORT_VERSION_2_PROGRAM_DONE.NUMBER});
    EXPECT_EQ(importProgram("L 0\n"), HEADER + "<ProgramFile>\n</ProgramFile>\n");
}

TEST_F(Version2ImportTest, TheHeaderOfAProgramMayEndAnywhere) {
    EXPECT_EQ(importBank("P\nP 1\nPxyz 7 c 1\n"),
              HEADER + "<Bank>\n" + program("") + program("") +
                  program("c",
                          "\t<ComputerInput merge=\"false\" preset=\"000 - Default\">\n\t</ComputerInput>\n"
                          "\t<Controls merge=\"false\">\n\t</Controls>\n\t<Layers merge=\"false\">\n\t</Layers>\n"
                          "\t<Zones merge=\"false\">\n\t\t<Zone id=\"0\" transpose=\"1\"/>\n\t</Zones>\n") +
                  "</Bank>\n");
}

TEST_F(Version2ImportTest, ZonesAreTheTransposesUpToTheLastThatIsNotZero) {
    const auto zones = [this](const std::string& transposes) {
        const std::string text = importProgram("P 1 n " + transposes + "\n");
        const std::size_t from = text.find("\t<Zones ");
        return text.substr(from, text.find("</Program>") - from);
    };

    const std::string none = "\t<Zones merge=\"false\">\n\t</Zones>\n";
    EXPECT_EQ(zones("0 a 0 b 0 c 0 d 0 e 0 f 0 g 0 h 0 i 0 j"), none);
    EXPECT_EQ(zones(""), none);
    EXPECT_EQ(
        zones("1 a -12 b 0 c 3 d 0 e 0 f 0 g 0 h 0 i 0 j"),
        "\t<Zones merge=\"false\">\n\t\t<Zone id=\"0\" transpose=\"1\"/>\n\t\t<Zone id=\"1\" transpose=\"-12\"/>\n"
        "\t\t<Zone id=\"2\" transpose=\"0\"/>\n\t\t<Zone id=\"3\" transpose=\"3\"/>\n\t</Zones>\n");

    std::string ten = "\t<Zones merge=\"false\">\n";
    for (int i = 0; i < 10; ++i)
        ten += "\t\t<Zone id=\"" + std::to_string(i) + "\" transpose=\"" + std::to_string(i + 1) + "\"/>\n";
    EXPECT_EQ(zones("1 a 2 b 3 c 4 d 5 e 6 f 7 g 8 h 9 i 10 j 11 k"), ten + "\t</Zones>\n");
    EXPECT_EQ(zones("nonsense a 5 b 99999999999 c"),
              "\t<Zones merge=\"false\">\n\t\t<Zone id=\"0\" transpose=\"0\"/>\n\t\t<Zone id=\"1\" transpose=\"5\"/>\n"
              "\t</Zones>\n");
    EXPECT_EQ(zones("200 a"), "\t<Zones merge=\"false\">\n\t\t<Zone id=\"0\" transpose=\"-56\"/>\n\t</Zones>\n");
}

TEST_F(Version2ImportTest, AKeyHasItsFunctionsAndFlags) {
    EXPECT_EQ(section("K 81 0  1 60 100 0 -1 -1  2 60 64 0 -1 -1  1 0\n", "ComputerInput"),
              "\t\t<Key id=\"Q\" global=\"false\">\n"
              "\t\t\t<Function keepSending=\"true\">\n"
              "\t\t\t\t<Down>\n\t\t\t\t\t<MidiNoteOn zone=\"0\" note=\"C4\" velocity=\"100\"/>\n\t\t\t\t</Down>\n"
              "\t\t\t\t<Up>\n\t\t\t\t\t<MidiNoteOff zone=\"0\" note=\"C4\" velocity=\"64\"/>\n\t\t\t\t</Up>\n"
              "\t\t\t</Function>\n"
              "\t\t</Key>\n");
}

TEST_F(Version2ImportTest, AKeyThatEndsEarlyTakesTheDefaults) {
    EXPECT_EQ(section("K 81 15 51\nK 87\nK 69 1 0 0 0 -1 -1 -1 51\n", "ComputerInput"),
              "\t\t<Key id=\"Shift Control Alt Win Q\" global=\"true\">\n"
              "\t\t\t<Function keepSending=\"false\">\n"
              "\t\t\t\t<Down>\n\t\t\t\t\t<ResetMirel/>\n\t\t\t\t</Down>\n"
              "\t\t\t</Function>\n"
              "\t\t</Key>\n"
              "\t\t<Key id=\"Shift E\" global=\"true\">\n"
              "\t\t\t<Function keepSending=\"false\">\n"
              "\t\t\t\t<Up>\n\t\t\t\t\t<ResetMirel/>\n\t\t\t\t</Up>\n"
              "\t\t\t</Function>\n"
              "\t\t</Key>\n"
              "\t\t<Key id=\"W\" global=\"true\">\n\t\t</Key>\n");
}

TEST_F(Version2ImportTest, ANoteOnMissingFieldsHasNoZoneOutputOrChannel) {
    const std::string key = section("K 81 0 1\n", "ComputerInput");
    EXPECT_EQ(key.find("zone="), std::string::npos);
    EXPECT_EQ(key.find("output="), std::string::npos);
    EXPECT_EQ(key.find("channel="), std::string::npos);
    EXPECT_NE(key.find("<MidiNoteOn note=\"C-1\" velocity=\"0\"/>"), std::string::npos) << key;
}

TEST_F(Version2ImportTest, TheKeysOfASectionStandOnTheDefaultPreset) {
    writeBasePreset();
    const std::string own =
        "\t\t<Key id=\"W\" global=\"true\">\n\t\t\t<Function keepSending=\"false\">\n"
        "\t\t\t\t<Down>\n\t\t\t\t\t<ResetMirel/>\n\t\t\t\t</Down>\n"
        "\t\t\t</Function>\n\t\t</Key>\n";
    const std::string base =
        "\t\t<Key id=\"Q\" global=\"true\">\n\t\t\t<Function keepSending=\"false\">\n"
        "\t\t\t\t<Down>\n\t\t\t\t\t<ResetMirel/>\n\t\t\t\t</Down>\n"
        "\t\t\t</Function>\n\t\t</Key>\n";

    EXPECT_EQ(section("K 87 0 51\n", "ComputerInput"), base + own);

    // Sections may repeat, in any order, and the next program starts from scratch.
    const std::string both = importBank("P 1 a\nC 0 0 1 x\n\nK 87 0 51\n\nL 0\nK 69 0 51\nP 1 b\nP 1 c\nK 87 0 51\n");
    EXPECT_EQ(both.find("preset="), both.rfind("preset=")) << "of b alone";
    EXPECT_NE(both.find("<Key id=\"E\""), std::string::npos);
    EXPECT_EQ(both.find("<Key id=\"E\""), both.rfind("<Key id=\"E\""));
    EXPECT_NE(both.find(base + own + "\t</ComputerInput>\n\t<Controls merge=\"false\">\n\t</Controls>"),
              std::string::npos);
}

TEST_F(Version2ImportTest, AControlHasAllItsFields) {
    EXPECT_EQ(section("C 3 4 2 My_Fader 64 1 126 0 1 2  176 7 1 2 3\n", "Controls"),
              "\t\t<Control cell=\"3,4\" type=\"vfader\" name=\"My Fader\" value=\"64\" min=\"1\" max=\"126\" "
              "release=\"0\" autoSend=\"true\" size=\"2\">\n"
              "\t\t\t<Function midiEvent=\"Controller Change,7\" output=\"2\" channel=\"3\" zone=\"1\"/>\n"
              "\t\t</Control>\n");
}

TEST_F(Version2ImportTest, AControlThatEndsEarlyTakesTheDefaults) {
    const std::string defaults =
        " value=\"0\" min=\"0\" max=\"127\" release=\"-1\" autoSend=\"false\" size=\"1\">\n"
        "\t\t</Control>\n";
    EXPECT_EQ(section("C 1 2 5\nC 1 3 1 -\n", "Controls"),
              "\t\t<Control cell=\"1,2\" type=\"label\" name=\"\"" + defaults +
                  "\t\t<Control cell=\"1,3\" type=\"edit\" name=\"\"" + defaults);
    EXPECT_EQ(section("C 1 2 1 n x y z u v w\n", "Controls"),
              "\t\t<Control cell=\"1,2\" type=\"edit\" name=\"n\"" + defaults);
}

TEST_F(Version2ImportTest, EachControlTypeHasItsNumber) {
    const char* const names[] = {"edit", "vfader", "hfader", "knob", "label"};
    for (int type = 1; type <= 5; ++type)
        EXPECT_NE(section("C 0 0 " + std::to_string(type) + " n\n", "Controls")
                      .find("type=\"" + std::string(names[type - 1]) + "\""),
                  std::string::npos)
            << type;
}

TEST_F(Version2ImportTest, ALayerHasAllItsFields) {
    EXPECT_EQ(section("L 1 1 2 0 C3 72 10 100 4 1 9 +12 7 -5 2 3 12 6 1 200 1\nLT 97 1\n", "Layers"),
              "\t\t<Layer mute=\"true\" mono=\"true\" toggle=\"type2\" useNoteStack=\"false\" minNote=\"C3\" "
              "maxNote=\"C5\" minVelocity=\"10\" maxVelocity=\"100\" zone=\"4\" output=\"1\" channel=\"9\" "
              "transpose=\"+12\" key=\"G-1\" velocity=\"-5\" compress=\"2_3\">\n"
              "\t\t\t<Arpeggio>\n\t\t\t\t<UpArpeggio beat=\"240\" length=\"120\"/>\n\t\t\t</Arpeggio>\n"
              "\t\t</Layer>\n");
    EXPECT_NE(m_desk.read("new.prg").find("<Program name=\"n\" tempo=\"97\" tempoSource=\"1\">"), std::string::npos);
}

TEST_F(Version2ImportTest, ALayerThatEndsEarlyTakesTheDefaults) {
    const std::string expected = "\t\t" + DEFAULT_LAYER + "\t\t</Layer>\n";
    EXPECT_EQ(section("L\n", "Layers"), expected);
    EXPECT_EQ(section("L 0 0 0 1 - - x x x x x x x x x x x x x x x\n", "Layers"), expected);
    EXPECT_EQ(section("L x x x x x # x x x x x x x x x x x x x x x\n", "Layers"), expected);
    EXPECT_EQ(section("L\nLT\nL 0 0 0 1 0 127 0 127 -1 -1 0 - -1 - 1 1 0 0 0 -1 0\n", "Layers"), expected + expected);
    EXPECT_NE(m_desk.read("new.prg").find("tempo=\"120\" tempoSource=\"-1\""), std::string::npos);
}

TEST_F(Version2ImportTest, ALayersSequenceIsAPresetByItsOldNumber) {
    m_desk.run([](Mirel& mirel) { mirel.addSequencePreset("001 - Oct 1 Up", "0,12"); });
    const std::string layer = "L 0 0 0 1 0 127 0 127 -1 -1 0 - -1 - 1 1 12 6 0 ";

    const auto setting = [&](const std::string& fields) {
        const std::string text = section(layer + fields + "\n", "Layers");
        const std::size_t from = text.find("<SequenceSetting");
        return from == std::string::npos ? std::string("none") : text.substr(from, text.find('>', from) + 1 - from);
    };

    EXPECT_EQ(setting("0 1"),
              "<SequenceSetting preset=\"001 - Oct 1 Up\" useNote=\"false\" useVelocity=\"true\" useLength=\"true\">");
    EXPECT_EQ(setting("0 2"),
              "<SequenceSetting preset=\"001 - Oct 1 Up\" useNote=\"true\" useVelocity=\"true\" useLength=\"true\">");
    EXPECT_EQ(setting("0"),
              "<SequenceSetting preset=\"001 - Oct 1 Up\" useNote=\"true\" useVelocity=\"false\" useLength=\"true\">");

    for (const char* fields : {"-1 1", "45 1", "1000 1", "", "x"})
        EXPECT_EQ(setting(fields), "none") << fields;
}

TEST_F(Version2ImportTest, TheFirstWordOfTheFileNameIsTheKindOfThePreset) {
    const std::string lines = "ignored\nP ignored\n\n";
    EXPECT_EQ(importPreset("layer strings.pst", lines + "L 1\n", "Layer Presets"),
              HEADER + "<Layers merge=\"false\">\n\t" + DEFAULT_LAYER.substr(0, 13) + "true" +
                  DEFAULT_LAYER.substr(18) + "\t</Layer>\n</Layers>\n");
    EXPECT_EQ(importPreset("control 1.txt", lines + "C 1 2 5 n\n", "Control Presets"),
              HEADER +
                  "<Controls merge=\"false\">\n\t<Control cell=\"1,2\" type=\"label\" name=\"n\" value=\"0\" "
                  "min=\"0\" max=\"127\" release=\"-1\" autoSend=\"false\" size=\"1\">\n\t</Control>\n"
                  "</Controls>\n");
    EXPECT_EQ(importPreset("key", lines + "K 87\n", "Computer Input Presets"),
              HEADER +
                  "<ComputerInput merge=\"false\">\n\t<Key id=\"W\" global=\"true\">\n\t</Key>\n"
                  "</ComputerInput>\n");
    EXPECT_EQ(m_notified.take(), std::vector<UINT>(3, IMPORT_VERSION_2_PRESET_DONE.NUMBER));
}

TEST_F(Version2ImportTest, KindAndSectionAreIndependent) {
    writeBasePreset();
    EXPECT_EQ(importPreset("control x", "\n\nK 87\n", "Control Presets"),
              HEADER + "<Controls merge=\"false\">\n</Controls>\n");
    EXPECT_EQ(importPreset("layer x", "\n\nnothing\n", "Layer Presets"),
              HEADER + "<Layers merge=\"false\">\n</Layers>\n");
    EXPECT_EQ(importPreset("key x", "\n\nL 1\n", "Computer Input Presets"),
              HEADER + "<ComputerInput merge=\"false\">\n</ComputerInput>\n");
    EXPECT_EQ(importPreset("key x", "\n\n\nK 87 0\n\nK 69\n", "Computer Input Presets"),
              HEADER +
                  "<ComputerInput merge=\"false\">\n"
                  "\t<Key id=\"Q\" global=\"true\">\n\t\t<Function keepSending=\"false\">\n"
                  "\t\t\t<Down>\n\t\t\t\t<ResetMirel/>\n\t\t\t</Down>\n"
                  "\t\t</Function>\n\t</Key>\n"
                  "\t<Key id=\"W\" global=\"true\">\n\t</Key>\n</ComputerInput>\n")
        << "one section alone";
}

TEST_F(Version2ImportTest, AnyOtherFirstWordMakesNoPreset) {
    for (const std::string file : {"keys x", "Key x", "key.pst", "controls", " key", "strings layer.pst"}) {
        for (const char* folder : {"Computer Input Presets", "Control Presets", "Layer Presets"})
            EXPECT_EQ(importPreset(file, "\n\nK 87\n", folder), "none") << file;
    }
    EXPECT_EQ(importPreset("key x", "\n\nK 87\n", "Computer Input Presets", "../outside"), "none");
    EXPECT_EQ(m_notified.take().size(), 19u) << "but the end is always told";
}

TEST_F(Version2ImportTest, AFileThatIsGoneStillEndsWithTheLoadAndTheMessage) {
    const std::string bank = HEADER + "<Bank>\n" + program("kept") + "</Bank>\n";
    m_desk.write("new.bnk", bank);
    m_desk.write("new.prg", HEADER + "<ProgramFile>\n" + program("single") + "</ProgramFile>\n");
    m_desk.run([this](Mirel& mirel) {
        mirel.importVersion2Bank(m_desk.file("missing"), m_desk.file("new.bnk"), m_notified.window());
    });

    EXPECT_EQ(m_desk.bankNames(), std::vector<std::string>{"kept"});
    EXPECT_EQ(m_desk.read("new.bnk"), bank);

    m_desk.run([this](Mirel& mirel) {
        mirel.importVersion2Program("", m_desk.file("new.prg"), m_notified.window());
        EXPECT_EQ(mirel.getCurrentProgram().getName(), "single");
        mirel.importVersion2Preset(m_desk.file("missing"), "a", m_notified.window());
        mirel.importVersion2Preset("", "", m_notified.window());
        mirel.importVersion2Bank(m_desk.file("missing"), "", m_notified.window());
        EXPECT_EQ(mirel.getCurrentBank().getProgramNames(), std::vector<std::string>{"kept"});
        mirel.importVersion2Program(m_desk.file("missing"), "", m_notified.window());
        EXPECT_EQ(mirel.getCurrentProgram().getName(), "") << "a load from nowhere";
        mirel.importVersion2Bank(m_desk.file("missing"), m_desk.file("new.bnk"), nullptr);
    });
    EXPECT_EQ(m_notified.take(),
              (std::vector<UINT>{IMPORT_VERSION_2_BANK_DONE.NUMBER, IMPORT_VERSION_2_PROGRAM_DONE.NUMBER,
                                 IMPORT_VERSION_2_PRESET_DONE.NUMBER, IMPORT_VERSION_2_PRESET_DONE.NUMBER,
                                 IMPORT_VERSION_2_BANK_DONE.NUMBER, IMPORT_VERSION_2_PROGRAM_DONE.NUMBER}));
}

TEST_F(Version2ImportTest, NamesAreUtf8OrElseWindows1252) {
    EXPECT_NE(importBank("P 1 Zo\xC3\xAB_\xF0\x9F\x8E\xB9\n").find("name=\"Zo\xC3\xAB \xF0\x9F\x8E\xB9\""),
              std::string::npos);
    importBank("P 1 Zo\xEB_\x96_\x80<\"&>\n");
    EXPECT_EQ(m_desk.bankNames(), std::vector<std::string>{"Zo\xC3\xAB \xE2\x80\x93 \xE2\x82\xAC<\"&>"});
    importBank(std::string("P 1 a\x01\0b</Program>\nC 0 0 5 <Program_\n", 36));
    EXPECT_EQ(m_desk.bankNames(), std::vector<std::string>{"a\xEF\xBF\xBD\xEF\xBF\xBD"
                                                           "b</Program>"});
}

TEST_F(Version2ImportTest, AnyOtherFileMakesABankThatCanBeRead) {
    std::string bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += static_cast<char>(i * 7919 >> 3);

    for (const std::string& text :
         {bytes, "P" + bytes, "P 1 a\nL" + bytes + "\nK" + bytes + "\nC" + bytes, std::string("P\0K\0L", 5),
          std::string("<?xml version=\"1.0\"?>\n<Bank/>\n"), std::string("P 1 a\nL ") + std::string(100000, '9'),
          std::string(
              "P 1 a\nK 2147483647 -1 53 -2147483648 2147483647\nC 2147483647 -2147483648 9 - 5 5 5\n"
              "L 5 5 5 5 Zz -1 999 -999 300 300 300 99999999999 300 --5 0 0 2147483647 2147483647 3 -5 -5\n")}) {
        const std::string first = importBank(text);
        EXPECT_TRUE(first.starts_with(HEADER + "<Bank>\n"));
        EXPECT_TRUE(first.ends_with("</Bank>\n"));
        EXPECT_EQ(m_desk.bankNames().empty(), first == HEADER + "<Bank>\n</Bank>\n");
    }
}

TEST_F(Version2ImportTest, ASectionWithoutEndIsCutAndABankWithoutEndIsNotWritten) {
    std::string layers = "P 1 a\n";
    for (int i = 0; i < 30000; ++i)
        layers += "L\n";
    const std::string text = importProgram(layers);
    std::size_t count = 0;
    for (std::size_t at = text.find("<Layer "); at != std::string::npos; at = text.find("<Layer ", at + 1))
        ++count;
    EXPECT_EQ(count, 10000u);

    std::string programs;
    for (int i = 0; i < 1200; ++i)
        programs += "P 1 " + std::string(60000, 'a') + "\n";
    EXPECT_EQ(importBank(programs), "");
    EXPECT_EQ(m_notified.take().back(), IMPORT_VERSION_2_BANK_DONE.NUMBER);
}

TEST_F(Version2ImportTest, ATargetThatCanNotBeWrittenStaysAsItIs) {
    ASSERT_TRUE(Files::createFolders(m_desk.file("new.bnk")));
    importBank("P 1 a\n");
    EXPECT_TRUE(std::filesystem::is_empty(*Platform::systemPath(m_desk.file("new.bnk"))));
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{IMPORT_VERSION_2_BANK_DONE.NUMBER});
}

}
}
