#include "Gui/System/SetupDialog.h"

#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/windows/WindowText.h"
#include "tests/support/win32/DeskGui.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <prsht.h>

namespace Gui::System {
namespace {

using Backend::MidiEngine::MidiInputPort;
using Backend::MidiEngine::MidiOutputPort;
using TestSupport::eventually;
using TestSupport::waitForDialog;
using Lines = std::vector<std::string>;

template <class Port>
Port makePort(const std::string& name, bool enabled, bool available = true) {
    Port port;
    port.name = name;
    port.enabled = enabled;
    port.available = available;
    return port;
}

// The sheet as its user sees it, from another thread.
class Sheet {
public:
    static Sheet waitForIt() {
        return Sheet(waitForDialog([](HWND window) { return getWindowText(window) == "Mirel Console Setup"; }));
    }

    HWND handle() const { return m_window; }
    int pageCount() const { return static_cast<int>(SendMessageA(tabs(), TCM_GETITEMCOUNT, 0, 0)); }

    std::string title(int index) const {
        char text[100] = "";
        TCITEMA item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        SendMessageA(tabs(), TCM_GETITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        return text;
    }

    // The page of this number, after turning to it.
    HWND turnTo(int index) const {
        SendMessageA(m_window, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
        return current();
    }

    HWND current() const { return reinterpret_cast<HWND>(SendMessageA(m_window, PSM_GETCURRENTPAGEHWND, 0, 0)); }

    void press(int button) const { PostMessageA(m_window, PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0); }
    void ok() const { close(PSBTN_OK); }
    void cancel() const { close(PSBTN_CANCEL); }

private:
    explicit Sheet(HWND window) : m_window(window) {}

    HWND tabs() const { return reinterpret_cast<HWND>(SendMessageA(m_window, PSM_GETTABCONTROL, 0, 0)); }

    void close(int button) const {
        press(button);
        eventually([&] { return !IsWindow(m_window); });
    }

    HWND m_window;
};

bool isShown(HWND page, int id) {
    return (GetWindowLongPtrA(GetDlgItem(page, id), GWL_STYLE) & WS_VISIBLE) != 0;
}

bool isChecked(HWND page, int id) {
    return SendDlgItemMessageA(page, id, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::string textOf(HWND page, int id) {
    return getWindowText(GetDlgItem(page, id));
}

void set(HWND page, int id, bool checked) {
    SendDlgItemMessageA(page, id, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void set(HWND page, int id, const char* text) {
    SetDlgItemTextA(page, id, text);
}

std::string rowOf(HWND list, int row) {
    char text[200] = "";
    LVITEMA item{};
    item.pszText = text;
    item.cchTextMax = sizeof text;
    SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

bool isRowChecked(HWND list, int row) {
    return SendMessageA(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK) ==
           INDEXTOSTATEIMAGEMASK(2);
}

void checkRow(HWND list, int row, bool checked) {
    LVITEMA item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(checked ? 2u : 1u);
    SendMessageA(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

class SetupDialogTest : public testing::Test {
protected:
    SetupDialogTest() {
        gui.window = top.handle();
        gui.midiOutputPorts = {makePort<MidiOutputPort>("Synth", true), makePort<MidiOutputPort>("MIDI Yoke 1", false),
                               makePort<MidiOutputPort>("Old Synth", true, false)};
        gui.midiInputPorts = {makePort<MidiInputPort>("Keys", true), makePort<MidiInputPort>("MIDI Yoke 1", true)};
    }

    // Shows the sheet and lets its user do something.
    void show(const std::function<void(const Sheet&)>& user, bool isPlugin = false) {
        SetupDialog dialog(gui, gui.getRegistrySettings(), !isPlugin, !isPlugin, !isPlugin);
        const TestSupport::OtherThread other([&] { user(Sheet::waitForIt()); });
        dialog.show();
    }

    // The message box that refuses a page; answers it.
    static std::string answerRefusal() {
        const HWND box = waitForDialog([](HWND window) { return getWindowText(window) == "Invalid entry"; });
        const std::string text = getWindowText(GetDlgItem(box, 0xffff));
        PostMessageA(box, WM_COMMAND, IDOK, 0);
        eventually([&] { return !IsWindow(box); });
        return text;
    }

    Backend::RegistrySettings& settings() { return gui.getRegistrySettings(); }

    TestSupport::TestWindow top{600, 60};
    TestSupport::DeskGui gui;
};

TEST_F(SetupDialogTest, HasThreePages) {
    show([](const Sheet& sheet) {
        EXPECT_EQ(sheet.pageCount(), 3);
        EXPECT_EQ(sheet.title(0), "General");
        EXPECT_EQ(sheet.title(1), "Display");
        EXPECT_EQ(sheet.title(2), "Midi Outputs");
        EXPECT_NE(GetPropA(sheet.current(), "GeneralLeDialog"), nullptr);
        EXPECT_NE(GetPropA(sheet.turnTo(1), "DisplayDialog"), nullptr);
        EXPECT_NE(GetPropA(sheet.turnTo(2), "MidiOutputDialog"), nullptr);
        sheet.cancel();
    });
    EXPECT_EQ(gui.takePosted(), Lines{});
}

TEST_F(SetupDialogTest, OfAPluginHasTwoPages) {
    settings().setAlwaysOnTop(true);
    settings().setUseSkinBorder(true);
    show(
        [](const Sheet& sheet) {
            EXPECT_EQ(sheet.pageCount(), 2);
            EXPECT_EQ(sheet.title(1), "Display");
            EXPECT_FALSE(isShown(sheet.current(), 1047));
            EXPECT_FALSE(isShown(sheet.current(), 1048));
            EXPECT_TRUE(isShown(sheet.current(), 1049));
            sheet.ok();
        },
        true);
    const Lines posted = gui.takePosted();
    EXPECT_NE(std::find(posted.begin(), posted.end(), "33236 1 0"), posted.end());
    EXPECT_NE(std::find(posted.begin(), posted.end(), "33260 1 0"), posted.end());
}

TEST_F(SetupDialogTest, OpensOnTheScreen) {
    SetWindowPos(top.handle(), nullptr, 700, 740, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    show([](const Sheet& sheet) {
        RECT rect{};
        GetWindowRect(sheet.handle(), &rect);
        EXPECT_GE(rect.left, 0);
        EXPECT_LE(rect.right, GetSystemMetrics(SM_CXSCREEN));
        EXPECT_LE(rect.bottom, GetSystemMetrics(SM_CYSCREEN));
        EXPECT_GT(rect.left, 100);
        sheet.cancel();
    });
}

TEST_F(SetupDialogTest, GeneralShowsTheSettings) {
    settings().setLiteChannel(9);
    settings().setLiteVelocity(77);
    settings().setLiteStackNotes(false);
    settings().setMouseSensitivity(3);
    settings().setDockToBottomEdge(true);
    settings().setAlwaysOnTop(true);
    settings().setUseSkinBorder(false);
    settings().setClickZoneChannelTranspose(true);
    show([](const Sheet& sheet) {
        const HWND page = sheet.current();
        EXPECT_EQ(textOf(page, 1006), "10");
        EXPECT_EQ(SendDlgItemMessageA(page, 1006, CB_GETCOUNT, 0, 0), 16);
        EXPECT_EQ(textOf(page, 1053), "77");
        EXPECT_EQ(textOf(page, 1063), "3");
        EXPECT_FALSE(isChecked(page, 1084));
        EXPECT_TRUE(isChecked(page, 1049));
        EXPECT_TRUE(isChecked(page, 1047));
        EXPECT_FALSE(isChecked(page, 1048));
        EXPECT_TRUE(isChecked(page, 1087));
        EXPECT_EQ(textOf(page, 1084), "Stack Notes");
        EXPECT_EQ(textOf(page, 1049), "Dock To Bottom Edge");
        EXPECT_EQ(textOf(page, 1047), "Always On Top");
        EXPECT_EQ(textOf(page, 1048), "Metallic Border");
        EXPECT_EQ(textOf(page, 1087), "Click before or after zone transposes zone.");
        for (const int id : {1006, 1053, 1063, 1084, 1049, 1047, 1048, 1087})
            EXPECT_TRUE(isShown(page, id)) << id;
        sheet.cancel();
    });
}

TEST_F(SetupDialogTest, OkPostsWhatGeneralHolds) {
    show([](const Sheet& sheet) {
        const HWND page = sheet.current();
        SendDlgItemMessageA(page, 1006, CB_SETCURSEL, 4, 0);
        set(page, 1053, "88");
        set(page, 1063, "5");
        set(page, 1084, false);
        set(page, 1049, true);
        set(page, 1047, true);
        set(page, 1048, false);
        set(page, 1087, true);
        sheet.ok();
    });
    EXPECT_EQ(gui.takePosted(), (Lines{"33268 5 0", "33229 1 0", "33236 1 0", "33260 0 0", "33272 1 0", "33269 88 0",
                                       "33271 0 0", "33270 4 0"}));
    EXPECT_EQ(settings().getLiteVelocity(), 88);
    EXPECT_FALSE(settings().getLiteStackNotes());
    EXPECT_EQ(settings().getLiteChannel(), 4);
    // The others come back from the desk.
    EXPECT_EQ(settings().getMouseSensitivity(), 1);
    EXPECT_FALSE(settings().getDockToBottomEdge());
}

TEST_F(SetupDialogTest, AnInvalidChannelBecomesTheFirst) {
    for (const int channel : {-1, 16, 300}) {
        settings().setLiteChannel(channel);
        show([](const Sheet& sheet) {
            EXPECT_EQ(textOf(sheet.current(), 1006), "1");
            sheet.ok();
        });
        const Lines posted = gui.takePosted();
        EXPECT_NE(std::find(posted.begin(), posted.end(), "33270 0 0"), posted.end()) << channel;
        EXPECT_EQ(settings().getLiteChannel(), 0) << channel;
    }
}

TEST_F(SetupDialogTest, CancelPostsNothing) {
    show([](const Sheet& sheet) {
        set(sheet.current(), 1053, "88");
        set(sheet.turnTo(1), 1059, true);
        checkRow(GetDlgItem(sheet.turnTo(2), 5242), 0, false);
        sheet.cancel();
    });
    EXPECT_EQ(gui.takePosted(), Lines{});
    EXPECT_EQ(settings().getLiteVelocity(), 100);
}

TEST_F(SetupDialogTest, DisplayHasTwoChoices) {
    settings().setDisplayNumbers(true);
    show([](const Sheet& sheet) {
        const HWND page = sheet.turnTo(1);
        EXPECT_FALSE(isShown(page, 1030));
        EXPECT_FALSE(isShown(page, 1051));
        EXPECT_TRUE(isShown(page, 1059));
        EXPECT_TRUE(isShown(page, 1052));
        EXPECT_EQ(textOf(page, 1030), "Display Midi Input Events");
        EXPECT_EQ(textOf(page, 1051), "Display Midi Output Events");
        EXPECT_EQ(textOf(page, 1059), "Large Display Font");
        EXPECT_EQ(textOf(page, 1052), "Display Numbers");
        EXPECT_TRUE(isChecked(page, 1052));
        EXPECT_FALSE(isChecked(page, 1059));
        set(page, 1059, true);
        set(page, 1052, false);
        sheet.ok();
    });
    const Lines posted = gui.takePosted();
    ASSERT_EQ(posted.size(), 10u);
    EXPECT_EQ(Lines(posted.begin() + 8, posted.end()), (Lines{"33232 0 0", "33233 1 0"}));
}

TEST_F(SetupDialogTest, OutputsShowTheirPorts) {
    gui.midiOutputPorts.push_back(makePort<MidiOutputPort>(std::string(120, 'x'), false));
    show([](const Sheet& sheet) {
        const HWND list = GetDlgItem(sheet.turnTo(2), 5242);
        EXPECT_EQ(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), 4);
        EXPECT_EQ(SendMessageA(list, LVM_GETCOLUMNWIDTH, 0, 0), 220);
        EXPECT_TRUE(SendMessageA(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_CHECKBOXES);
        EXPECT_EQ(rowOf(list, 0), "Synth");
        EXPECT_EQ(rowOf(list, 1), "MIDI Yoke 1");
        EXPECT_EQ(rowOf(list, 2), "Old Synth (Not Found)");
        EXPECT_EQ(rowOf(list, 3), std::string(100, 'x'));
        EXPECT_TRUE(isRowChecked(list, 0));
        EXPECT_FALSE(isRowChecked(list, 1));
        EXPECT_TRUE(isRowChecked(list, 2));
        EXPECT_EQ(GetPropA(list, "MYCHANGE"), nullptr);
        sheet.cancel();
    });
}

TEST_F(SetupDialogTest, OkPostsEveryOutput) {
    gui.midiInputPorts[1].enabled = false;
    show([](const Sheet& sheet) {
        const HWND list = GetDlgItem(sheet.turnTo(2), 5242);
        checkRow(list, 0, false);
        checkRow(list, 1, true);
        sheet.ok();
    });
    const Lines posted = gui.takePosted();
    ASSERT_GE(posted.size(), 3u);
    EXPECT_EQ(Lines(posted.end() - 3, posted.end()), (Lines{"33250 0 0", "33250 1 1", "33250 2 1"}));
}

TEST_F(SetupDialogTest, AnOutputThatLoopsKeepsThePage) {
    show([](const Sheet& sheet) {
        const HWND page = sheet.turnTo(2);
        const HWND list = GetDlgItem(page, 5242);
        checkRow(list, 1, true);
        sheet.press(PSBTN_OK);
        EXPECT_EQ(answerRefusal(),
                  "Invalid MIDI loopback port settings. Cannot enable input and output simultaneously.");
        EXPECT_TRUE(IsWindow(sheet.handle()));
        EXPECT_EQ(sheet.current(), page);
        EXPECT_TRUE(isRowChecked(list, 1));
        checkRow(list, 1, false);
        sheet.ok();
    });
    const Lines posted = gui.takePosted();
    ASSERT_GE(posted.size(), 3u);
    EXPECT_EQ(Lines(posted.end() - 3, posted.end()), (Lines{"33250 0 1", "33250 1 0", "33250 2 1"}));
    EXPECT_EQ(
        std::count_if(posted.begin(), posted.end(), [](const std::string& line) { return line.starts_with("33250"); }),
        3);
}

TEST_F(SetupDialogTest, ThePageThatLoopsCannotBeLeftForAnother) {
    show([](const Sheet& sheet) {
        const HWND page = sheet.turnTo(2);
        checkRow(GetDlgItem(page, 5242), 1, true);
        PostMessageA(sheet.handle(), PSM_SETCURSEL, 0, 0);
        answerRefusal();
        EXPECT_EQ(sheet.current(), page);
        sheet.cancel();
    });
    EXPECT_EQ(gui.takePosted(), Lines{});
}

TEST_F(SetupDialogTest, MarksOfAPageThatWasLeftCount) {
    show([](const Sheet& sheet) {
        checkRow(GetDlgItem(sheet.turnTo(2), 5242), 0, false);
        sheet.turnTo(0);
        sheet.ok();
    });
    const Lines posted = gui.takePosted();
    EXPECT_NE(std::find(posted.begin(), posted.end(), "33250 0 0"), posted.end());
}

TEST_F(SetupDialogTest, OpensAgainWithThePortsOfThatTime) {
    show([](const Sheet& sheet) {
        checkRow(GetDlgItem(sheet.turnTo(2), 5242), 0, false);
        sheet.turnTo(0);
        sheet.cancel();
    });
    gui.midiOutputPorts.resize(1);
    show([](const Sheet& sheet) {
        const HWND list = GetDlgItem(sheet.turnTo(2), 5242);
        EXPECT_EQ(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), 1);
        EXPECT_TRUE(isRowChecked(list, 0));
        sheet.cancel();
    });
}

TEST_F(SetupDialogTest, SpaceSwitchesACheckBox) {
    settings().setDockToBottomEdge(false);
    show([](const Sheet& sheet) {
        const HWND page = sheet.current();
        const HWND box = GetDlgItem(page, 1049);
        SendMessageA(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(box), TRUE);
        SendMessageA(box, WM_KEYDOWN, VK_SPACE, 1);
        EXPECT_TRUE(isChecked(page, 1049));
        SendMessageA(box, WM_KEYDOWN, VK_SPACE, 1);
        EXPECT_FALSE(isChecked(page, 1049));
        sheet.cancel();
    });
}

TEST_F(SetupDialogTest, ValuesTurnWithTheWheel) {
    settings().setLiteVelocity(100);
    show([](const Sheet& sheet) {
        const HWND page = sheet.current();
        const auto turn = [&](int id, int notches) {
            SendDlgItemMessageA(page, id, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(120 * notches)), 0);
        };
        turn(1053, 1);
        EXPECT_EQ(textOf(page, 1053), "101");
        turn(1063, -1);
        EXPECT_EQ(textOf(page, 1063), "1");
        turn(1063, 1);
        EXPECT_EQ(textOf(page, 1063), "2");
        sheet.cancel();
    });
}

// One picture per page; nothing on a page is cut off.
TEST_F(SetupDialogTest, ControlsLieInsideTheirPages) {
    show([](const Sheet& sheet) {
        for (int index = 0; index < 3; ++index) {
            const HWND page = sheet.turnTo(index);
            RECT client{};
            GetClientRect(page, &client);
            for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
                const RECT rect = TestSupport::rectInParent(child);
                EXPECT_GE(rect.left, 0);
                EXPECT_LE(rect.right, client.right) << getWindowText(child);
                EXPECT_TRUE(rect.bottom <= client.bottom || GetDlgCtrlID(child) == 1006) << getWindowText(child);
            }
            TestSupport::Picture(page).save("setup-" + std::to_string(index));
            TestSupport::Picture(sheet.handle()).save("setup-sheet-" + std::to_string(index));
        }
        sheet.cancel();
    });
}

}
}
