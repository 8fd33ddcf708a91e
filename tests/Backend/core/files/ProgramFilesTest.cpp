// Programs and banks as a desk loads and saves them.
#include "Backend/core/WindowMessages.h"
#include "Backend/core/files/BankFile.h"
#include "Backend/core/trace/Trace.h"
#include "Backend/functions/values/SelectType.h"
#include "Platform/SystemPath.h"
#include "Platform/xml/XmlReader.h"
#include "tests/support/CapturedDebugText.h"
#include "tests/support/FileDesk.h"

#include <gtest/gtest.h>

namespace Backend {
namespace {

using namespace WindowMessages;
using TestSupport::FileDesk;
using TestSupport::PostedNumbers;

namespace Files = Platform::Files;

const std::string HEADER = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n";

// One of everything, as the desk writes it.
const std::string BLOCK =
    "<Program name=\"A &amp; B\" tempo=\"97\" tempoSource=\"1\">\n"
    "\t<ComputerInput merge=\"false\" useKeyUpMod=\"true\">\n"
    "\t\t<Key id=\"Q\" global=\"false\">\n"
    "\t\t\t<Function keepSending=\"false\">\n"
    "\t\t\t\t<Down>\n"
    "\t\t\t\t\t<MidiNoteOn zone=\"3\" note=\"C4\" velocity=\"100\"/>\n"
    "\t\t\t\t</Down>\n"
    "\t\t\t</Function>\n"
    "\t\t</Key>\n"
    "\t</ComputerInput>\n"
    "\t<Controls merge=\"false\">\n"
    "\t\t<Control cell=\"1,2\" type=\"edit\" name=\"&lt;Vol&gt;\" value=\"5\" min=\"0\" "
    "max=\"127\" release=\"-1\" autoSend=\"false\" size=\"1\">\n"
    "\t\t</Control>\n"
    "\t</Controls>\n"
    "\t<Layers merge=\"false\">\n"
    "\t\t<Layer mute=\"true\" mono=\"false\" toggle=\"off\" useNoteStack=\"true\" "
    "minNote=\"C-1\" maxNote=\"G9\" minVelocity=\"0\" maxVelocity=\"127\" zone=\"-1\" "
    "output=\"-1\" channel=\"5\" transpose=\"+12\" key=\"\" velocity=\"\" compress=\"1_1\">\n"
    "\t\t</Layer>\n"
    "\t</Layers>\n"
    "\t<Zones merge=\"false\">\n"
    "\t\t<Zone id=\"3\" transpose=\"-2\"/>\n"
    "\t</Zones>\n"
    "</Program>\n";

const std::string EMPTY_BLOCK =
    "<Program name=\"\" tempo=\"120\" tempoSource=\"-1\">\n"
    "\t<ComputerInput merge=\"false\" useKeyUpMod=\"false\">\n\t</ComputerInput>\n"
    "\t<Controls merge=\"false\">\n\t</Controls>\n"
    "\t<Layers merge=\"false\">\n\t</Layers>\n"
    "\t<Zones merge=\"false\">\n\t</Zones>\n"
    "</Program>\n";

std::string named(const std::string& name) {
    std::string block = EMPTY_BLOCK;
    return block.replace(block.find("\"\""), 2, "\"" + name + "\"");
}

std::string bankOf(int programs) {
    std::string text = HEADER + "<Bank>\n";
    for (int i = 0; i < programs; ++i)
        text += named("P" + std::to_string(i));
    return text + "</Bank>\n";
}

std::string native(const std::string& text) {
    return Files::withSystemLineEnds(text);
}

class ProgramFilesTest : public testing::Test {
protected:
    std::string writeBank(const std::string& text, const std::string& name = "a.bnk") {
        m_desk.write(name, text);
        return m_desk.file(name);
    }

    void load(const std::string& path) {
        m_desk.run([&path](Mirel& mirel) { mirel.loadBank(path); });
    }

    void select(int index) {
        m_desk.run([index](Mirel& mirel) { mirel.changeProgram(SelectType(SelectType::SPECIFIC, index)); });
    }

    void rename(const std::string& name) {
        m_desk.run([&name](Mirel& mirel) { mirel.changeProgramName(name); });
    }

    void save(int index) {
        m_desk.run([this, index](Mirel& mirel) { mirel.saveToCurrentBank(index, m_notified.window()); });
    }

