#include "Gui/System/SystemPanel.h"

#include "Backend/core/MirelMessages.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Platform/Shell.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/win32/DeskGui.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <memory>

namespace Gui::System {
namespace {

using Backend::MidiEngine::MidiOutputPort;
using TestSupport::keyForMenu;
using TestSupport::pump;
using TestSupport::pumpUntil;
using TestSupport::rectInParent;
using TestSupport::textOf;
using Lines = std::vector<std::string>;

MidiOutputPort makePort(const std::string& name, bool enabled, bool available) {
    MidiOutputPort port;
    port.name = name;
    port.enabled = enabled;
    port.available = available;
    return port;
}

class SystemPanelTest : public testing::Test {
protected:
    SystemPanelTest() {
        gui.window = top.handle();
        gui.midiOutputPorts = {makePort("One", true, true), makePort("Off", false, true), makePort("Gone", true, false),
                               makePort("Four", true, true)};
        gui.bank = Backend::Bank("C:\\Band.bnk", {"Piano", "Organ", "Strings"});
        gui.program = Backend::Program("Organ", 1, 120, -1);
    }

    void create() {
        root.createWnd(static_cast<HINSTANCE>(Platform::getModuleInstance()), top.handle());
        panel = std::make_unique<SystemPanel>(gui);
        root.add(panel.get());
        root.showWnd(true);
        panel->showWnd(true);
        pump();
        gui.takePosted();
        gui.takeCalls();
    }

    HWND item(int id) { return GetDlgItem(panel->getWindowHandle(), id); }

