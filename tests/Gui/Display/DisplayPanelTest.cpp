#include "Gui/Display/DisplayPanel.h"

#include "Backend/core/log/DisplayMessageManager.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowText.h"
#include "Platform/Shell.h"
#include "tests/support/win32/DeskGui.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <atomic>
#include <limits>
#include <memory>
#include <thread>

namespace Gui::Display {
namespace {

using TestSupport::keyForMenu;
using TestSupport::onScreen;
using TestSupport::pump;
using TestSupport::pumpUntil;
using TestSupport::rectInParent;
using Lines = std::vector<std::string>;

constexpr const char* BANNER = "Mirel Console 3.2\r\n";

class DisplayPanelTest : public testing::Test {
protected:
    DisplayPanelTest() { gui.window = top.handle(); }

    ~DisplayPanelTest() override {
        if (panel && IsWindow(panel->getWindowHandle()))
            DestroyWindow(panel->getWindowHandle());
    }

    Backend::Display::DisplayMessageManager& feed() { return gui.desk.mirel().getDisplayMessageManager(); }

    // As the main window does.
    void create(int height = 150) {
        gui.getRegistrySettings().setDisplayHeight(height);
        root.createWnd(static_cast<HINSTANCE>(Platform::getModuleInstance()), top.handle());
        panel = std::make_unique<DisplayPanel>(gui, feed());
        root.add(panel.get());
        root.showWnd(true);
        feed().postSetListener(panel.get());
        edit = GetDlgItem(panel->getWindowHandle(), 1074);
    }

    void createShown(int height = 150) {
        create(height);
        panel->showWnd(true);
        ASSERT_TRUE(pumpUntil([&] { return shown() == BANNER; })) << shown();
    }

    std::string shown() { return getWindowText(edit); }

    int windowHeight() {
        RECT rect{};
        GetWindowRect(panel->getWindowHandle(), &rect);
        return rect.bottom - rect.top;
    }

    // Lets the log's thread finish all its requests.
    void settle() {
        EXPECT_TRUE(pumpUntil([&] { return feed().isIdle(); }));
    }

    // Looks to the panel as if it came from the log's thread.
    void onOtherThread(const std::function<void()>& action) {
        std::atomic<bool> done = false;
        std::thread other([&] {
            action();
            done = true;
        });
        EXPECT_TRUE(pumpUntil([&] { return done.load(); }));
        other.join();
    }

    void drag(int toY) {
        RECT client{};
        GetClientRect(edit, &client);
        SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, client.bottom - 5));
        SendMessageA(panel->getWindowHandle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, toY));
        SendMessageA(panel->getWindowHandle(), WM_LBUTTONUP, 0, MAKELPARAM(30, toY));
    }

    TestSupport::TestWindow top{700, 500};
    TestSupport::DeskGui gui;
    SkinPanel root{gui};
    std::unique_ptr<DisplayPanel> panel;
    HWND edit = nullptr;
};

TEST_F(DisplayPanelTest, HasItsText) {
    createShown();
    EXPECT_EQ(getWindowText(panel->getWindowHandle()), "Gui::Display::DisplayPanel");
    const auto style = GetWindowLongPtrA(edit, GWL_STYLE);
    EXPECT_TRUE(style & ES_MULTILINE);
    EXPECT_TRUE(style & ES_READONLY);
    EXPECT_EQ(SendMessageA(edit, EM_GETLIMITTEXT, 0, 0), 30000);
    EXPECT_EQ(getWindowText(edit), BANNER);
}

TEST_F(DisplayPanelTest, ShowsWhatWasLoggedBeforeItExisted) {
    feed().postAddText("before\r\n");
    create();
    EXPECT_TRUE(pumpUntil([&] { return shown() == std::string(BANNER) + "before\r\n"; })) << shown();
}

TEST_F(DisplayPanelTest, ShowsEventsAsTheyCome) {
    createShown();
    feed().postAddText("one\r\n");
    EXPECT_TRUE(pumpUntil([&] { return shown() == std::string(BANNER) + "one\r\n"; })) << shown();
    feed().postAddText("two\r\n");
    EXPECT_TRUE(pumpUntil([&] { return shown() == std::string(BANNER) + "one\r\ntwo\r\n"; })) << shown();
}

TEST_F(DisplayPanelTest, AHiddenPanelCatchesUpWhenItShows) {
    createShown();
    panel->showWnd(false);
    feed().postAddText("hidden\r\n");
    settle();
    SendMessageA(panel->getWindowHandle(), WM_TIMER, 0, 0);
    settle();
    EXPECT_EQ(shown(), BANNER);
    panel->showWnd(true);
    EXPECT_TRUE(pumpUntil([&] { return shown() == std::string(BANNER) + "hidden\r\n"; })) << shown();
}

