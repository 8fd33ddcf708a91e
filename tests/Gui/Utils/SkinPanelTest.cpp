#include "Gui/Utils/SkinPanel.h"

#include "Gui/Utils/windows/UserMessages.h"
#include "tests/Gui/Utils/TemplateIds.h"
#include "tests/support/win32/FakeMirelGui.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::pump;
using TestSupport::TestWindow;

constexpr UINT PASSED_UP[] = {WM_KEYDOWN, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSKEYUP, WM_LBUTTONDOWN};

// Both kinds of panel, each right below the window that gets what they pass up.
class SkinPanelTest : public testing::Test {
protected:
    SkinPanelTest() {
        plain.createWnd(GetModuleHandleA(nullptr), top.handle());
        dialog.createWnd(GetModuleHandleA(nullptr), top.handle());
        pump();
        top.forgetMessages();
    }

    TestWindow top;
    TestSupport::FakeMirelGui gui;
    SkinPanel plain{gui};
    SkinPanel dialog{gui, IDD_TEST_SMALL};
};

TEST_F(SkinPanelTest, KeysAndClicksGoUpAtOnce) {
    for (SkinPanel* panel : {&plain, &dialog})
        for (const UINT message : PASSED_UP) {
            top.forgetMessages();
            // What the dialog's or window's own code answers.
            const LRESULT answer = panel == &plain ? panel->wndProc(panel->getWindowHandle(), message, 65, 0x11)
                                                   : panel->dlgProc(panel->getWindowHandle(), message, 65, 0x11);
            EXPECT_EQ(answer, 1) << message;
            const std::vector<TestWindow::Message> expected = {{message, 65, 0x11}};
            EXPECT_EQ(top.received(message), expected);
        }
}

TEST_F(SkinPanelTest, KeysSentToItsWindowGoUp) {
    for (SkinPanel* panel : {&plain, &dialog})
        for (const UINT message : PASSED_UP) {
            top.forgetMessages();
            SendMessageA(panel->getWindowHandle(), message, 66, 0x22);
            const std::vector<TestWindow::Message> expected = {{message, 66, 0x22}};
            EXPECT_EQ(top.received(message), expected) << message;
        }
}

TEST_F(SkinPanelTest, FocusGoesUpAfterTheMessageIsDone) {
    for (SkinPanel* panel : {&plain, &dialog})
        for (const UINT message : {UINT{WM_SETFOCUS}, UINT{WM_ACTIVATE}, UM_RETURN_FOCUS}) {
            top.forgetMessages();
            const LRESULT answer = panel == &plain ? panel->wndProc(panel->getWindowHandle(), message, 0, 0)
                                                   : panel->dlgProc(panel->getWindowHandle(), message, 0, 0);
            EXPECT_EQ(answer, 0);
            EXPECT_EQ(top.count(UM_RETURN_FOCUS), 0u);
            pump();
            EXPECT_EQ(top.count(UM_RETURN_FOCUS), 1u);
        }
}

TEST_F(SkinPanelTest, WhatThePointerIsOverGoesUpWithItsWindow) {
    for (SkinPanel* panel : {&plain, &dialog})
        for (const LPARAM hovered : {LPARAM{0}, reinterpret_cast<LPARAM>(top.handle())}) {
            top.forgetMessages();
            SendMessageA(panel->getWindowHandle(), UM_HOVER, 5, hovered);
            EXPECT_EQ(top.count(UM_HOVER), 0u);
            pump();
            const std::vector<TestWindow::Message> expected = {{UM_HOVER, 0, hovered}};
            EXPECT_EQ(top.received(UM_HOVER), expected);
        }
}

