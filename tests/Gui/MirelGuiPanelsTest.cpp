#include "Gui/Rules/places/WindowMove.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::Picture;
using TestSupport::rectInParent;
using TestSupport::WindowDesk;

bool isVisible(HWND window) {
    return (GetWindowLongPtrA(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

// Whether a button is drawn as on.
bool isLit(MirelGui& gui, HWND button) {
    const Picture picture(button);
    return picture.count(gui.getGdiManager().getSelectedButtonBrush().colour()) >
           picture.count(gui.getGdiManager().getUnselectedButtonBrush().colour());
}

class MirelGuiPanelsTest : public testing::Test {
protected:
    MirelGuiPanelsTest() {
        desk.start();
        desk.open();
    }

    MirelGui& gui() { return desk.gui(); }
    HWND button(int id) { return GetDlgItem(desk.window(), id); }
    HWND systemButton(int id) { return GetDlgItem(systemPanel(), id); }
    HWND systemPanel() {
        const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
        return FindWindowExA(root, nullptr, nullptr, "Gui::System::SystemPanel");
    }
    HWND panelButton(int id) {
        return GetDlgItem(gui().getOutputPanel().getMusicKeyboardPanel().getWindowHandle(), id);
    }

    void hideAll() {
        gui().showSystemPanel(false);
        gui().showOutput(false);
    }

    WindowDesk desk;
};

struct ScreenRow {
    const char* name;
    void (MirelGuiIF::*show)(bool);
    void (MirelGuiIF::*toggle)();
    bool (MirelGuiIF::*isShowing)();
};

const ScreenRow SCREENS[] = {
    {"system", &MirelGuiIF::showSystemPanel, &MirelGuiIF::toggleSystemPanel, &MirelGuiIF::isSystemPanelShowing},
    {"help", &MirelGuiIF::showHelp, &MirelGuiIF::toggleHelp, &MirelGuiIF::isHelpPanelShowing},
    {"display", &MirelGuiIF::showDisplay, &MirelGuiIF::toggleDisplay, &MirelGuiIF::isDisplayPanelShowing},
    {"computer input", &MirelGuiIF::showComputerInput, &MirelGuiIF::toggleComputerInput,
     &MirelGuiIF::isComputerInputPanelShowing},
    {"control", &MirelGuiIF::showControl, &MirelGuiIF::toggleControl, &MirelGuiIF::isControlPanelShowing},
    {"output", &MirelGuiIF::showOutput, &MirelGuiIF::toggleOutput, &MirelGuiIF::isOutputPanelShowing},
    {"layer", &MirelGuiIF::showLayer, &MirelGuiIF::toggleLayer, &MirelGuiIF::isLayerPanelShowing},
    {"cc", &MirelGuiIF::showCc, &MirelGuiIF::toggleCc, &MirelGuiIF::isCcPanelShowing},
    {"zone", &MirelGuiIF::showZone, &MirelGuiIF::toggleZone, &MirelGuiIF::isZonePanelShowing},
};

TEST_F(MirelGuiPanelsTest, EachScreenShowsHidesAndToggles) {
    for (const ScreenRow& row : SCREENS) {
        (gui().*row.show)(true);
        EXPECT_TRUE((gui().*row.isShowing)()) << row.name;
        (gui().*row.show)(true);
        EXPECT_TRUE((gui().*row.isShowing)()) << row.name;
        (gui().*row.show)(false);
        EXPECT_FALSE((gui().*row.isShowing)()) << row.name;
        (gui().*row.toggle)();
        EXPECT_TRUE((gui().*row.isShowing)()) << row.name;
        (gui().*row.toggle)();
        EXPECT_FALSE((gui().*row.isShowing)()) << row.name;
        gui().showOutput(true);
    }
}

TEST_F(MirelGuiPanelsTest, TheWindowIsAsHighAsItsScreens) {
    const LONG before = desk.size().cy;
    gui().showHelp(true);
    const LONG withHelp = desk.size().cy;
    EXPECT_GT(withHelp, before + 100);
    gui().showHelp(false);
    EXPECT_EQ(desk.size().cy, before);
}

TEST_F(MirelGuiPanelsTest, TheHostIsNotifiedOfEachSize) {
    desk.host.forgetMessages();
    gui().showHelp(true);
    const auto sizes = desk.host.received(UM_SIZE_CHANGED);
    ASSERT_FALSE(sizes.empty());
    EXPECT_EQ(sizes.back().wParam, static_cast<WPARAM>(desk.size().cx));
    EXPECT_EQ(sizes.back().lParam, desk.size().cy);
}

TEST_F(MirelGuiPanelsTest, TheHostIsNotifiedOfAMinimiseButNothingMoves) {
    gui().handleDockToBottomEdgeChanged(true);
    desk.settle();
    desk.host.forgetMessages();
    SendMessageA(desk.window(), WM_SIZE, SIZE_MINIMIZED, 0);
    desk.settle();
    ASSERT_EQ(desk.host.count(UM_SIZE_CHANGED), 1u);
    EXPECT_EQ(desk.host.received(UM_SIZE_CHANGED)[0].wParam, 0u);
    EXPECT_EQ(desk.host.count(UM_MOVE_WINDOW), 0u);
}

TEST_F(MirelGuiPanelsTest, HidingTheLastScreenLeavesAStripWithTwoButtons) {
    hideAll();
    EXPECT_EQ(desk.size().cx, 104);
    EXPECT_EQ(desk.size().cy, 33);
    EXPECT_TRUE(isVisible(button(117)));
    EXPECT_FALSE(isVisible(button(118)));
    EXPECT_TRUE(isVisible(button(119)));
    EXPECT_EQ(rectInParent(button(117)).left, 5);
    EXPECT_EQ(rectInParent(button(119)).left, 37);
    Picture(desk.window()).save("collapsed");
}

TEST_F(MirelGuiPanelsTest, ShowingAnyScreenEndsTheStrip) {
    const SIZE before = desk.size();
    for (const ScreenRow& row : SCREENS) {
        hideAll();
        EXPECT_EQ(desk.size().cy, 33) << row.name;
        (gui().*row.show)(true);
        EXPECT_FALSE(isVisible(button(117))) << row.name;
        EXPECT_FALSE(isVisible(button(118))) << row.name;
        EXPECT_FALSE(isVisible(button(119))) << row.name;
        EXPECT_GT(desk.size().cy, 33) << row.name;
        (gui().*row.show)(false);
    }
    gui().showSystemPanel(true);
    gui().showOutput(true);
    EXPECT_EQ(desk.size().cx, before.cx);
    EXPECT_EQ(desk.size().cy, before.cy);
}

TEST_F(MirelGuiPanelsTest, TheStripShowsTheGlobalKeyboard) {
    hideAll();
    EXPECT_FALSE(isLit(gui(), button(119)));
    gui().showSystemPanel(true);
    gui().handleGlobalKeyboardChanged(true);
    gui().showSystemPanel(false);
    EXPECT_TRUE(isLit(gui(), button(119)));
    gui().handleGlobalKeyboardChanged(false);
    EXPECT_FALSE(isLit(gui(), button(119)));
}

TEST_F(MirelGuiPanelsTest, TheStripsButtonsReachTheDesk) {
    hideAll();
    const auto& settings = desk.mirel().getRegistrySettings();
    SendMessageA(button(119), WM_LBUTTONDOWN, 0, 0);
    desk.settle();
    EXPECT_TRUE(settings.getGlobalKeyboard());
    EXPECT_TRUE(gui().getRegistrySettings().getGlobalKeyboard());
    SendMessageA(button(119), WM_LBUTTONDOWN, 0, 0);
    desk.settle();
    EXPECT_FALSE(settings.getGlobalKeyboard());
    EXPECT_TRUE(settings.getMidiThru());
    gui().handleMidiThruChanged(true);
    SendMessageA(button(118), WM_LBUTTONDOWN, 0, 0);
    desk.settle();
    EXPECT_FALSE(settings.getMidiThru());
    gui().getMainMusicKeyboardCtl().noteOn(Backend::Note(std::uint8_t{60}));
    SendMessageA(button(117), WM_LBUTTONDOWN, 0, 0);
    desk.settle();
    EXPECT_EQ(gui().getMainMusicKeyboardCtl().getCount(Backend::Note(std::uint8_t{60})), 0);
}

struct LampRow {
    void (MirelGuiIF::*show)(bool);
    int button;
};

TEST_F(MirelGuiPanelsTest, EachScreensButtonShowsWhetherItIsVisible) {
    for (const LampRow& row : {LampRow{&MirelGuiIF::showOutput, 102}, LampRow{&MirelGuiIF::showControl, 1012},
                               LampRow{&MirelGuiIF::showDisplay, 1016}, LampRow{&MirelGuiIF::showHelp, 1020}}) {
        (gui().*row.show)(true);
        EXPECT_TRUE(isLit(gui(), systemButton(row.button))) << row.button;
        (gui().*row.show)(false);
        EXPECT_FALSE(isLit(gui(), systemButton(row.button))) << row.button;
    }
    gui().showOutput(true);
    gui().showCc(true);
    EXPECT_TRUE(isLit(gui(), panelButton(1075)));
    gui().showZone(true);
    EXPECT_TRUE(isLit(gui(), panelButton(1015)));
    gui().showCc(false);
    EXPECT_FALSE(isLit(gui(), panelButton(1075)));
    EXPECT_TRUE(isLit(gui(), panelButton(1015)));
}

TEST_F(MirelGuiPanelsTest, APanelOfTheOutputScreenShowsThatScreenToo) {
    for (const auto show : {&MirelGuiIF::showLayer, &MirelGuiIF::showCc, &MirelGuiIF::showZone}) {
        gui().showOutput(false);
        (gui().*show)(true);
        EXPECT_TRUE(gui().isOutputPanelShowing());
        EXPECT_TRUE(isLit(gui(), systemButton(102)));
        gui().showOutput(false);
        (gui().*show)(false);
        EXPECT_FALSE(gui().isOutputPanelShowing());
    }
}

TEST_F(MirelGuiPanelsTest, ATogglePutsAPanelOfAHiddenOutputScreenOn) {
    for (const ScreenRow& row : SCREENS) {
        const bool isOfOutput =
            row.show == &MirelGuiIF::showLayer || row.show == &MirelGuiIF::showCc || row.show == &MirelGuiIF::showZone;
        if (!isOfOutput)
            continue;
        (gui().*row.show)(true);
        gui().showOutput(false);
        (gui().*row.toggle)();
        EXPECT_TRUE((gui().*row.isShowing)()) << row.name;
        EXPECT_TRUE(gui().isOutputPanelShowing()) << row.name;
        (gui().*row.toggle)();
        EXPECT_FALSE((gui().*row.isShowing)()) << row.name;
        EXPECT_TRUE(gui().isOutputPanelShowing()) << row.name;
    }
}

TEST_F(MirelGuiPanelsTest, OnlyTheSystemPanelNotifiesTheHost) {
    desk.settle();
    desk.host.forgetMessages();
    gui().showHelp(true);
    gui().showOutput(false);
    desk.settle();
    EXPECT_EQ(desk.host.count(UM_SYSTEM_PANEL_SHOWN), 0u);
    gui().showSystemPanel(false);
    gui().showSystemPanel(true);
    desk.settle();
    EXPECT_EQ(desk.host.received(UM_SYSTEM_PANEL_SHOWN),
              (std::vector<TestSupport::TestWindow::Message>(2, {UM_SYSTEM_PANEL_SHOWN, 0, 0})));
}

TEST_F(MirelGuiPanelsTest, ADockedHostMovesUpByWhatTheWindowGrows) {
    gui().handleDockToBottomEdgeChanged(true);
    desk.settle();
    desk.host.forgetMessages();
    const LONG before = desk.size().cy;
    gui().showHelp(true);
    desk.settle();
    const LONG grown = desk.size().cy - before;
    int up = 0;
    for (const auto& move : desk.host.received(UM_MOVE_WINDOW)) {
        EXPECT_EQ(unpackWindowMove(move.wParam), RelativeFixedValue(true, 0));
        const RelativeFixedValue y = unpackWindowMove(static_cast<std::uintptr_t>(move.lParam));
        EXPECT_TRUE(y.isRelative());
        up -= y.getValue();
    }
    EXPECT_EQ(up, grown);
    EXPECT_GT(up, 100);
}

TEST_F(MirelGuiPanelsTest, AHostThatIsNotDockedStaysWhereItIs) {
    desk.host.forgetMessages();
    gui().showHelp(true);
    desk.settle();
    EXPECT_EQ(desk.host.count(UM_MOVE_WINDOW), 0u);
}

TEST_F(MirelGuiPanelsTest, AMoveIsPackedForTheHost) {
    desk.host.forgetMessages();
    gui().moveWindow({true, -5}, {false, 70});
    desk.settle();
    const std::vector<TestSupport::TestWindow::Message> expected = {{UM_MOVE_WINDOW, 0x00050101, 0x00460000}};
    EXPECT_EQ(desk.host.received(UM_MOVE_WINDOW), expected);
}

TEST_F(MirelGuiPanelsTest, TheWholeDeskCanBeSeen) {
    for (const ScreenRow& row : SCREENS)
        (gui().*row.show)(true);
    desk.settle();
    RedrawWindow(desk.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_ERASE);
    const Picture picture(desk.window());
    picture.save("all-screens");
    EXPECT_GT(picture.count(gui().getGdiManager().getUnselectedButtonBrush().colour()), 1000);
}

}
}