TEST_F(DisplayPanelTest, HidingGivesTheFocusBack) {
    createShown();
    top.forgetMessages();
    panel->showWnd(false);
    pump();
    EXPECT_GE(top.count(UM_RETURN_FOCUS), 1u);
}

TEST_F(DisplayPanelTest, StaysBelowThirtyThousand) {
    createShown();
    onOtherThread([&] {
        panel->setText(std::string(29990, 'a').c_str());
        panel->append(std::string(20, 'b').c_str());
    });
    EXPECT_EQ(shown(), std::string(14995, 'a') + std::string(20, 'b'));
}

TEST_F(DisplayPanelTest, KeepsAllThatFits) {
    createShown();
    onOtherThread([&] {
        panel->setText(std::string(29990, 'a').c_str());
        panel->append(std::string(9, 'b').c_str());
    });
    EXPECT_EQ(shown(), std::string(29990, 'a') + std::string(9, 'b'));
}

TEST_F(DisplayPanelTest, TooLongATextIsNotShown) {
    createShown();
    onOtherThread([&] {
        panel->setText("kept");
        panel->setText(std::string(30000, 'a').c_str());
    });
    EXPECT_EQ(shown(), "kept");
    onOtherThread([&] { panel->setText(std::string(29999, 'a').c_str()); });
    EXPECT_EQ(shown().size(), 29999u);
}

TEST_F(DisplayPanelTest, AFloodOfTextStaysBelowTheLimitAndEndsWithTheLatest) {
    createShown();
    for (int i = 0; i < 3000; ++i)
        feed().postAddText("line " + std::to_string(i) + " of the flood\r\n");
    EXPECT_TRUE(pumpUntil([&] { return shown().ends_with("line 2999 of the flood\r\n"); }));
    EXPECT_LT(shown().size(), 30000u);
}

TEST_F(DisplayPanelTest, AppendedTextEndsInView) {
    createShown();
    for (int i = 0; i < 200; ++i)
        feed().postAddText("line " + std::to_string(i) + "\r\n");
    EXPECT_TRUE(pumpUntil([&] { return shown().ends_with("line 199\r\n"); }));
    EXPECT_GT(SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 150);
}

TEST_F(DisplayPanelTest, ClearEmptiesIt) {
    createShown();
    keyForMenu(panel->getWindowHandle(), VK_DOWN);
    keyForMenu(panel->getWindowHandle(), VK_RETURN);
    SendMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), MAKELPARAM(80, 80));
    EXPECT_EQ(shown(), "");
    feed().postAddText("after\r\n");
    EXPECT_TRUE(pumpUntil([&] { return shown() == "after\r\n"; })) << shown();
}

TEST_F(DisplayPanelTest, ClearedTextMakesRoom) {
    createShown();
    onOtherThread([&] { panel->setText(std::string(29990, 'a').c_str()); });
    SetWindowTextA(edit, "");
    onOtherThread([&] {
        panel->append("first\r\n");
        panel->append("second\r\n");
    });
    EXPECT_EQ(shown(), "first\r\nsecond\r\n");
}

TEST_F(DisplayPanelTest, CopyTakesAllTheText) {
    createShown();
    for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN})
        keyForMenu(panel->getWindowHandle(), key);
    SendMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), MAKELPARAM(80, 80));
    ASSERT_TRUE(OpenClipboard(top.handle()));
    const HANDLE data = GetClipboardData(CF_TEXT);
    const std::string copied = data ? static_cast<const char*>(GlobalLock(data)) : "";
    if (data)
        GlobalUnlock(data);
    CloseClipboard();
    EXPECT_EQ(copied, BANNER);
    DWORD start = 0;
    DWORD end = 0;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, end);
}

TEST_F(DisplayPanelTest, FontsAreThoseOfTheSetting) {
    createShown();
    const auto font = [&] { return reinterpret_cast<HFONT>(SendMessageA(edit, WM_GETFONT, 0, 0)); };
    EXPECT_EQ(font(), gui.getGdiManager().getSmallFont().handle());
    panel->setLargeFont(true);
    EXPECT_EQ(font(), gui.getGdiManager().getLargeFont().handle());
    panel->setLargeFont(false);
    EXPECT_EQ(font(), gui.getGdiManager().getSmallFont().handle());
}

