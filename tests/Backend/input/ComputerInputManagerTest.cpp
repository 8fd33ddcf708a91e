// Key events and presets of a whole desk.
#include "Backend/core/xml/XmlDocument.h"
#include "Platform/Files.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ScriptedDesk.h"

#include <gtest/gtest.h>

namespace {

using TestSupport::ScriptedDesk;

// A preset's text with these attributes and keys.
std::string presetOf(const std::string& attributes, const std::string& keys) {
    return "<ComputerInput " + attributes + ">" + keys + "</ComputerInput>";
}

std::string entryOf(const std::string& down, const std::string& up, bool keepSending = false) {
    return std::string("<Function keepSending=\"") + (keepSending ? "true" : "false") + "\"><Down>" + down +
           "</Down><Up>" + up + "</Up></Function>";
}

std::string keyOf(const std::string& id, const std::string& entries) {
    return "<Key id=\"" + id + "\">" + entries + "</Key>";
}

// A note on of channel 0, recognisable by its number.
std::string noteOn(int note) {
    return "<MidiNoteOn channel=\"0\" note=\"" + std::to_string(note) + "\"/>";
}

std::string noteOff(int note) {
    return "<MidiNoteOff channel=\"0\" note=\"" + std::to_string(note) + "\"/>";
}

std::string on(int note) {
    return "play 0x90 " + std::to_string(note) + " 100 ch=0 out=0\n";
}

std::string off(int note) {
    return "play 0x80 " + std::to_string(note) + " 100 ch=0 out=0\n";
}

class ComputerInputManagerTest : public testing::Test {
protected:
    // Uses only these keys, loaded as a preset.
    void useKeys(const std::string& keys, const std::string& attributes = "") {
        m_desk.writeKeyPreset("Test", presetOf(attributes, keys));
        m_desk.run("preset load keys Test");
    }

    // What key commands play.
    std::string play(const std::string& commands) { return m_desk.runAndPlay(commands); }

    // The ComputerInput element of the current program, up to the end of its start tag.
    std::string programTag() {
        const std::string program = m_desk.run("print program");
        const auto from = program.find("<ComputerInput");
        return program.substr(from, program.find('\n', from) - from);
    }

