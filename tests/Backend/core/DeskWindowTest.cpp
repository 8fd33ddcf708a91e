// What the desk reports to its window, and that it reports nothing else.
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "tests/support/DataTable.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Backend {
namespace {

using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;
using TestSupport::makePorts;
using TestSupport::RunningDesk;

using Operation = std::function<void(Mirel&)>;

// By their names in the table.
std::map<std::string, Operation> operations() {
    const RelativeFixedValue tempo(false, 90);
    return {
        {"setDockToBottomEdge on", [](Mirel& m) { m.setDockToBottomEdge(true); }},
        {"setDockToBottomEdge off", [](Mirel& m) { m.setDockToBottomEdge(false); }},
        {"setDefaultBank", [](Mirel& m) { m.setDefaultBank("a bank"); }},
        {"loadBank", [](Mirel& m) { m.loadBank("other"); }},
        {"loadBank nowhere", [](Mirel& m) { m.loadBank(""); }},
        {"loadProgram", [](Mirel& m) { m.loadProgram("none.prg"); }},
        {"changeProgramFromBank", [](Mirel& m) { m.changeProgramFromBank(3); }},
        {"changeProgramName", [](Mirel& m) { m.changeProgramName("Piano"); }},
        {"changeProgram beyond", [](Mirel& m) { m.changeProgram(SelectType(SelectType::UP)); }},
        {"setDisplayNumbers", [](Mirel& m) { m.setDisplayNumbers(true); }},
        {"setLargeDisplayFont", [](Mirel& m) { m.setLargeDisplayFont(true); }},
        {"setDisplayMidiInputEvents", [](Mirel& m) { m.setDisplayMidiInputEvents(true); }},
        {"setDisplayMidiOutputEvents", [](Mirel& m) { m.setDisplayMidiOutputEvents(false); }},
        {"moveWindow", [](Mirel& m) { m.moveWindow(RelativeFixedValue(true, 5), RelativeFixedValue(false, 100)); }},
        {"showSystemPanel on", [](Mirel& m) { m.showSystemPanel(true); }},
        {"showSystemPanel off", [](Mirel& m) { m.showSystemPanel(false); }},
        {"toggleSystemPanel", [](Mirel& m) { m.toggleSystemPanel(); }},
        {"showHelp", [](Mirel& m) { m.showHelp(true); }},
        {"toggleHelp", [](Mirel& m) { m.toggleHelp(); }},
        {"showDisplay", [](Mirel& m) { m.showDisplay(true); }},
        {"toggleDisplay", [](Mirel& m) { m.toggleDisplay(); }},
        {"showComputerInput", [](Mirel& m) { m.showComputerInput(true); }},
        {"toggleComputerInput", [](Mirel& m) { m.toggleComputerInput(); }},
        {"showControl", [](Mirel& m) { m.showControl(true); }},
        {"toggleControl", [](Mirel& m) { m.toggleControl(); }},
        {"showOutput", [](Mirel& m) { m.showOutput(true); }},
        {"toggleOutput", [](Mirel& m) { m.toggleOutput(); }},
        {"showCc", [](Mirel& m) { m.showCc(true); }},
        {"toggleCc", [](Mirel& m) { m.toggleCc(); }},
        {"showLayer", [](Mirel& m) { m.showLayer(true); }},
        {"toggleLayer", [](Mirel& m) { m.toggleLayer(); }},
        {"showZone", [](Mirel& m) { m.showZone(true); }},
        {"toggleZone", [](Mirel& m) { m.toggleZone(); }},
        {"setMidiInputPorts",
         [](Mirel& m) {
             m.setMidiInputPorts(makePorts<MidiInputPort>({"A", "B"}));
         }},
        {"setMidiOutputPorts", [](Mirel& m) { m.setMidiOutputPorts(makePorts<MidiOutputPort>({"C"})); }},
        {"enableMidiInput", [](Mirel& m) { m.enableMidiInput(1, false); }},
        {"enableMidiInput missing",
         [](Mirel& m) {
             m.enableMidiInput(2, false);
             m.enableMidiInput(-1, false);
             m.enableMidiInput(2147483647, false);
         }},
        {"enableMidiOutput", [](Mirel& m) { m.enableMidiOutput(1, false); }},
        {"changeDefaultMidiOutput", [](Mirel& m) { m.changeDefaultMidiOutput(SelectType(SelectType::SPECIFIC, 2)); }},
        {"resetMirel", [](Mirel& m) { m.resetMirel(); }},
        {"showProgramMenu", [](Mirel& m) { m.showProgramMenu(); }},
        {"showDefaultMidiOutputMenu", [](Mirel& m) { m.showDefaultMidiOutputMenu(); }},
        {"setAlwaysOnTop", [](Mirel& m) { m.setAlwaysOnTop(true); }},
        {"setUseSkinBorder", [](Mirel& m) { m.setUseSkinBorder(false); }},
        {"changeMidiThru", [](Mirel& m) { m.changeMidiThru(OnOffToggle(OnOffToggle::OFF), true); }},
        {"changeMidiThru quietly", [](Mirel& m) { m.changeMidiThru(OnOffToggle(), false); }},
        {"changeGlobalKeyboard", [](Mirel& m) { m.changeGlobalKeyboard(OnOffToggle(OnOffToggle::ON), true); }},
        {"changeGlobalKeyboard quietly", [](Mirel& m) { m.changeGlobalKeyboard(OnOffToggle(), false); }},
        {"setMouseSensitivity", [](Mirel& m) { m.setMouseSensitivity(4); }},
        {"setClickZoneChannelTranspose", [](Mirel& m) { m.setClickZoneChannelTranspose(true); }},
        {"changeTempo", [=](Mirel& m) { m.changeTempo(tempo, true); }},
        {"changeTempo quietly", [=](Mirel& m) { m.changeTempo(tempo, false); }},
        {"changeTempo too fast", [](Mirel& m) { m.changeTempo(RelativeFixedValue(false, 251), true); }},
        {"setTempoSource", [](Mirel& m) { m.setTempoSource(1, true); }},
        {"setTempoSource quietly", [](Mirel& m) { m.setTempoSource(1, false); }},
        {"setTempoSource too far", [](Mirel& m) { m.setTempoSource(2, true); }},
        {"editSelectLayer", [](Mirel& m) { m.editSelectLayer(SelectType(SelectType::SPECIFIC, 7)); }},
        {"setDisplayHeight", [](Mirel& m) { m.setDisplayHeight(99); }},
        {"setLastWindowPosition",
         [](Mirel& m) {
             m.setLastWindowPosition({1, 2, 3, 4});
         }},
        {"setScreenState", [](Mirel& m) { m.setScreenState(ScreenState()); }},
        {"setLiteVelocity", [](Mirel& m) { m.setLiteVelocity(5); }},
        {"setLiteChannel", [](Mirel& m) { m.setLiteChannel(5); }},
        {"setLiteStackNotes", [](Mirel& m) { m.setLiteStackNotes(false); }},
        {"displayString", [](Mirel& m) { m.displayString("text"); }},
    };
}

std::map<std::string, std::vector<std::string>> readExpected() {
    std::map<std::string, std::vector<std::string>> expected;
    for (const auto& row : TestSupport::readTable("window-messages.txt")) {
        auto& told = expected[row.at(2)];
        if (!row[0].empty())
            told.push_back(row[0] + (row[1].empty() ? "" : " " + row[1]));
    }
    return expected;
}

TEST(DeskWindowTest, EachOperationNotifiesTheWindowAsTheTableSays) {
    const auto all = operations();
    const auto expected = readExpected();
    EXPECT_EQ(all.size(), expected.size());

    for (const auto& [name, operation] : all) {
        RunningDesk desk;
        desk.start();
        desk.openWindow();
        ASSERT_TRUE(expected.contains(name)) << name;
        desk.run(operation);
        std::vector<std::string> told = desk.takeTold();
        std::erase_if(told, [](const std::string& text) { return text.starts_with("33254 "); });  // What sounds.
        EXPECT_EQ(told, expected.at(name)) << name;
    }
}

// The address sanitizer finds a copy that was made for nobody.
TEST(DeskWindowTest, WithoutAWindowNobodyIsNotified) {
    RunningDesk desk;
    desk.openWindow();
    desk.start();
    EXPECT_NE(desk.takeTold(), std::vector<std::string>());
    desk.mirel().getMessageManager().postRemoveGuiWindowHandle();
    desk.settle();
    EXPECT_EQ(desk.mirel().getGuiWindowHandle(), nullptr);
    for (const auto& [name, operation] : operations())
        desk.run(operation);
    EXPECT_EQ(desk.takeTold(), std::vector<std::string>());
}

TEST(DeskWindowTest, TheStartReportsEverythingInOrder) {
    RunningDesk desk;
    desk.openWindow();
    desk.start();
    EXPECT_EQ(desk.takeTold(),
              (std::vector<std::string>{"34970 2 zones", "33470 75 keys useKeyUpMod=off", "33471", "33970 13 controls",
                                        "34720 1 layers", "33255 \"In 0\"=on \"In 1\"=on", "33257 0",
                                        "33256 \"Out 0\"=on \"Out 1\"=on \"Out 2\"=on"}));
}

TEST(DeskWindowTest, AFlagOfTheWindowIsAWordOfOneOrZero) {
    RunningDesk desk;
    desk.start();
    desk.openWindow();
    desk.run([](Mirel& mirel) {
        mirel.showZone(true);
        mirel.showZone(false);
        mirel.setMouseSensitivity(-3);
    });

    const auto posted = desk.takePosted();
    ASSERT_EQ(posted.size(), 3u);
    EXPECT_EQ(posted[0].wParam, 1u);
    EXPECT_EQ(posted[1].wParam, 0u);
    EXPECT_EQ(static_cast<int>(posted[2].wParam), -3);

    for (const auto& one : posted)
        EXPECT_EQ(one.lParam, 0);
}

}
}