TEST_F(DisplayPanelTest, AFontChosenBeforeItsWindowHoldsLater) {
    gui.getRegistrySettings().setDisplayHeight(150);
    panel = std::make_unique<DisplayPanel>(gui, feed());
    panel->setLargeFont(true);
    panel->createWnd(static_cast<HINSTANCE>(Platform::getModuleInstance()), top.handle());
    edit = GetDlgItem(panel->getWindowHandle(), 1074);
    EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageA(edit, WM_GETFONT, 0, 0)),
              gui.getGdiManager().getLargeFont().handle());
}

TEST_F(DisplayPanelTest, FieldsStandInColumns) {
    createShown();
    onOtherThread([&] { panel->setText("A\tB\tC\tD\tE"); });
    // One dialog unit is a quarter of the font's mean character.
    const auto x = [&](int character) {
        return static_cast<int>(
            static_cast<short>(SendMessageA(edit, EM_POSFROMCHAR, static_cast<WPARAM>(character), 0)));
    };
    EXPECT_LT(x(0), x(2));
    const int columns[] = {90, 110, 165, 245};
    const double unit = static_cast<double>(x(8) - x(0)) / columns[3];
    EXPECT_GT(unit, 0.5);
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR(x(2 * (i + 1)) - x(0), columns[i] * unit, 2) << i;
}

TEST_F(DisplayPanelTest, BeginsWithTheHeightOfTheSetting) {
    create(260);
    EXPECT_EQ(windowHeight(), 260);
}

TEST_F(DisplayPanelTest, BeginsNoLowerThanTwentyFive) {
    create(3);
    EXPECT_EQ(windowHeight(), 25);
}

TEST_F(DisplayPanelTest, BeginsNoHigherThanTheScreen) {
    for (const int height : {70000, std::numeric_limits<int>::max()}) {
        create(height);
        EXPECT_EQ(windowHeight(), GetSystemMetrics(SM_CYVIRTUALSCREEN)) << height;
        EXPECT_EQ(panel->getHeight(), windowHeight());
        DestroyWindow(panel->getWindowHandle());
        DestroyWindow(root.getWindowHandle());
    }
}

TEST_F(DisplayPanelTest, TheTextFollowsTheHeight) {
    createShown(150);
    const auto width = rectInParent(edit).right - rectInParent(edit).left;
    panel->modifyHeight(220);
    RECT client{};
    GetClientRect(panel->getWindowHandle(), &client);
    const RECT rect = rectInParent(edit);
    EXPECT_EQ(rect.bottom - rect.top, client.bottom + 6);
    EXPECT_EQ(rect.right - rect.left, width);
}

TEST_F(DisplayPanelTest, ItsBottomEdgeCanBeDragged) {
    createShown(150);
    drag(200);
    EXPECT_EQ(windowHeight(), onScreen(panel->getWindowHandle(), 0, 200).y - onScreen(top.handle(), 0, 0).y);
    drag(120);
    EXPECT_EQ(windowHeight(), onScreen(panel->getWindowHandle(), 0, 120).y - onScreen(top.handle(), 0, 0).y);
}

TEST_F(DisplayPanelTest, IsNeverDraggedBelowTwentyFive) {
    createShown(150);
    drag(3);
    EXPECT_EQ(windowHeight(), 25);
    drag(-300);
    EXPECT_EQ(windowHeight(), 25);
}

TEST_F(DisplayPanelTest, ADragEndsOutsideTheWindowToo) {
    createShown(150);
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 149));
    EXPECT_EQ(GetCapture(), panel->getWindowHandle());
    RECT rect{};
    GetWindowRect(panel->getWindowHandle(), &rect);
    SendMessageA(panel->getWindowHandle(), WM_NCLBUTTONUP, HTBORDER, MAKELPARAM(rect.left + 5, rect.top + 99));
    EXPECT_NE(GetCapture(), panel->getWindowHandle());
    EXPECT_EQ(windowHeight(), 99);
}

TEST_F(DisplayPanelTest, ADragEndsWithoutAnEffectWhenSomethingElseTakesTheMouse) {
    createShown(150);
    RECT client{};
    GetClientRect(edit, &client);
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, client.bottom - 5));
    SendMessageA(panel->getWindowHandle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 100));
    SetCapture(top.handle());
    ReleaseCapture();
    SendMessageA(panel->getWindowHandle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 60));
    SendMessageA(panel->getWindowHandle(), WM_LBUTTONUP, 0, MAKELPARAM(30, 60));
    EXPECT_EQ(windowHeight(), 150);
}

TEST_F(DisplayPanelTest, MovesWithoutADragChangeNothing) {
    createShown(150);
    SendMessageA(panel->getWindowHandle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 60));
    SendMessageA(panel->getWindowHandle(), WM_LBUTTONUP, 0, MAKELPARAM(30, 60));
    EXPECT_EQ(windowHeight(), 150);
}