    void press(int id) {
        SendMessageA(item(id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        SendMessageA(item(id), WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    }

    // Opens a list and presses these keys in it.
    void choose(int id, std::initializer_list<WPARAM> keys) {
        for (const WPARAM key : keys)
            keyForMenu(panel->getWindowHandle(), key);
        SendMessageA(item(id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        pump();
    }

    // Repeats that until it reaches the desk, because a list doesn't open again right after it has closed.
    Lines chosen(int id, std::initializer_list<WPARAM> keys) {
        Lines posted;
        EXPECT_TRUE(pumpUntil([&] {
            choose(id, keys);
            posted = gui.takePosted();
            return !posted.empty();
        }));
        return posted;
    }

    TestSupport::TestWindow top{600, 100};
    TestSupport::DeskGui gui;
    SkinPanel root{gui};
    std::unique_ptr<SystemPanel> panel;
};

struct ControlRow {
    int id;
    const char* caption;
    bool visible;
    int helpId;
};

constexpr ControlRow CONTROLS[] = {
    {1014, nullptr, true, 140}, {1003, "<", true, 137},     {1004, ">", true, 138},      {102, "OUT", true, 122},
    {1012, "CTRL", true, 133},  {1016, "DISP", true, 134},  {1020, "?", true, 123},      {1018, "S", true, 145},
    {1055, "R", true, 125},     {1022, "K", true, 131},     {1026, nullptr, false, 139}, {1027, "<", false, 135},
    {1028, ">", false, 136},    {1013, "C IN", false, 126}, {1015, "M IN", false, 127},  {1025, "OSC", false, 5221},
    {103, "J IN", false, 5222}, {1021, "T", false, 124},
};

TEST_F(SystemPanelTest, HasItsControls) {
    create();
    EXPECT_EQ(textOf(panel->getWindowHandle()), "Gui::System::SystemPanel");
    for (const ControlRow& row : CONTROLS) {
        ASSERT_NE(item(row.id), nullptr) << row.id;
        if (row.caption) {
            EXPECT_EQ(textOf(item(row.id)), row.caption);
        }
        EXPECT_EQ((GetWindowLongPtrA(item(row.id), GWL_STYLE) & WS_VISIBLE) != 0, row.visible) << row.id;
        EXPECT_EQ(reinterpret_cast<std::intptr_t>(GetPropA(item(row.id), "HELP")), row.helpId) << row.id;
    }
}

TEST_F(SystemPanelTest, ShowsItsFirstRowWholeAndTheOthersNotAtAll) {
    create();
    RECT client{};
    GetClientRect(panel->getWindowHandle(), &client);
    for (const ControlRow& row : CONTROLS) {
        const RECT rect = rectInParent(item(row.id));
        EXPECT_GE(rect.left, 0) << row.id;
        EXPECT_LE(rect.right, client.right) << row.id;
        EXPECT_EQ(rect.bottom <= client.bottom, row.visible) << row.id;
        EXPECT_EQ(rect.top < client.bottom, row.visible) << row.id;
    }
}

TEST_F(SystemPanelTest, NoControlsOverlap) {
    create();
    for (const ControlRow& one : CONTROLS)
        for (const ControlRow& other : CONTROLS) {
            const RECT a = rectInParent(item(one.id));
            const RECT b = rectInParent(item(other.id));
            RECT both{};
            EXPECT_TRUE(one.id == other.id || !IntersectRect(&both, &a, &b)) << one.id << " " << other.id;
        }
    TestSupport::Picture(panel->getWindowHandle()).save("system");
}

struct PressRow {
    int id;
    const char* first;   // What the first press requests.
    const char* second;  // And the second one.
    bool ofDesk;
};

constexpr PressRow PRESSES[] = {
    {102, "showOutput on", "showOutput off", false},
    {1012, "showControl on", "showControl off", false},
    {1016, "showDisplay on", "showDisplay off", false},
    {1020, "showHelp on", "showHelp off", false},
    {1013, "showComputerInput on", "showComputerInput off", false},
    {1015, "", "", false},
    {1025, "", "", false},
    {103, "", "", false},
    {1003, "33258 mode=1 value=0", "33258 mode=1 value=0", true},
    {1004, "33258 mode=0 value=0", "33258 mode=0 value=0", true},
    {1027, "33257 mode=1 value=0", "33257 mode=1 value=0", true},
    {1028, "33257 mode=0 value=0", "33257 mode=0 value=0", true},
    {1055, "33253 0 0", "33253 0 0", true},
    {1021, "33265 0 1", "33265 1 1", true},
    {1022, "33266 0 1", "33266 1 1", true},
};

TEST_F(SystemPanelTest, EachButtonDoesItsWork) {
    gui.getRegistrySettings().setMidiThru(false);
    gui.getRegistrySettings().setGlobalKeyboard(false);
    create();
    for (const PressRow& row : PRESSES)
        for (const char* expected : {row.first, row.second}) {
            press(row.id);
            const Lines lines = *expected ? Lines{expected} : Lines{};
            EXPECT_EQ(gui.takePosted(), row.ofDesk ? lines : Lines{}) << row.id;
            EXPECT_EQ(gui.takeCalls(), row.ofDesk ? Lines{} : lines) << row.id;
        }
}

TEST_F(SystemPanelTest, SetupOpensWhenItsButtonIsReleased) {
    create();
    TestSupport::movePointer(item(1018), 5, 5);
    SendMessageA(item(1018), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(gui.takeCalls(), Lines{});
    SendMessageA(item(1018), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(gui.takeCalls(), Lines{"showSetupDialog"});
}

TEST_F(SystemPanelTest, ThruAndGlobalKeyboardBeginAsTheSettingsAre) {
    gui.getRegistrySettings().setMidiThru(true);
    gui.getRegistrySettings().setGlobalKeyboard(true);
    create();
    press(1021);
    press(1022);
    EXPECT_EQ(gui.takePosted(), (Lines{"33265 1 1", "33266 1 1"}));
    gui.getRegistrySettings().setMidiThru(true);
    panel->refreshSettings();
    press(1021);
    EXPECT_EQ(gui.takePosted(), Lines{"33265 1 1"});
}

TEST_F(SystemPanelTest, ButtonsFollowTheScreens) {
    create();
    panel->setOutputButton(true);
    panel->setControlButton(true);
    panel->setDisplayButton(true);
    panel->setHelpButton(true);
    panel->setComputerInputButton(true);
    for (const int id : {102, 1012, 1016, 1020, 1013})
        press(id);
    EXPECT_EQ(gui.takeCalls(),
              (Lines{"showOutput off", "showControl off", "showDisplay off", "showHelp off", "showComputerInput off"}));
}

TEST_F(SystemPanelTest, ButtonsThatAreOnAreBright) {
    create();
    const auto colour = [&](int id) { return TestSupport::Picture(item(id)).at(2, 2); };
    EXPECT_EQ(colour(102), GdiManager::DARK_GREEN);
    panel->setOutputButton(true);
    EXPECT_EQ(colour(102), GdiManager::LIGHT_LIGHT_GREEN);
}

TEST_F(SystemPanelTest, ListsOutputsThatCanBeUsed) {
    gui.defaultOutput = 3;
    create();
    EXPECT_EQ(textOf(item(1014)), "Four");
    // The first of the list, then the second, which is the port of index 3.
    EXPECT_EQ(chosen(1014, {VK_HOME, VK_RETURN}), Lines{"33258 mode=3 value=0"});
    EXPECT_EQ(textOf(item(1014)), "One");
    EXPECT_EQ(chosen(1014, {VK_END, VK_RETURN}), Lines{"33258 mode=3 value=3"});
}

TEST_F(SystemPanelTest, AnOutputThatCannotBeUsedIsNotShown) {
    gui.defaultOutput = 1;
    create();
    EXPECT_EQ(textOf(item(1014)), "");
    gui.midiOutputPorts[1].enabled = true;
    panel->refreshOutputs();
    EXPECT_EQ(textOf(item(1014)), "Off");
    gui.defaultOutput = 0;
    panel->selectDefaultOutput();
    EXPECT_EQ(textOf(item(1014)), "One");
}

TEST_F(SystemPanelTest, TheWheelChoosesOutputs) {
    gui.defaultOutput = 0;
    create();
    SendMessageA(item(1014), UM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0);
    pump();
    EXPECT_EQ(gui.takePosted(), Lines{"33258 mode=3 value=3"});
    SendMessageA(item(1014), UM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0);
    pump();
    EXPECT_EQ(gui.takePosted(), Lines{});
}

TEST_F(SystemPanelTest, ShowsTheCurrentProgram) {
    create();
    EXPECT_EQ(textOf(item(1026)), "2 - Organ");
    gui.program = Backend::Program("Strings", 2, 120, -1);
    panel->selectCurrentProgram();
    EXPECT_EQ(textOf(item(1026)), "3 - Strings");
    gui.program.setName("Zoë");
    panel->refreshPrograms();
    EXPECT_EQ(textOf(item(1026)), "3 - Zoë");
}

TEST_F(SystemPanelTest, ShowsAProgramThatIsInNoBank) {
    create();
    gui.bank = {};
    gui.program = Backend::Program("Alone", 0, 120, -1);
    panel->refreshPrograms();
    EXPECT_EQ(textOf(item(1026)), "1 - Alone");
}

TEST_F(SystemPanelTest, ProgramsAreChosenFromTheList) {
    create();
    choose(1026, {VK_HOME, VK_RETURN});
    EXPECT_EQ(gui.takePosted(), Lines{"33257 mode=3 value=0"});
    EXPECT_EQ(textOf(item(1026)), "1 - Piano");
}

TEST_F(SystemPanelTest, MenusOpenFromOutside) {
    create();
    keyForMenu(panel->getWindowHandle(), VK_HOME);
    keyForMenu(panel->getWindowHandle(), VK_RETURN);
    panel->showOutputMenu();
    pump();
    EXPECT_EQ(gui.takePosted(), Lines{"33258 mode=3 value=0"});
    keyForMenu(panel->getWindowHandle(), VK_END);
    keyForMenu(panel->getWindowHandle(), VK_RETURN);
    panel->showProgramMenu();
    pump();
    EXPECT_EQ(gui.takePosted(), Lines{"33257 mode=3 value=2"});
}

TEST_F(SystemPanelTest, TheRightButtonOpensTheMenuOfFunctions) {
    create();
    const char* const calls[] = {"showLoadDialog", "showSetupDialog", "importVersion2File"};
    for (int row = 1; row <= 3; ++row) {
        for (int i = 0; i <= row; ++i)
            keyForMenu(panel->getWindowHandle(), VK_DOWN);
        keyForMenu(panel->getWindowHandle(), VK_RETURN);
        SendMessageA(panel->getWindowHandle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(panel->getWindowHandle()),
                     MAKELPARAM(60, 60));
        EXPECT_EQ(gui.takeCalls(), Lines{calls[row - 1]});
    }
}

TEST_F(SystemPanelTest, SaveAsksForABankOrAProgram) {
    create();
    const TestSupport::TemporaryFolder folder;
    for (const bool isProgram : {false, true}) {
        constexpr int FILE_NAME = 0x47c;
        const std::string path = folder.path() + (isProgram ? "\\lead.prg" : "\\live.bnk");
        keyForMenu(panel->getWindowHandle(), VK_DOWN);
        keyForMenu(panel->getWindowHandle(), VK_RETURN);
        {
            const TestSupport::OtherThread user([&path] {
                const HWND dialog = TestSupport::waitForDialog([](HWND window) { return textOf(window) == "Save"; });
                SendMessageA(GetDlgItem(dialog, FILE_NAME), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
                PostMessageA(dialog, WM_COMMAND, IDOK, 0);
            });
            SendMessageA(panel->getWindowHandle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(panel->getWindowHandle()),
                         MAKELPARAM(60, 60));
        }
        const UINT number =
            isProgram ? Backend::MirelMessages::SAVE_TO_PROGRAM.NUMBER : Backend::MirelMessages::SAVE_TO_BANK.NUMBER;
        EXPECT_EQ(gui.takePosted(), Lines{std::to_string(number) + " '" + path + "'"});
    }
}

TEST_F(SystemPanelTest, EveryControlHasHelp) {
    create();
    for (const ControlRow& row : CONTROLS) {
        gui.helpWindows.clear();
        SendMessageA(item(row.id), WM_NCHITTEST, 0, MAKELPARAM(60, 60));
        EXPECT_EQ(gui.helpWindows, std::vector<HWND>{item(row.id)}) << row.id;
    }
}

class ProgramNameTest : public SystemPanelTest {
protected:
    ProgramNameTest() { create(); }

    // Presses on the list with Ctrl held.
    HWND open() {
        SendMessageA(item(1026), WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, MAKELPARAM(3, 3));
        return box();
    }

    HWND box() { return GetWindow(item(1026), GW_CHILD); }
};

TEST_F(ProgramNameTest, OpensOverTheList) {
    const HWND name = open();
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(gui.takeCalls(), Lines{"clearComputerKeyboardHilight"});
    EXPECT_EQ(GetFocus(), name);
    EXPECT_EQ(textOf(name), "Organ");
    DWORD start = 0;
    DWORD end = 0;
    SendMessageA(name, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 5u);
    EXPECT_EQ(end, 5u);
    RECT list{};
    GetClientRect(item(1026), &list);
    const RECT rect = rectInParent(name);
    EXPECT_EQ(rect.left, 2);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.right, list.right);
    EXPECT_EQ(rect.bottom, list.bottom);
}

TEST_F(ProgramNameTest, WithoutCtrlTheListOpens) {
    choose(1026, {VK_ESCAPE});
    EXPECT_EQ(box(), nullptr);
    EXPECT_EQ(gui.takePosted(), Lines{});
}

TEST_F(ProgramNameTest, EnterSaves) {
    const HWND name = open();
    SetWindowTextA(name, "Zoë – ピアノ");
    SendMessageA(name, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(gui.takePosted(), Lines{"33255 'Zoë – ピアノ'"});
    EXPECT_EQ(box(), nullptr);
}

TEST_F(ProgramNameTest, EscapeLeavesTheNameAsItWas) {
    const HWND name = open();
    SetWindowTextA(name, "Other");
    SendMessageA(name, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ(gui.takePosted(), Lines{});
    EXPECT_EQ(box(), nullptr);
}

TEST_F(ProgramNameTest, AClickIntoTheBoxSaves) {
    const HWND name = open();
    SetWindowTextA(name, "Clicked");
    SendMessageA(name, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    EXPECT_EQ(gui.takePosted(), Lines{"33255 'Clicked'"});
    EXPECT_EQ(box(), nullptr);
}

TEST_F(ProgramNameTest, LosingTheFocusSaves) {
    SetWindowTextA(open(), "Lost");
    SetFocus(top.handle());
    EXPECT_EQ(gui.takePosted(), Lines{"33255 'Lost'"});
    EXPECT_EQ(box(), nullptr);
}

TEST_F(ProgramNameTest, ANameIsAtMostTwoHundredBytesOfWholeCharacters) {
    const HWND name = open();
    SetWindowTextA(name, (std::string(199, 'x') + "éé").c_str());
    SendMessageA(name, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(gui.takePosted(), Lines{"33255 '" + std::string(199, 'x') + "'"});
}

TEST_F(ProgramNameTest, TakesEnterAndEscapeFromTheDialog) {
    const HWND name = open();
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE})
        EXPECT_EQ(SendMessageA(name, WM_GETDLGCODE, key, 0) & DLGC_WANTALLKEYS, DLGC_WANTALLKEYS);
    EXPECT_EQ(SendMessageA(name, WM_GETDLGCODE, VK_TAB, 0) & DLGC_WANTALLKEYS, 0);
}

TEST_F(ProgramNameTest, IsInTheColoursOfTheDesk) {
    open();
    const HDC dc = GetDC(item(1026));
    const LRESULT brush =
        SendMessageA(item(1026), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(box()));
    EXPECT_EQ(GetTextColor(dc), GdiManager::AMBER);
    EXPECT_EQ(GetBkColor(dc), GdiManager::BLACK);
    EXPECT_EQ(reinterpret_cast<HBRUSH>(brush), gui.getGdiManager().getBackroundBrush().handle());
    ReleaseDC(item(1026), dc);
}

TEST_F(ProgramNameTest, OpensAgain) {
    SendMessageA(open(), WM_KEYDOWN, VK_ESCAPE, 1);
    const HWND again = open();
    ASSERT_NE(again, nullptr);
    SendMessageA(again, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(gui.takePosted(), Lines{"33255 'Organ'"});
}

TEST_F(ProgramNameTest, ThePanelMayGoWhileItIsOpen) {
    open();
    DestroyWindow(panel->getWindowHandle());
    panel.reset();
    pump();
    const Lines posted = gui.takePosted();
    EXPECT_LE(posted.size(), 1u);
}

}
}
