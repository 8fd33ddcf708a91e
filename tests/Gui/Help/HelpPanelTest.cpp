#include "Gui/Help/HelpPanel.h"

#include "Gui/Help/ModuleTime.h"
#include "Gui/ResourceIds.h"
#include "Gui/Rules/texts/AboutText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowText.h"
#include "Platform/Shell.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/win32/FakeMirelGui.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <fstream>

namespace Gui::Help {
namespace {

using TestSupport::pump;
using TestSupport::rectInParent;

class HelpPanelTest : public testing::Test {
protected:
    HelpPanelTest() {
        root.createWnd(static_cast<HINSTANCE>(Platform::getModuleInstance()), top.handle());
        root.add(&panel);
        root.showWnd(true);
        panel.showWnd(true);
        pump();
        top.forgetMessages();
        edit = item(1074);
    }

    HWND item(int id) { return GetDlgItem(panel.getWindowHandle(), id); }
    std::string shown() { return getWindowText(edit); }
    void setShown(const char* text) { SetWindowTextA(edit, text); }
    void pressAbout() { SendMessageA(item(1013), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3)); }

    TestSupport::TestWindow top{600, 250};
    TestSupport::FakeMirelGui gui;
    SkinPanel root{gui};
    HelpPanel panel{gui};
    HWND edit = nullptr;
};

TEST_F(HelpPanelTest, HasItsControls) {
    EXPECT_EQ(getWindowText(panel.getWindowHandle()), "Gui::Help::HelpPanel");
    EXPECT_EQ(getWindowText(item(1012)), "MANUAL");
    EXPECT_EQ(getWindowText(item(1013)), "ABOUT");
    const auto helpOf = [&](int id) { return reinterpret_cast<std::intptr_t>(GetPropA(item(id), "HELP")); };
    EXPECT_EQ(helpOf(1012), 142);
    EXPECT_EQ(helpOf(1013), 143);
    EXPECT_EQ(helpOf(1074), 144);
    EXPECT_NE(GetPropA(edit, "TEXT"), nullptr);
    EXPECT_NE(GetPropA(edit, "NOWHEEL"), nullptr);
    EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageA(edit, WM_GETFONT, 0, 0)), gui.getGdiManager().getFont8().handle());
    RECT client{};
    GetClientRect(panel.getWindowHandle(), &client);
    for (const int id : {1012, 1013, 1074}) {
        EXPECT_LE(rectInParent(item(id)).bottom, client.bottom);
        EXPECT_LE(rectInParent(item(id)).right, client.right);
    }
}

TEST_F(HelpPanelTest, ShowsTheTextOfAnId) {
    panel.showHelp(HELP_MANUAL);
    EXPECT_EQ(shown(), "Open the manual.");
    panel.showHelp(5345);
    EXPECT_EQ(shown(), "No function.");
}

TEST_F(HelpPanelTest, IdsWithoutTextShowNothing) {
    panel.showHelp(HELP_MANUAL);
    panel.showHelp(0);
    EXPECT_EQ(shown(), "");
    panel.showHelp(HELP_MANUAL);
    panel.showHelp(9999);
    EXPECT_EQ(shown(), "");
}

TEST_F(HelpPanelTest, TheSameIdIsNotLoadedAgain) {
    panel.showHelp(HELP_MANUAL);
    setShown("marked");
    panel.showHelp(HELP_MANUAL);
    EXPECT_EQ(shown(), "marked");
}

TEST_F(HelpPanelTest, AWindowShowsItsHelp) {
    panel.showHelp(item(1013));
    EXPECT_EQ(shown().substr(0, 16), "Show or hide the");
}

TEST_F(HelpPanelTest, AWindowWithoutHelpLeavesTheOldTextAndComingBackLoadsAgain) {
    panel.showHelp(item(1012));
    setShown("marked");
    panel.showHelp(item(1012));
    EXPECT_EQ(shown(), "marked");
    panel.showHelp(top.handle());
    EXPECT_EQ(shown(), "marked");
    panel.showHelp(item(1012));
    EXPECT_EQ(shown(), "Open the manual.");
    setShown("marked");
    panel.showHelp(static_cast<HWND>(nullptr));
    EXPECT_EQ(shown(), "marked");
    panel.showHelp(item(1012));
    EXPECT_EQ(shown(), "Open the manual.");
}