    void resize(int size) {
        m_desk.run([this, size](Mirel& mirel) { mirel.changeBankSize(size, m_notified.window()); });
    }

    int index() {
        int result = -1;
        m_desk.run([&result](Mirel& mirel) { result = mirel.getCurrentProgram().getIndex(); });
        return result;
    }

    FileDesk m_desk;
    PostedNumbers m_notified;
};

TEST_F(ProgramFilesTest, AProgramFileIsWrittenByteByByte) {
    m_desk.run([](Mirel& mirel) { mirel.loadProgramFromXml("<X>" + BLOCK + "</X>", 0); });
    const std::string path = m_desk.file("a.prg");
    m_desk.run([&](Mirel& mirel) { mirel.saveToProgram(" \t" + path + "\n", m_notified.window()); });
    EXPECT_EQ(m_desk.read("a.prg"), native(HEADER + "<ProgramFile>\n" + BLOCK + "</ProgramFile>\n"));
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{SAVE_TO_PROGRAM_DONE.NUMBER});
    EXPECT_EQ(m_desk.programXml(), HEADER + "<MirelProgramFile>\n" + BLOCK + "</MirelProgramFile>\n");
}

TEST_F(ProgramFilesTest, ASavedBankHoldsTheSameBlock) {
    load(writeBank(bankOf(3)));
    m_desk.run([](Mirel& mirel) { mirel.loadProgramFromXml("<X>" + BLOCK + "</X>", 0); });
    save(1);
    EXPECT_EQ(m_desk.read("a.bnk"), HEADER + "<Bank>\n" + named("P0") + native(BLOCK) + named("P2") + "</Bank>\n");
    EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", "A & B", "P2"}));
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{SAVE_TO_BANK_DONE.NUMBER});
    EXPECT_EQ(m_desk.programName(), "P0") << "the program of the current index is loaded again";
    select(1);
    EXPECT_EQ(m_desk.programXml(), HEADER + "<MirelProgramFile>\n" + BLOCK + "</MirelProgramFile>\n");
}

TEST_F(ProgramFilesTest, AProgramThatWouldMakeItsBankUnreadableIsNotSaved) {
    const std::string bank = bankOf(3);
    load(writeBank(bank));
    rename(std::string(Platform::XML_MAX_RUN + 1, 'x'));
    save(0);
    EXPECT_EQ(m_desk.read("a.bnk"), bank);
    EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", "P1", "P2"}));
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{SAVE_TO_BANK_DONE.NUMBER});
}

// The first save of something it can't hold turns it into UTF-8.
TEST_F(ProgramFilesTest, ABankInAnotherEncodingKeepsItsNames) {
    using namespace std::string_literals;
    const std::string utf8 = "Zo\xC3\xAB";

    const auto bankIn = [](const std::string& encoding, const std::string& name) {
        return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n<Bank>\n<Program name=\"" + name +
               "\">\n</Program>\n<Program name=\"B\">\n</Program>\n</Bank>\n";
    };

    std::string utf16 = "\xFF\xFE";
    for (const char character : bankIn("utf-16", "Zo\xEB"))
        utf16 += std::string{character, '\0'};

    for (const std::string& bank : {bankIn("iso-8859-1", "Zo\xEB"), bankIn("windows-1252", "Zo\xEB"), utf16,
                                    "\xEF\xBB\xBF" + bankIn("utf-8", utf8)}) {
        load(writeBank(bank));
        ASSERT_EQ(m_desk.bankNames(), (std::vector<std::string>{utf8, "B"}));
        rename("New " + utf8);
        save(1);
        EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{utf8, "New " + utf8}));
        save(1);
        EXPECT_EQ(m_desk.bankNames()[0], utf8);
        resize(3);
        EXPECT_EQ(m_desk.bankNames()[0], utf8);
        resize(1);
        EXPECT_EQ(m_desk.bankNames(), std::vector<std::string>{utf8});
    }

    load(writeBank(bankIn("us-ascii", "Zoe")));
    rename(utf8);

    save(0);
    EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{utf8, "B"}));
}