    ScriptedDesk m_desk{{false, false, false}};
};

TEST_F(ComputerInputManagerTest, APressRunsTheDownFunctionsOfAllEntriesInOrder) {
    useKeys(keyOf("A", entryOf(noteOn(60), noteOff(60)) + "<Function/>" + entryOf("", noteOff(61)) +
                           entryOf(noteOn(62), noteOff(62), true)));
    EXPECT_EQ(play("key down A"), on(60) + on(62));
    EXPECT_EQ(play("key up A"), off(60) + off(61) + off(62));
}

TEST_F(ComputerInputManagerTest, ARepeatRunsEntriesThatKeepSendingOnly) {
    useKeys(keyOf("A", entryOf(noteOn(60), "") + entryOf(noteOn(61), "", true) + entryOf("", noteOff(62)) +
                           entryOf(noteOn(63), "", true)));
    EXPECT_EQ(play("key down A repeat"), on(61) + on(63));
    EXPECT_EQ(play("key down A repeat\nkey down A repeat"), on(61) + on(63) + on(61) + on(63));
}

TEST_F(ComputerInputManagerTest, AnEmptyEntryThatDoesNotKeepSendingEndsARepeat) {
    useKeys(keyOf("A", "<Function keepSending=\"false\"/>" + entryOf(noteOn(61), "", true)));
    EXPECT_EQ(play("key down A repeat"), "");
    EXPECT_EQ(play("key down A"), on(61));
    EXPECT_EQ(play("key up A"), "");
}

TEST_F(ComputerInputManagerTest, AnEmptyEntryThatKeepsSendingDoesNotEndARepeat) {
    useKeys(keyOf("A", "<Function keepSending=\"true\"/>" + entryOf(noteOn(61), "", true)));
    EXPECT_EQ(play("key down A repeat"), on(61));
}

TEST_F(ComputerInputManagerTest, AReleaseRunsEveryUpFunctionWhateverRepeats) {
    useKeys(keyOf("A", entryOf("", noteOff(60), true) + entryOf("", noteOff(61))));
    EXPECT_EQ(play("key up A"), off(60) + off(61));
}

TEST_F(ComputerInputManagerTest, KeysWithoutAnEntryDoNothing) {
    useKeys(keyOf("A", entryOf(noteOn(60), noteOff(60))) + keyOf("B", ""));
    EXPECT_EQ(play("key down C\nkey up C\nkey down \"Shift A\"\nkey down B\nkey down B repeat\nkey up B"), "");
}

TEST_F(ComputerInputManagerTest, APressLooksItsModifiersUpAndAReleaseDoesNot) {
    useKeys(keyOf("F1", entryOf(noteOn(60), noteOff(60))) + keyOf("Shift F1", entryOf(noteOn(61), noteOff(61))) +
            keyOf("Shift Control Alt Win F1", entryOf(noteOn(62), noteOff(62))));
    EXPECT_EQ(play("key down \"Shift F1\"\nkey up F1"), on(61) + off(60));
    EXPECT_EQ(play("key down \"Shift F1\"\nkey up \"Shift F1\""), on(61) + off(60));
    EXPECT_EQ(play("key down \"Shift Control Alt Win F1\"\nkey up \"Shift Control Alt Win F1\""), on(62) + off(60));
}

TEST_F(ComputerInputManagerTest, AReleaseLooksItsModifiersUpIfSoSet) {
    useKeys(keyOf("F1", entryOf(noteOn(60), noteOff(60))) + keyOf("Shift F1", entryOf(noteOn(61), noteOff(61))),
            "useKeyUpMod=\"true\"");
    EXPECT_EQ(play("key down \"Shift F1\"\nkey up F1"), on(61) + off(60));
    EXPECT_EQ(play("key down \"Shift F1\"\nkey up \"Shift F1\""), on(61) + off(61));
    EXPECT_EQ(play("key up \"Control F1\""), "");
}

TEST_F(ComputerInputManagerTest, AFunctionMayReplaceTheKeysWhileItRuns) {
    m_desk.writeKeyPreset("Other", presetOf("", keyOf("A", entryOf(noteOn(70), noteOff(70)))));
    useKeys(keyOf("A", entryOf(R"(<LoadComputerInputPreset preset="Other"/>)", "") + entryOf(noteOn(61), noteOff(61))));
    EXPECT_EQ(play("key down A"), on(61));
    EXPECT_EQ(play("key up A\nkey down A"), off(70) + on(70));
}

TEST_F(ComputerInputManagerTest, AFunctionMayReplaceTheKeysOnARelease) {
    m_desk.writeKeyPreset("Empty", presetOf("", ""));
    useKeys(keyOf("A", entryOf("", R"(<LoadComputerInputPreset preset="Empty"/>)") + entryOf("", noteOff(61))));
    EXPECT_EQ(play("key up A"), off(61));
    EXPECT_EQ(play("key up A"), "");
}

TEST_F(ComputerInputManagerTest, NoKeyEventReachesTheKeyWithoutAName) {
    useKeys(keyOf("", entryOf(noteOn(60), noteOff(60))) + keyOf("Shift ", entryOf(noteOn(61), noteOff(61))));
    EXPECT_EQ(play("key down \"\"\nkey up \"\""), "");
    m_desk.onBackend([](Backend::Mirel& mirel) {
        mirel.postKeyDown(Key(255, false, false, false, false), false);
        mirel.postKeyDown(Key(255, true, false, false, false), false);
        mirel.postKeyUp(Key(255, true, false, false, false));
    });
    EXPECT_EQ(play(""), "");
}

TEST_F(ComputerInputManagerTest, OnlyTheLowByteOfACodeArrives) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")));
    m_desk.onBackend(
        [](Backend::Mirel& mirel) { mirel.postKeyDown(Key(0x7f0041, false, false, false, false), false); });
    EXPECT_EQ(play(""), on(60));
}