TEST_F(SkinPanelTest, OtherMessagesAreTheSystems) {
    EXPECT_EQ(dialog.dlgProc(dialog.getWindowHandle(), WM_GETDLGCODE, 0, 0), 0);
    EXPECT_EQ(dialog.dlgProc(dialog.getWindowHandle(), WM_RBUTTONDOWN, 0, 0), 0);
    SetWindowTextA(plain.getWindowHandle(), "abc");
    EXPECT_EQ(plain.wndProc(plain.getWindowHandle(), WM_GETTEXTLENGTH, 0, 0), 3);
    EXPECT_EQ(top.count(WM_RBUTTONDOWN), 0u);
}

TEST_F(SkinPanelTest, HidingGivesTheFocusBack) {
    plain.showWnd(true);
    pump();
    top.forgetMessages();
    plain.showWnd(false);
    pump();
    EXPECT_EQ(top.count(UM_RETURN_FOCUS), 1u);
    plain.showWnd(true);
    pump();
    EXPECT_EQ(top.count(UM_RETURN_FOCUS), 1u);
}

TEST_F(SkinPanelTest, HidingWithoutAWindowIsNothing) {
    DestroyWindow(plain.getWindowHandle());
    plain.showWnd(false);
    pump();
    EXPECT_EQ(top.count(UM_RETURN_FOCUS), 0u);
}

TEST_F(SkinPanelTest, NestedPanelsPassOnStepByStep) {
    SkinPanel box{gui};
    SkinPanel inner{gui, IDD_TEST_SMALL};
    ASSERT_TRUE(plain.add(&box));
    ASSERT_TRUE(box.add(&inner));
    pump();
    top.forgetMessages();
    SendMessageA(inner.getWindowHandle(), WM_KEYDOWN, 70, 0);
    EXPECT_EQ(top.count(WM_KEYDOWN), 1u);
    PostMessageA(inner.getWindowHandle(), UM_RETURN_FOCUS, 0, 0);
    EXPECT_TRUE(TestSupport::pumpUntil([&] { return top.count(UM_RETURN_FOCUS) == 1; }));
}

TEST_F(SkinPanelTest, PanelWithoutAWindowSkinsNoOtherWindow) {
    SkinPanel missing{gui, 30000};
    missing.createWnd(GetModuleHandleA(nullptr), top.handle());
    EXPECT_EQ(missing.getWindowHandle(), nullptr);
    for (const HWND other : {top.handle(), GetDesktopWindow()})
        EXPECT_EQ(GetPropA(other, "SkinnerPtr"), nullptr);
}

TEST_F(SkinPanelTest, WindowThatOutlivesItsPanelIsLeftAlone) {
    HWND window = nullptr;
    HWND edit = nullptr;
    {
        SkinPanel box{gui, IDD_TEST_WIDGETS};
        box.createWnd(GetModuleHandleA(nullptr), top.handle());
        window = box.getWindowHandle();
        edit = GetDlgItem(window, IDC_TEST_EDIT);
        ASSERT_NE(GetPropA(edit, "SkinnerPtr"), nullptr);
    }
    for (const HWND orphan : {window, edit})
        EXPECT_EQ(GetPropA(orphan, "SkinnerPtr"), nullptr);
    gui.helpWindows.clear();
    SendMessageA(edit, WM_NCHITTEST, 0, 0);
    SendMessageA(window, WM_NCPAINT, 1, 0);
    EXPECT_TRUE(gui.helpWindows.empty());
    EXPECT_TRUE(DestroyWindow(window));
}

TEST_F(SkinPanelTest, IsSkinnedFromItsCreationOn) {
    plain.showWnd(true);
    SetWindowPos(plain.getWindowHandle(), nullptr, 0, 0, 20, 20, SWP_NOZORDER);
    dialog.showWnd(true);
    for (const SkinPanel* panel : {&plain, &dialog}) {
        const TestSupport::Picture picture(panel->getWindowHandle());
        EXPECT_EQ(picture.count(GdiManager::BLACK), picture.width() * picture.height());
        EXPECT_NE(GetPropA(panel->getWindowHandle(), "SkinnerPtr"), nullptr);
    }
}

}
}