TEST_F(ProgramFilesTest, AProgramFileIsSavedWithoutBeingLoaded) {
    load(writeBank(bankOf(3)));
    rename("Mine");
    const std::string path = m_desk.file("a.prg");
    m_desk.run([&](Mirel& mirel) { mirel.saveToProgram(path, m_notified.window()); });
    EXPECT_EQ(m_desk.programName(), "Mine");
    m_desk.run([&](Mirel& mirel) { EXPECT_EQ(mirel.getCurrentBank().getPath(), m_desk.file("a.bnk")); });
}

// What is not reported otherwise is in the developers' trace.
TEST_F(ProgramFilesTest, FilesThatCanNotBeUsedAreTraced) {
    const TestSupport::CapturedDebugText captured;
    Trace::channel().setEnabled(true);
    load(m_desk.file("missing.bnk"));
    load(writeBank("no XML"));
    m_desk.run([this](Mirel& mirel) { mirel.saveToProgram(m_desk.file("no folder/a.prg"), nullptr); });
    Trace::channel().setEnabled(false);
    std::string all;

    for (const std::string& text : captured.texts())
        all += text;
    EXPECT_NE(all.find("missing.bnk: can't be read\n"), std::string::npos) << all;
    EXPECT_NE(all.find("a.bnk: is not usable XML\n"), std::string::npos) << all;
    EXPECT_NE(all.find("a.prg: can't be written\n"), std::string::npos) << all;
    EXPECT_NE(all.find("MIREL_TRACE: src\\Backend\\core\\xml\\XmlDocument:"), std::string::npos) << all;
}

TEST_F(ProgramFilesTest, AnEmptyProgramSilencesEverything) {
    m_desk.run([](Mirel& mirel) { mirel.loadProgramFromXml("<X>" + BLOCK + "</X>", 0); });
    load(writeBank(HEADER + "<Bank>\n<Program name=\"Empty\">\n</Program>\n</Bank>\n"));
    EXPECT_EQ(m_desk.programXml(), HEADER + "<MirelProgramFile>\n" + named("Empty") + "</MirelProgramFile>\n");
}

TEST_F(ProgramFilesTest, WhatAProgramLacksIsResetAloneAndUnknownElementsAreSkipped) {
    m_desk.run([](Mirel& mirel) {
        mirel.loadProgramFromXml("<X>" + BLOCK + "</X>", 0);
        mirel.loadProgramFromXml(
            "<X><Program name='n' tempo='abc'><!-- a --><layers/><Other><Layers/></Other>"
            "<Controls merge='true'/></Program></X>",
            4);
    });
    std::string expected = named("n");
    const std::string controls = "\t<Controls merge=\"false\">\n";
    const std::size_t from = BLOCK.find("\t\t<Control ");

    expected.insert(expected.find(controls) + controls.size(), BLOCK.substr(from, BLOCK.find("\t</Controls>") - from));
    EXPECT_EQ(m_desk.programXml(), HEADER + "<MirelProgramFile>\n" + expected + "</MirelProgramFile>\n");
    EXPECT_EQ(index(), 4);
}

TEST_F(ProgramFilesTest, ATempoOfAFileIsNotCheckedForItsRange) {
    m_desk.run(
        [](Mirel& mirel) { mirel.loadProgramFromXml("<X><Program name='n' tempo='19' tempoSource='7'/></X>", 0); });
    EXPECT_NE(m_desk.programXml().find("<Program name=\"n\" tempo=\"19\" tempoSource=\"7\">"), std::string::npos);
}

TEST_F(ProgramFilesTest, OfATextOnlyTheFirstElementIsLookedAt) {
    for (const std::string& xml : {std::string("<X><Other/>" + named("n") + "</X>"), std::string(" \n\t"),
                                   std::string("<X>" + named("n")), std::string("<X/>")}) {
        m_desk.run([&xml](Mirel& mirel) {
            mirel.loadProgramFromXml("<X>" + BLOCK + "</X>", 0);
            mirel.loadProgramFromXml(xml, 3);
        });
        std::string expected = BLOCK;
        expected.replace(0, expected.find('\n'), "<Program name=\"\" tempo=\"120\" tempoSource=\"-1\">");
        EXPECT_EQ(m_desk.programXml(), HEADER + "<MirelProgramFile>\n" + expected + "</MirelProgramFile>\n") << xml;
        EXPECT_EQ(index(), 3);
    }
}