TEST_F(ComputerInputManagerTest, PostingAKeyEventAllocatesNothing) {
    std::size_t count = 1;
    m_desk.onBackend([&count](Backend::Mirel& mirel) {
        const Key key(std::string_view("Shift A"));
        const TestSupport::AllocationCounter counter;
        mirel.getMessageManager().postKeyDown(key, true);
        mirel.getMessageManager().postKeyUp(key);
        count = counter.count();
    });
    EXPECT_EQ(count, 0u);
}

TEST_F(ComputerInputManagerTest, MissingPresetsChangeNothing) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")));
    EXPECT_TRUE(Platform::Files::createFolders(m_desk.folder().file("Computer Input Presets/Folder.pst")));
    for (const char* name : {"None", "Folder", "", "..", "../Test"}) {
        m_desk.run("preset load keys \"" + std::string(name) + "\"");
        EXPECT_EQ(play("key down A"), on(60)) << name;
        EXPECT_EQ(programTag(), R"(<ComputerInput preset="Test" merge="false" useKeyUpMod="false">)") << name;
    }
}

TEST_F(ComputerInputManagerTest, UnreadablePresetsLeaveTheKeys) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")), "useKeyUpMod=\"true\"");
    for (const char* text : {"", "<ComputerInput><Key id='B'/>", "<Controls merge='false'/>", "\xff\xfe", "<?xml?>"}) {
        m_desk.writeKeyPreset("Bad", text);
        m_desk.run("preset load keys Bad");
        EXPECT_EQ(play("key down A"), on(60)) << text;
        // The preset counts as loaded, but does not hold these keys.
        EXPECT_EQ(programTag(), R"(<ComputerInput merge="false" useKeyUpMod="true">)") << text;
    }
}

TEST_F(ComputerInputManagerTest, PresetsMayMerge) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")) + keyOf("B", entryOf(noteOn(61), "")));
    m_desk.writeKeyPreset("More", presetOf("merge=\"true\"", keyOf("B", "") + keyOf("C", entryOf(noteOn(62), ""))));
    m_desk.run("preset load keys More");
    EXPECT_EQ(play("key down A\nkey down B\nkey down C"), on(60) + on(62));
}

TEST_F(ComputerInputManagerTest, AProgramNamesThePresetThatItsKeysStillAre) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")) + keyOf("B", ""));
    const std::string reference = R"(<ComputerInput preset="Test" merge="false" useKeyUpMod="false">)";
    EXPECT_EQ(programTag(), reference);
    EXPECT_EQ(m_desk.run("print program").find("<Key"), std::string::npos);

    // Keys that do nothing don't count, on either side.
    m_desk.writeKeyPreset("Test", presetOf("merge=\"true\"", keyOf("A", entryOf(noteOn(60), "")) + keyOf("C", "")));
    EXPECT_EQ(programTag(), reference);
}

TEST_F(ComputerInputManagerTest, AProgramHoldsKeysThatDifferFromTheirPreset) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")));
    const std::string keys = R"(<ComputerInput merge="false" useKeyUpMod="false">)";
    for (const std::string& changed :
         {presetOf("", keyOf("A", entryOf(noteOn(61), ""))), presetOf("", ""),
          presetOf("", keyOf("A", entryOf(noteOn(60), "")) + keyOf("B", entryOf(noteOn(60), ""))),
          presetOf("", "<Key id=\"A\" global=\"false\">" + entryOf(noteOn(60), "") + "</Key>"),
          presetOf("useKeyUpMod=\"true\"", keyOf("A", entryOf(noteOn(60), "")))}) {
        m_desk.writeKeyPreset("Test", changed);
        EXPECT_EQ(programTag(), keys) << changed;
        EXPECT_NE(m_desk.run("print program").find("<Key id=\"A\""), std::string::npos) << changed;
    }
}

TEST_F(ComputerInputManagerTest, AProgramNamesAPresetWhoseFileIsGone) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")));
    m_desk.run("preset save keys Test\npreset delete keys Test");
    EXPECT_EQ(programTag(), R"(<ComputerInput preset="Test" merge="false" useKeyUpMod="false">)");
}