TEST_F(HelpPanelTest, ShowsTextOfItsOwn) {
    panel.showHelp(std::string("Button: Q"));
    EXPECT_EQ(shown(), "Button: Q");
    panel.showHelp(5498);
    EXPECT_EQ(shown(), "Button: Q");
}

TEST_F(HelpPanelTest, AboutDescribesTheProduct) {
    pressAbout();
    EXPECT_EQ(shown(), describeProduct(getModuleTime()));
    EXPECT_TRUE(shown().starts_with("Mirel Console 3 LE\r\nVersion 3.2 ("));
    TestSupport::Picture(panel.getWindowHandle()).save("help-about");
}

TEST_F(HelpPanelTest, NothingChangesWhileAboutIsOn) {
    pressAbout();
    const std::string about = shown();
    panel.showHelp(HELP_MANUAL);
    panel.showHelp(item(1012));
    panel.showHelp(top.handle());
    panel.showHelp(std::string("Button: Q"));
    EXPECT_EQ(shown(), about);
    pressAbout();
    EXPECT_EQ(shown(), "");
    panel.showHelp(HELP_MANUAL);
    EXPECT_EQ(shown(), "Open the manual.");
}

TEST_F(HelpPanelTest, APressOnTheTextGivesTheFocusUp) {
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(9, 9));
    pump();
    EXPECT_GE(top.count(UM_RETURN_FOCUS), 1u);
}

TEST_F(HelpPanelTest, WithCtrlTextCanBeSelected) {
    setShown("text");
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, MAKELPARAM(9, 9));
    EXPECT_EQ(GetFocus(), edit);
    SendMessageA(edit, WM_LBUTTONUP, MK_CONTROL, MAKELPARAM(9, 9));
}

// The longest texts, in the available room.
TEST_F(HelpPanelTest, AllTextsFit) {
    RECT room{};
    SendMessageA(edit, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    const HDC dc = GetDC(edit);
    const HGDIOBJ old = SelectObject(dc, gui.getGdiManager().getFont8().handle());
    TEXTMETRICA metrics{};
    GetTextMetricsA(dc, &metrics);
    SelectObject(dc, old);
    ReleaseDC(edit, dc);
    const auto lines = (room.bottom - room.top) / metrics.tmHeight;
    for (int id = 100; id < 5500; ++id) {
        panel.showHelp(id);
        EXPECT_LE(SendMessageA(edit, EM_GETLINECOUNT, 0, 0), lines) << id;
    }
    pressAbout();
    EXPECT_LE(SendMessageA(edit, EM_GETLINECOUNT, 0, 0), lines);
    pressAbout();
    panel.showHelp(HELP_SEQUENCE_TEXT);
    TestSupport::Picture(panel.getWindowHandle()).save("help");
}

TEST(ModuleTime, IsThatOfTheFile) {
    const TestSupport::TemporaryFolder folder;
    const std::string path = folder.path() + "\\written";
    std::ofstream(path) << "text";
    SYSTEMTIME local{2024, 2, 0, 29, 13, 5, 9, 0};
    SYSTEMTIME universal{};
    FILETIME time{};
    TzSpecificLocalTimeToSystemTime(nullptr, &local, &universal);
    SystemTimeToFileTime(&universal, &time);
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    SetFileTime(file, nullptr, nullptr, &time);
    CloseHandle(file);
    const auto found = getFileTime(path.c_str());
    ASSERT_TRUE(found);
    EXPECT_NE(describeProduct(found).find("(02/29/2024 13:05:09)"), std::string::npos) << describeProduct(found);
}

TEST(ModuleTime, IsUnknownWithoutTheFile) {
    EXPECT_FALSE(getFileTime("C:\\nowhere\\nothing.dll"));
}

TEST(ModuleTime, OfTheLibraryIsKnown) {
    const auto time = getModuleTime();
    ASSERT_TRUE(time);
    EXPECT_GE(time->year, 2020);
}

}
}