TEST_F(ProgramFilesTest, ABankOf128IsSavedAtEveryIndexWithAllOtherBytesKept) {
    const std::string text = bankOf(128);
    const std::string path = writeBank(text);
    load(path);
    for (int i = 0; i < 128; ++i) {
        ASSERT_TRUE(Files::replace(path, text));
        rename("saved");
        save(i);
        std::string expected = text;
        const std::string old = named("P" + std::to_string(i));
        expected.replace(expected.find(old), old.size(), native(named("saved")));
        ASSERT_EQ(m_desk.read("a.bnk"), expected) << i;
    }
}

TEST_F(ProgramFilesTest, AnIndexBeyondTheBankPutsTheProgramBehindItsEnd) {
    const std::string text = bankOf(2);
    load(writeBank(text));
    rename("late");
    save(2);
    EXPECT_EQ(m_desk.read("a.bnk"), text + native(named("late")));
    EXPECT_TRUE(m_desk.bankNames().empty()) << "the file is malformed";
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{SAVE_TO_BANK_DONE.NUMBER});
}

TEST_F(ProgramFilesTest, NothingIsSavedAtANegativeIndexOrWithoutABank) {
    save(0);
    const std::string text = bankOf(2);
    load(writeBank(text));
    save(-1);
    EXPECT_EQ(m_desk.read("a.bnk"), text);
    EXPECT_TRUE(m_notified.take().empty());
}

TEST_F(ProgramFilesTest, ASaveToAnotherBankCopiesTheCurrentOneAndGoesThere) {
    const std::string text = bankOf(3);
    load(writeBank(text));
    select(2);
    rename("moved");
    const std::string other = m_desk.file("b.bnk");
    m_desk.run([&](Mirel& mirel) { mirel.saveToBank(other, m_notified.window()); });
    EXPECT_EQ(m_desk.read("a.bnk"), text);
    EXPECT_EQ(m_desk.read("b.bnk"),
              HEADER + "<Bank>\n" + named("P0") + named("P1") + native(named("moved")) + "</Bank>\n");
    EXPECT_EQ(m_desk.programName(), "moved");
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{SAVE_TO_BANK_DONE.NUMBER});
    m_desk.run([&](Mirel& mirel) { EXPECT_EQ(mirel.getCurrentBank().getPath(), other); });
}

TEST_F(ProgramFilesTest, AProgramFileIsItsFirstProgramAtTheCurrentIndex) {
    load(writeBank(bankOf(3)));
    select(2);
    m_desk.write("a.prg", HEADER + "<ProgramFile>\n" + named("single") + named("second") + "</ProgramFile>\n");
    m_desk.run([this](Mirel& mirel) { mirel.loadProgram(m_desk.file("a.prg")); });
    EXPECT_EQ(m_desk.programName(), "single");
    EXPECT_EQ(index(), 2);
    save(index());
    EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", "P1", "single"}));
}

TEST_F(ProgramFilesTest, AProgramOfAnyOtherFileIsTheOneOfTheCurrentIndex) {
    load(writeBank(bankOf(3)));
    select(1);
    for (const char* name : {"b.PRG", "b.xml", "bprg"}) {
        m_desk.write(name, "<R>" + named("first") + named("second") + "</R>");
        m_desk.run([&](Mirel& mirel) { mirel.loadProgram(m_desk.file(name)); });
        EXPECT_EQ(m_desk.programName(), "second") << name;
    }
}

TEST_F(ProgramFilesTest, AShorterBankGivesANamelessProgramAndKeepsTheComponents) {
    load(writeBank(HEADER + "<Bank>\n" + named("a") + BLOCK + "</Bank>\n"));
    select(1);
    load(writeBank(bankOf(1), "b.bnk"));
    EXPECT_EQ(index(), 1);
    std::string expected = BLOCK;
    expected.replace(0, expected.find('\n'), "<Program name=\"\" tempo=\"120\" tempoSource=\"-1\">");
    EXPECT_EQ(m_desk.programXml(), HEADER + "<MirelProgramFile>\n" + expected + "</MirelProgramFile>\n");
}

TEST_F(ProgramFilesTest, ASmallerBankIsCutBehindItsNewLastProgram) {
    load(writeBank(bankOf(10)));
    select(5);
    resize(3);
    EXPECT_EQ(m_desk.read("a.bnk"),
              HEADER + "<Bank>\n" + named("P0") + named("P1") + named("P2") + native("</Bank>\n"));
    EXPECT_EQ(index(), 2);
    EXPECT_EQ(m_desk.programName(), "P2");
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{CHANGE_BANK_SIZE_DONE.NUMBER});
}