TEST_F(ComputerInputManagerTest, ASavedPresetHoldsAllKeys) {
    useKeys(keyOf("B", entryOf(noteOn(60), "", true)) + keyOf("A", ""), "useKeyUpMod=\"true\"");
    m_desk.run("preset save keys Copy");
    EXPECT_EQ(m_desk.readKeyPreset("Copy"),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "\n"
              "<ComputerInput merge=\"false\" useKeyUpMod=\"true\">\n"
              "\t<Key id=\"A\" global=\"true\">\n"
              "\t</Key>\n"
              "\t<Key id=\"B\" global=\"true\">\n"
              "\t\t<Function keepSending=\"true\">\n"
              "\t\t\t<Down>\n"
              "\t\t\t\t<MidiNoteOn channel=\"0\" note=\"C4\" velocity=\"100\"/>\n"
              "\t\t\t</Down>\n"
              "\t\t</Function>\n"
              "\t</Key>\n"
              "</ComputerInput>\n");
}

TEST_F(ComputerInputManagerTest, APresetOfSelectedKeysMergesAndClears) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")) + keyOf("B", entryOf(noteOn(61), "")));
    m_desk.run("preset save keys Some X A");
    EXPECT_EQ(m_desk.readKeyPreset("Some"),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "\n"
              "<ComputerInput merge=\"true\" useKeyUpMod=\"false\">\n"
              "\t<Key id=\"X\" global=\"true\">\n"
              "\t</Key>\n"
              "\t<Key id=\"A\" global=\"true\">\n"
              "\t\t<Function keepSending=\"false\">\n"
              "\t\t\t<Down>\n"
              "\t\t\t\t<MidiNoteOn channel=\"0\" note=\"C4\" velocity=\"100\"/>\n"
              "\t\t\t</Down>\n"
              "\t\t</Function>\n"
              "\t</Key>\n"
              "</ComputerInput>\n");

    useKeys(keyOf("X", entryOf(noteOn(62), "")) + keyOf("B", entryOf(noteOn(61), "")));
    m_desk.run("preset load keys Some");
    EXPECT_EQ(play("key down X\nkey down A\nkey down B"), on(60) + on(61));
}

TEST_F(ComputerInputManagerTest, SavingOverTheLoadedPresetDoesNotLoadIt) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")));
    m_desk.run("preset save keys Test X");
    EXPECT_EQ(programTag(), R"(<ComputerInput merge="false" useKeyUpMod="false">)");
    EXPECT_EQ(play("key down A"), on(60));
}

TEST_F(ComputerInputManagerTest, APresetCanBeRenamedAndDeletedAfterItWasSaved) {
    useKeys(keyOf("A", entryOf(noteOn(60), "")));
    m_desk.run("preset rename keys Test Never\npreset delete keys Test");
    EXPECT_NE(m_desk.readKeyPreset("Test"), "no such file");  // It does not come from this run.
    m_desk.run("preset save keys Mine\npreset rename keys Mine Yours");
    EXPECT_EQ(m_desk.readKeyPreset("Mine"), "no such file");
    EXPECT_NE(m_desk.readKeyPreset("Yours"), "no such file");
    m_desk.run("preset delete keys Yours");
    EXPECT_EQ(m_desk.readKeyPreset("Yours"), "no such file");
}

// Notifications to the main window, without those from other parts of the desk.
class ComputerInputWindowTest : public testing::Test {
protected:
    std::string update(const std::string& xml, bool notifyGui) {
        m_desk.onBackend([&](Backend::Mirel& mirel) {
            const Backend::XmlDocument document(xml, false);
            mirel.getComputerInputMessageManager().postUpdateKeyConfigurations(
                {Backend::ComputerInput::KeyConfiguration(document.getRootElement(), mirel)}, notifyGui);
        });
        return m_desk.run("");
    }

    ScriptedDesk m_desk{{false, false, true}};
};

TEST_F(ComputerInputWindowTest, ChangedKeysReachZonesAndThenTheWindow) {
    const std::string key = R"(<Key id="F12"><Function><Down><MidiNoteOn zone="9" note="C4"/></Down></Function></Key>)";
    EXPECT_EQ(update(key, true), "window 34970 3 zones\nwindow 33469 \"F12\"\nwindow 33471\n");
    EXPECT_EQ(update(R"(<Key id="F12"/>)", false), "window 34970 2 zones\n");
    EXPECT_EQ(m_desk.run("key down F12"), "");
}