TEST_F(DisplayPanelTest, APressAboveTheEdgeOnlyGivesTheFocus) {
    createShown(150);
    RECT client{};
    GetClientRect(edit, &client);
    gui.focusRequests = 0;
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, client.bottom - 21));
    EXPECT_EQ(gui.focusRequests, 1);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_NE(GetFocus(), edit);
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, client.bottom - 20));
    EXPECT_EQ(GetCapture(), panel->getWindowHandle());
    SendMessageA(panel->getWindowHandle(), WM_LBUTTONUP, 0, MAKELPARAM(30, 140));
}

TEST_F(DisplayPanelTest, WithCtrlTextCanBeSelected) {
    createShown();
    gui.focusRequests = 0;
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, MAKELPARAM(30, 5));
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(gui.focusRequests, 0);
    SendMessageA(edit, WM_LBUTTONUP, MK_CONTROL, MAKELPARAM(30, 5));
}

TEST_F(DisplayPanelTest, KeysThatLeaveGiveTheFocusBack) {
    createShown();
    for (const WPARAM key : {VK_TAB, VK_RETURN, VK_ESCAPE}) {
        gui.focusRequests = 0;
        SendMessageA(edit, WM_KEYDOWN, key, 1);
        EXPECT_EQ(gui.focusRequests, 1) << key;
    }
    gui.focusRequests = 0;
    SendMessageA(edit, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(gui.focusRequests, 0);
}

TEST_F(DisplayPanelTest, ThePointerShowsWhereTheEdgeIs) {
    createShown(150);
    RECT client{};
    GetClientRect(edit, &client);
    const auto pointerAt = [&](int y) {
        const POINT point = onScreen(edit, 30, y);
        SendMessageA(edit, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
        return GetCursor();
    };
    EXPECT_EQ(pointerAt(client.bottom - 1), LoadCursorA(nullptr, IDC_SIZENS));
    EXPECT_EQ(pointerAt(client.bottom - 20), LoadCursorA(nullptr, IDC_SIZENS));
    EXPECT_EQ(pointerAt(client.bottom - 21), LoadCursorA(nullptr, IDC_ARROW));
    EXPECT_EQ(SendMessageA(edit, WM_SETCURSOR, reinterpret_cast<WPARAM>(edit), HTCLIENT), 1);
    EXPECT_GE(gui.helpWindows.size(), 3u);
    EXPECT_EQ(gui.helpWindows.back(), edit);
}

TEST_F(DisplayPanelTest, ItsHeightIsKeptForTheNextStart) {
    createShown(150);
    panel->modifyHeight(177);
    gui.takePosted();
    DestroyWindow(panel->getWindowHandle());
    EXPECT_EQ(gui.takePosted(), Lines{"33231 177 0"});
}

// The log's thread waits for this one while it sends the panel text, and this one waits for that to end.
TEST_F(DisplayPanelTest, CanGoInAFlood) {
    for (int round = 0; round < 10; ++round) {
        DisplayPanel other(gui, feed());
        other.createWnd(static_cast<HINSTANCE>(Platform::getModuleInstance()), top.handle());
        other.showWnd(true);
        const HWND text = GetDlgItem(other.getWindowHandle(), 1074);
        feed().postSetListener(&other);
        std::atomic<bool> stop = false;
        std::thread flood([&] {
            while (!stop)
                feed().postAddText("flood\r\n");
        });
        EXPECT_TRUE(pumpUntil([&] { return GetWindowTextLengthA(text) > 100; }));
        DestroyWindow(other.getWindowHandle());
        stop = true;
        flood.join();
        feed().waitUntilIdle();
    }
}

TEST_F(DisplayPanelTest, NobodyIsNotifiedAfterTheWindowIsGone) {
    createShown();
    const HWND old = edit;
    DestroyWindow(panel->getWindowHandle());
    panel.reset();
    feed().postAddText("late\r\n");
    feed().postFlush();
    feed().postSendAll();
    feed().waitUntilIdle();
    EXPECT_FALSE(IsWindow(old));
}

TEST_F(DisplayPanelTest, LooksLikeALog) {
    createShown(150);
    for (int i = 0; i < 12; ++i)
        feed().postAddText("Synth\t1\tNote On\t60 (C4)\t" + std::to_string(90 + i) + "\r\n");
    EXPECT_TRUE(pumpUntil([&] { return shown().ends_with("101\r\n"); }));
    const TestSupport::Picture picture(panel->getWindowHandle());
    EXPECT_GT(picture.count(GdiManager::AMBER), 500);
    picture.save("display");
    panel->setLargeFont(true);
    const TestSupport::Picture large(panel->getWindowHandle());
    large.save("display-large");
}

}
}