TEST_F(ProgramFilesTest, ALargerBankEndsWithEmptyPrograms) {
    load(writeBank(bankOf(3)));
    select(1);
    resize(5);
    EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", "P1", "P2", "Empty", "Empty"}));
    EXPECT_EQ(m_desk.read("a.bnk"), HEADER + "<Bank>\n" + named("P0") + named("P1") + named("P2") +
                                        native("<Program name=\"Empty\">\n</Program>\n<Program name=\"Empty\">\n"
                                               "</Program>\n</Bank>\n"));
    EXPECT_EQ(index(), 1);
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{CHANGE_BANK_SIZE_DONE.NUMBER});
}

TEST_F(ProgramFilesTest, AnInvalidOrUnchangedSizeDoesNothing) {
    const std::string text = bankOf(3);
    load(writeBank(text));
    for (const int size : {3, 0, -1, -2147483647 - 1})
        resize(size);
    EXPECT_EQ(m_desk.read("a.bnk"), text);
    EXPECT_TRUE(m_notified.take().empty());
}

TEST_F(ProgramFilesTest, ASizeBeyondAllBanksLeavesTheBank) {
    const std::string text = bankOf(3);
    load(writeBank(text));
    resize(2147483647);
    EXPECT_EQ(m_desk.read("a.bnk"), text);
    EXPECT_EQ(m_desk.bankNames().size(), 3u);
}

TEST_F(ProgramFilesTest, TheSizeOfABankThatIsGoneCanNotBeChanged) {
    const std::string path = writeBank(bankOf(3));
    load(path);
    ASSERT_TRUE(Files::remove(path));
    resize(5);
    EXPECT_EQ(Files::size(path), std::nullopt);
    EXPECT_TRUE(m_notified.take().empty());
}

// Each of these once lost a bank somewhere.
const std::vector<std::string> STRANGE_NAMES = {
    "Zo\xC3\xAB \xE2\x80\x93 \xE3\x83\x94\xE3\x82\xA2\xE3\x83\x8E",
    "\xF0\x9F\x8E\xB9",
    "<Program name=\"x\">",
    "</Program>",
    "</Bank>",
    "<Program \n</Program>\n</Bank>",
    "a\nb\r\nc\td",
    "'\"&<>&amp;&#10;]]>-->",
    "",
    " blanks  inside and around ",
};

TEST_F(ProgramFilesTest, AnyNameOfAProgramComesBack) {
    const std::string text = bankOf(3);
    const std::string path = writeBank(text);
    load(path);
    select(1);

    for (const std::string& name : STRANGE_NAMES) {
        rename(name);
        save(1);
        EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", name, "P2"}));
        EXPECT_EQ(m_desk.programName(), name);
        resize(4);
        EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", name, "P2", "Empty"}));
        resize(3);
    }

    rename("P1");
    save(1);
    EXPECT_EQ(m_desk.read("a.bnk"),
              HEADER + "<Bank>\n" + named("P0") + native(named("P1")) + named("P2") + native("</Bank>\n"));
}

TEST_F(ProgramFilesTest, WhatNoXmlCanHoldInANameDoesNotHarmTheBank) {
    load(writeBank(bankOf(3)));
    select(1);
    rename(std::string("a\x01\0b\xEB", 5));
    save(1);
    const std::string expected =
        "a\xEF\xBF\xBD\xEF\xBF\xBD"
        "b\xEF\xBF\xBD";
    EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", expected, "P2"}));
}

TEST_F(ProgramFilesTest, AnyNameOfAControlComesBackAndNoneBreaksTheBank) {
    load(writeBank(bankOf(3)));
    select(1);

    for (const std::string& name : STRANGE_NAMES) {
        m_desk.run([&name](Mirel& mirel) {
            Controls::Control control;
            control.cell = Cell(1, 2);
            control.type = Controls::ControlType(Controls::ControlType::LABEL);
            control.name = name;
            mirel.getControls().updateControls({control}, false, false);
        });
        save(1);
        EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", "P1", "P2"}));
        select(0);
        select(1);
        m_desk.run([&name](Mirel& mirel) {
            Controls::ControlMap controls = mirel.getControls().getControlMap();
            ASSERT_NE(controls.find(Cell(1, 2)), nullptr);
            EXPECT_EQ(controls.find(Cell(1, 2))->name, name);
        });
    }
}