TEST_F(ComputerInputWindowTest, SeveralChangedKeysAreReportedTogether) {
    m_desk.onBackend([](Backend::Mirel& mirel) {
        using Backend::ComputerInput::KeyConfiguration;
        mirel.getComputerInputMessageManager().postUpdateKeyConfigurations(
            {KeyConfiguration(Key(std::string_view("A"))), KeyConfiguration(Key(std::string_view("Shift B")))}, true);
    });
    EXPECT_EQ(m_desk.run(""), "window 34970 2 zones\nwindow 33469 \"A\" \"Shift B\"\nwindow 33471\n");
}

TEST_F(ComputerInputWindowTest, SettingTheFlagNotifiesNobody) {
    m_desk.onBackend([](Backend::Mirel& mirel) { mirel.getComputerInputMessageManager().postSetUseKeyUpMod(true); });
    EXPECT_EQ(m_desk.run(""), "");
    EXPECT_NE(m_desk.run("print keys").find(R"(<ComputerInput merge="false" useKeyUpMod="true">)"), std::string::npos);
}

TEST_F(ComputerInputWindowTest, ALoadedPresetIsReportedWithItsFolder) {
    m_desk.writeKeyPreset("P", R"(<ComputerInput useKeyUpMod="yes"><Key id="A"/><Key id="B"/></ComputerInput>)");
    EXPECT_EQ(m_desk.run("preset load keys P"),
              "window 34970 0 zones\nwindow 33470 2 keys useKeyUpMod=on\nwindow 33471\nwindow 33472\n");
    EXPECT_EQ(m_desk.run("preset load keys None"), "");
}

TEST_F(ComputerInputWindowTest, SavingRenamingAndDeletingNotifyNobody) {
    EXPECT_EQ(m_desk.run("preset save keys A\npreset rename keys A B\npreset delete keys B"), "");
}

TEST_F(ComputerInputWindowTest, ClearingReportsAnEmptyMap) {
    m_desk.onBackend([](Backend::Mirel& mirel) {
        mirel.getComputerInput().setUseKeyUpMod(true);
        mirel.getComputerInput().clear();
    });
    EXPECT_EQ(m_desk.run(""), "window 34970 0 zones\nwindow 33470 0 keys useKeyUpMod=off\nwindow 33471\n");
}

// An element as it appears in a program.
TEST_F(ComputerInputWindowTest, AProgramsElementIsAPresetsNameOrKeys) {
    const auto read = [this](const std::string& xml) {
        m_desk.onBackend([&xml](Backend::Mirel& mirel) {
            mirel.getComputerInput().readXml(Backend::XmlDocument(xml, false).getRootElement());
        });
        return m_desk.run("");
    };

    const auto preset = [this] {
        std::string name;
        m_desk.onBackend([&name](Backend::Mirel& mirel) { name = mirel.getComputerInput().getCurrentPreset(); });
        return name;
    };

    m_desk.writeKeyPreset("P", R"(<ComputerInput><Key id="A"/></ComputerInput>)");
    const std::string loaded =
        "window 34970 0 zones\nwindow 33470 1 keys useKeyUpMod=off\nwindow 33471\nwindow 33472\n";
    EXPECT_EQ(read(R"(<ComputerInput preset=" P	"><Key id="X"/><Key id="Y"/></ComputerInput>)"), loaded);
    EXPECT_EQ(preset(), "P");
    EXPECT_EQ(read(R"(<ComputerInput preset="  "><Key id="X"/><Key id="Y"/></ComputerInput>)"),
              "window 34970 0 zones\nwindow 33470 2 keys useKeyUpMod=off\nwindow 33471\n");
    EXPECT_EQ(preset(), "");

    read(R"(<ComputerInput preset="P"/>)");
    EXPECT_EQ(read(R"(<ComputerInput preset="None"><Key id="X"/></ComputerInput>)"), "");
    EXPECT_EQ(preset(), "");
}

}