TEST_F(ProgramFilesTest, BanksAndProgramsMayHaveAnyFileName) {
    for (const std::string name : {"Zo\xC3\xAB \xE2\x80\x93 \xE3\x83\x94\xE3\x82\xA2\xE3\x83\x8E", "\xF0\x9F\x8E\xB9",
                                   "100% #1 & 'more'", "a.b"}) {
        load(writeBank(bankOf(2), name + ".bnk"));
        EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"P0", "P1"})) << name;
        m_desk.run([&name](Mirel& mirel) { EXPECT_EQ(mirel.getCurrentBank().getName(), name); });
        rename("saved");
        save(0);
        EXPECT_EQ(m_desk.bankNames(), (std::vector<std::string>{"saved", "P1"})) << name;
        const std::string program = m_desk.file(name + ".prg");
        m_desk.run([&](Mirel& mirel) {
            mirel.saveToProgram(program, nullptr);
            mirel.changeProgramName("other");
            mirel.loadProgram(program);
        });
        EXPECT_EQ(m_desk.programName(), "saved") << name;
    }
}

TEST_F(ProgramFilesTest, ABankThatCanNotBeReplacedIsShownAgainAsItWas) {
    const std::string text = bankOf(3);
    load(writeBank(text));
    // There is a folder where the bank should go.
    const std::string folder = m_desk.file("b.bnk");
    ASSERT_TRUE(Files::createFolders(folder));
    rename("lost");
    m_desk.run([&](Mirel& mirel) { mirel.saveToBank(folder, m_notified.window()); });
    EXPECT_EQ(m_notified.take(), std::vector<UINT>{SAVE_TO_BANK_DONE.NUMBER});
    EXPECT_EQ(m_desk.read("a.bnk"), text);
    EXPECT_TRUE(m_desk.bankNames().empty());

    load(m_desk.file("a.bnk"));
    rename("lost");
    m_desk.run([&](Mirel& mirel) { mirel.saveToBank(m_desk.file("no folder/b.bnk"), m_notified.window()); });
    m_desk.run([&](Mirel& mirel) { mirel.saveToBank("", m_notified.window()); });
    EXPECT_EQ(m_desk.read("a.bnk"), text);
}

TEST_F(ProgramFilesTest, AProgramThatCanNotBeWrittenIsNotNotified) {
    const std::string folder = m_desk.file("a.prg");
    ASSERT_TRUE(Files::createFolders(folder));
    m_desk.run([&](Mirel& mirel) {
        for (const std::string& path : {folder, m_desk.file("no folder/a.prg"), std::string(" \n"), std::string()})
            mirel.saveToProgram(path, m_notified.window());
    });
    EXPECT_TRUE(m_notified.take().empty());
}

TEST_F(ProgramFilesTest, SavingCreatesNoBankThatIsGoneOrIsNotAFile) {
    const std::string path = writeBank(bankOf(3));
    load(path);
    ASSERT_TRUE(Files::remove(path));
    save(0);
    EXPECT_EQ(Files::size(path), std::nullopt);
    ASSERT_TRUE(Files::createFolders(path));
    save(0);
    EXPECT_TRUE(std::filesystem::is_directory(*Platform::systemPath(path)));
    EXPECT_TRUE(std::filesystem::is_empty(*Platform::systemPath(path)));
}

TEST_F(ProgramFilesTest, AnyOtherFileInPlaceOfABankOrProgramChangesNothingButTheName) {
    std::string deep = HEADER;
    for (int i = 0; i < 5000; ++i)
        deep += "<Bank>";
    std::string bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += static_cast<char>(i * 7919 >> 3);
    const std::string whole = HEADER + "<Bank>\n" + named("n") + "</Bank>\n";

    const std::vector<std::string> texts = {
        "",
        " ",
        bytes,
        deep,
        whole.substr(0, whole.size() / 2),
        whole.substr(0, 40),
        "<!DOCTYPE Bank [<!ENTITY a SYSTEM \"file:///etc/passwd\">]><Bank><Program name=\"&a;\"/></Bank>",
        "<!DOCTYPE Bank [<!ENTITY a \"b\">]><Bank><Program name=\"&a;\"/></Bank>",
        "MThd" + std::string(10, '\0'),
        "P 1 old 0 x\n",
        HEADER + "<Controls merge=\"false\"/>",
        HEADER + "<Bank><program name=\"small\"/></Bank>",
    };

    for (const std::string& text : texts) {
        m_desk.run([](Mirel& mirel) { mirel.loadProgramFromXml("<X>" + BLOCK + "</X>", 0); });
        std::string expected = BLOCK;
        expected.replace(0, expected.find('\n'), "<Program name=\"\" tempo=\"120\" tempoSource=\"-1\">");
        expected = HEADER + "<MirelProgramFile>\n" + expected + "</MirelProgramFile>\n";
        m_desk.write("b.prg", text);
        m_desk.run([this](Mirel& mirel) { mirel.loadProgram(m_desk.file("b.prg")); });
        EXPECT_EQ(m_desk.programXml(), expected);
        load(writeBank(text));
        EXPECT_TRUE(m_desk.bankNames().empty());
        EXPECT_EQ(m_desk.programXml(), expected);
    }

    load(m_desk.file("data"));
    EXPECT_TRUE(m_desk.bankNames().empty());
}

TEST_F(ProgramFilesTest, APresetThatTheKeysStillAreIsWrittenAsItsName) {
    const std::string name = "Zo\xC3\xAB & 'me'";
    m_desk.run([&name](Mirel& mirel) {
        mirel.getComputerInput().savePreset(name, {});
        mirel.getComputerInput().loadPreset(name);
        mirel.getLayers().clear();
        mirel.getControls().clear();
    });
    const std::string reference =
        "\t<ComputerInput preset=\"Zo\xC3\xAB &amp; &apos;me&apos;\" merge=\"false\" useKeyUpMod=\"false\">\n"
        "\t</ComputerInput>\n";
    EXPECT_NE(m_desk.programXml().find(reference), std::string::npos);

    m_desk.run([](Mirel& mirel) { mirel.getComputerInput().setUseKeyUpMod(true); });
    EXPECT_EQ(m_desk.programXml().find("preset="), std::string::npos) << "no longer the preset";
    m_desk.run([](Mirel& mirel) { mirel.getComputerInput().setUseKeyUpMod(false); });
    EXPECT_NE(m_desk.programXml().find(reference), std::string::npos);

    // Without the file nobody can know, and the reference stays.
    const std::string path = m_desk.dataFile("Computer Input Presets", name + ".pst");
    ASSERT_TRUE(Files::remove(path));
    m_desk.run([](Mirel& mirel) { mirel.getComputerInput().setUseKeyUpMod(true); });
    EXPECT_NE(m_desk.programXml().find("preset="), std::string::npos);
    ASSERT_TRUE(Files::createFolders(path));
    EXPECT_NE(m_desk.programXml().find("preset="), std::string::npos) << "a folder is no preset";
}

TEST_F(ProgramFilesTest, AProgramLoadsTheTrimmedPresetInPlaceOfItsOwnKeys) {
    m_desk.run([](Mirel& mirel) {
        mirel.loadProgramFromXml("<X>" + BLOCK + "</X>", 0);
        mirel.getComputerInput().savePreset("Q alone", {});
        mirel.loadProgramFromXml(
            "<X><Program><ComputerInput preset=' Q alone\n'><Key id='W'/></ComputerInput>"
            "</Program></X>",
            0);
        EXPECT_EQ(mirel.getComputerInput().getCurrentPreset(), "Q alone");
        EXPECT_TRUE(mirel.getComputerInput().getUseKeyUpMod());
        Backend::ComputerInput::KeyConfigurationMap keys = mirel.getComputerInput().getKeyConfigurations();
        EXPECT_NE(keys.find(Key(std::string_view("Q"))), nullptr);
        EXPECT_EQ(keys.find(Key(std::string_view("W"))), nullptr);
        mirel.loadProgramFromXml("<X><Program><ComputerInput preset=' \n'><Key id='W'/></ComputerInput></Program></X>",
                                 0);
        EXPECT_EQ(mirel.getComputerInput().getCurrentPreset(), "");
        keys = mirel.getComputerInput().getKeyConfigurations();
        EXPECT_NE(keys.find(Key(std::string_view("W"))), nullptr);
    });
}

}
}
