#include "Gui/Utils/widgets/TimeIntervalCtl.h"

#include "Gui/Utils/skin/GdiManager.h"
#include "tests/Gui/Utils/widgets/WidgetPanel.h"

#include <gtest/gtest.h>

#include <string>

namespace Gui {
namespace {

using Backend::TimeIntervalType;
using TestSupport::clickLeft;
using TestSupport::mouseButton;
using TestSupport::movePointer;
using TestSupport::Picture;
using TestSupport::pump;

constexpr auto NOTE = TimeIntervalType::noteInterval;
constexpr auto PPQ = TimeIntervalType::ppq;

constexpr POINT KNOB = {95, 10};
constexpr POINT VALUE = {20, 10};
constexpr POINT TYPE = {60, 10};

class TimeIntervalCtlTest : public WidgetTest, public TimeIntervalCtl::Listener {
protected:
    TimeIntervalCtlTest() {
        gui.getRegistrySettings().setMouseSensitivity(2);
        control.create(panel.item(IDC_TEST_TIME), TimeIntervalCtl::standardColours(gui), 107);
    }

    void valueChanged(TimeIntervalCtl& changed) override { heard += std::to_string(changed.getValue()) + " "; }
    void typeChanged(TimeIntervalCtl& changed) override { heard += changed.getType() == PPQ ? "ppq " : "note "; }

    HWND window() const { return control.getWindowHandle(); }
    bool isLocked() const { return GetPropA(window(), "CAPTURED") != nullptr; }
    int position() const { return TimeIntervalScale::positionOf(control.getType(), {20, 30720}, control.getValue()); }
    int valueAt(int knob) const { return TimeIntervalScale::valueAt(control.getType(), {20, 30720}, knob); }
    void press(POINT point) { clickLeft(window(), point.x, point.y); }
    HWND field() const { return FindWindowExA(window(), nullptr, "Edit", nullptr); }

    void wheel(POINT point, int notches) {
        const POINT screen = TestSupport::onScreen(window(), point.x, point.y);
        SendMessageA(window(), UM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(notches * 120)),
                     MAKELPARAM(screen.x, screen.y));
    }

    void middle() {
        mouseButton(MOUSEEVENTF_MIDDLEDOWN);
        mouseButton(MOUSEEVENTF_MIDDLEUP);
    }

    std::string heard;
    TimeIntervalCtl control{gui, this};
};

TEST_F(TimeIntervalCtlTest, TakesThePlaceOfItsPlaceholderInItsOwnSize) {
    EXPECT_EQ(GetDlgCtrlID(window()), 107);
    EXPECT_EQ(panel.item(IDC_TEST_TIME), nullptr);
    const RECT rect = TestSupport::rectInParent(window());
    EXPECT_EQ(rect.right - rect.left, 106);
    EXPECT_EQ(rect.bottom - rect.top, 21);
    char name[50] = "";
    GetClassNameA(window(), name, sizeof name);
    EXPECT_STREQ(name, "TimeIntervalCtl_MirelTamsel2008");
    EXPECT_EQ(control.getValue(), 480);
    EXPECT_EQ(control.getType(), NOTE);
    EXPECT_EQ(control.getDisplayText(), "1/4");
}

TEST_F(TimeIntervalCtlTest, ListenerIsNotifiedUnlessTheValueIsUnchanged) {
    control.setValue(480);
    EXPECT_EQ(heard, "");
    control.setValue(960);
    control.setValue(1);
    control.setValue(0);
    control.setValue(99999);
    EXPECT_EQ(heard, "960 20 20 30720 ");
    control.setValue(480, false);
    EXPECT_EQ(heard, "960 20 20 30720 ");
    EXPECT_EQ(control.getValue(), 480);
}

TEST_F(TimeIntervalCtlTest, LimitsCutTheValue) {
    control.setRange(20, 240);
    EXPECT_EQ(control.getValue(), 240);
    control.setRange(320, 240);
    control.setValue(1000);
    EXPECT_EQ(control.getValue(), 320);
}

TEST_F(TimeIntervalCtlTest, InvalidValueShowsAQuestionMarkUntilTheNextSet) {
    control.setInvalid(true);
    EXPECT_EQ(control.getDisplayText(), "?");
    control.setValue(480);
    EXPECT_FALSE(control.isInvalid());
    EXPECT_EQ(control.getDisplayText(), "1/4");
    // To the listener it was a value like any other.
    EXPECT_EQ(heard, "480 ");
    control.setValue(100, false);
    EXPECT_EQ(control.getDisplayText(), "?");
    control.setType(PPQ);
    EXPECT_EQ(control.getDisplayText(), "100");
}

TEST_F(TimeIntervalCtlTest, TypeBoxChangesTheType) {
    press(TYPE);
    EXPECT_EQ(control.getType(), PPQ);
    press(TYPE);
    EXPECT_EQ(control.getType(), NOTE);
    EXPECT_EQ(heard, "ppq note ");
    EXPECT_EQ(gui.focusRequests, 2);
}

TEST_F(TimeIntervalCtlTest, LeftDragTurnsTheKnob) {
    control.setType(PPQ);
    const int start = position();
    movePointer(window(), KNOB.x, KNOB.y);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(isLocked());
    EXPECT_EQ(GetCapture(), window());
    movePointer(window(), KNOB.x, KNOB.y - 20);
    EXPECT_EQ(control.getValue(), valueAt(start + 10));
    EXPECT_LT(control.getValue(), 480);
    movePointer(window(), KNOB.x + 50, KNOB.y + 41);
    EXPECT_EQ(control.getValue(), valueAt(start - 20));
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_FALSE(isLocked());
    EXPECT_EQ(GetCapture(), nullptr);
    const int last = control.getValue();
    movePointer(window(), KNOB.x, KNOB.y - 5);
    EXPECT_EQ(control.getValue(), last);
}

TEST_F(TimeIntervalCtlTest, DragBeyondTheEndsStopsThere) {
    control.setType(PPQ);
    movePointer(window(), KNOB.x, KNOB.y);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    SendMessageA(window(), WM_MOUSEMOVE, 0, MAKELPARAM(KNOB.x, static_cast<WORD>(-900)));
    EXPECT_EQ(control.getValue(), 20);
    SendMessageA(window(), WM_MOUSEMOVE, 0, MAKELPARAM(KNOB.x, 900));
    EXPECT_EQ(control.getValue(), 30720);
}

TEST_F(TimeIntervalCtlTest, NoteLengthsTurnUnderTheDragToo) {
    movePointer(window(), KNOB.x, KNOB.y);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    movePointer(window(), KNOB.x, KNOB.y - 13);
    EXPECT_EQ(control.getValue(), 360);
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(heard, "360 ");
}

TEST_F(TimeIntervalCtlTest, MiddleClickLocksTheKnobToTheMouse) {
    control.setType(PPQ);
    const int start = position();
    movePointer(window(), KNOB.x, KNOB.y);
    middle();
    EXPECT_TRUE(isLocked());
    EXPECT_EQ(GetPropA(window(), "MYLDOWN"), nullptr);  // The sent press has come and is dropped.
    EXPECT_EQ(GetCursor(), gui.getGdiManager().getRedCursor().handle());
    EXPECT_EQ(reinterpret_cast<INT_PTR>(GetPropA(window(), "CAPTUREPOS")), KNOB.y + 2000);
    EXPECT_EQ(reinterpret_cast<INT_PTR>(GetPropA(window(), "CAPTUREVAL")), start);
    movePointer(window(), KNOB.x - 200, KNOB.y - 30);
    EXPECT_EQ(control.getValue(), valueAt(start + 15));

    const std::string before = heard;
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_FALSE(isLocked());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
    mouseButton(MOUSEEVENTF_LEFTUP);
    movePointer(window(), KNOB.x, KNOB.y);
    EXPECT_EQ(control.getValue(), valueAt(start + 15));
    EXPECT_EQ(heard, before);
}

TEST_F(TimeIntervalCtlTest, SecondMiddleClickEndsTheLockAsWell) {
    movePointer(window(), KNOB.x, KNOB.y);
    middle();
    EXPECT_LT(GetAsyncKeyState(VK_LBUTTON), 0);
    middle();
    EXPECT_FALSE(isLocked());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_GE(GetAsyncKeyState(VK_LBUTTON), 0);
    clickLeft(window(), TYPE.x, TYPE.y);
    EXPECT_EQ(heard, "ppq ");
}

TEST_F(TimeIntervalCtlTest, MiddleClickBesideTheKnobIsNothing) {
    for (const POINT point : {VALUE, TYPE, POINT{84, 10}}) {
        movePointer(window(), point.x, point.y);
        middle();
        EXPECT_FALSE(isLocked());
    }
    EXPECT_EQ(heard, "");
    EXPECT_EQ(field(), nullptr);
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 0u);
}

TEST_F(TimeIntervalCtlTest, LockEndsWhenTheMouseIsTakenAway) {
    movePointer(window(), KNOB.x, KNOB.y);
    middle();
    SetCapture(top.handle());
    EXPECT_FALSE(isLocked());
    EXPECT_TRUE(TestSupport::pumpUntil([] { return GetAsyncKeyState(VK_LBUTTON) >= 0; }));
    ReleaseCapture();
    movePointer(window(), KNOB.x, KNOB.y - 9);
    EXPECT_EQ(heard, "");
}

TEST_F(TimeIntervalCtlTest, AClickThatIsOverAtOnceLeavesNoButtonDown) {
    movePointer(window(), KNOB.x, KNOB.y);
    INPUT click[2]{};
    click[0].type = click[1].type = INPUT_MOUSE;
    click[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    click[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, click, sizeof click[0]);
    EXPECT_TRUE(TestSupport::pumpUntil(
        [this] { return !isLocked() && !GetPropA(window(), "MYLDOWN") && GetAsyncKeyState(VK_LBUTTON) >= 0; }));
    clickLeft(window(), TYPE.x, TYPE.y);
    EXPECT_EQ(heard, "ppq ");
}

TEST_F(TimeIntervalCtlTest, WheelStepsByWhatLiesBelowIt) {
    wheel(VALUE, 1);
    EXPECT_EQ(control.getValue(), 640);
    wheel(KNOB, 1);
    EXPECT_EQ(control.getValue(), 480);
    wheel(KNOB, -2);
    EXPECT_EQ(control.getValue(), 720);
    wheel(TYPE, 3);
    EXPECT_EQ(control.getValue(), 720);
    control.setType(PPQ);
    wheel(VALUE, -3);
    EXPECT_EQ(control.getValue(), 717);
    const int start = position();
    wheel(KNOB, 4);
    EXPECT_EQ(control.getValue(), valueAt(start + 4));
    wheel(KNOB, 100);
    EXPECT_EQ(control.getValue(), 20);
    heard.clear();
    wheel(KNOB, 1);
    EXPECT_EQ(heard, "");
}

TEST_F(TimeIntervalCtlTest, ShiftMakesWheelStepsTenTimesAsLarge) {
    control.setType(PPQ);
    INPUT key{};
    key.type = INPUT_KEYBOARD;
    key.ki.wVk = VK_SHIFT;
    SetFocus(top.handle());
    SendInput(1, &key, sizeof key);
    ASSERT_TRUE(TestSupport::pumpUntil([] { return GetKeyState(VK_SHIFT) < 0; }));
    wheel(VALUE, 2);
    key.ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(1, &key, sizeof key);
    ASSERT_TRUE(TestSupport::pumpUntil([] { return GetKeyState(VK_SHIFT) >= 0; }));
    EXPECT_EQ(control.getValue(), 500);
}

TEST_F(TimeIntervalCtlTest, ShiftOfTheMessageMakesWheelStepsLargeToo) {
    control.setType(PPQ);
    const POINT screen = TestSupport::onScreen(window(), VALUE.x, VALUE.y);
    SendMessageA(window(), UM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, 120), MAKELPARAM(screen.x, screen.y));
    EXPECT_EQ(control.getValue(), 490);
}

TEST_F(TimeIntervalCtlTest, WheelWaitsForAWholeNotch) {
    control.setInvalid(true);
    for (const POINT point : {VALUE, KNOB}) {
        const POINT screen = TestSupport::onScreen(window(), point.x, point.y);
        SendMessageA(window(), UM_MOUSEWHEEL, MAKEWPARAM(0, 60), MAKELPARAM(screen.x, screen.y));
    }
    EXPECT_TRUE(control.isInvalid());
    EXPECT_EQ(heard, "");
}

TEST_F(TimeIntervalCtlTest, MayGoWhileItsMenuShows) {
    panel.answer = [&](const TestSupport::TestWindow::Message& message) -> LRESULT {
        if (message.id == WM_ENTERMENULOOP)
            DestroyWindow(window());
        return 0;
    };
    panel.menuKeys = {VK_DOWN, VK_RETURN};
    SendMessageA(window(), WM_LBUTTONDOWN, 0, MAKELPARAM(VALUE.x, VALUE.y));
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(countStrayTimers(), 0);
    EXPECT_EQ(heard, "");
}

class TimeIntervalFieldTest : public TimeIntervalCtlTest {
protected:
    TimeIntervalFieldTest() {
        control.setType(PPQ);
        press(VALUE);
    }

    void type(const char* text) { SetWindowTextA(field(), text); }
    void key(WPARAM code) {
        PostMessageA(field(), WM_KEYDOWN, code, 1);
        pump();
    }
};

TEST_F(TimeIntervalFieldTest, OpensOverTheBoxWithTheValue) {
    ASSERT_NE(field(), nullptr);
    const RECT rect = TestSupport::rectInParent(field());
    const RECT expected = {1, 3, 44, 19};
    EXPECT_TRUE(EqualRect(&rect, &expected));
    EXPECT_EQ(TestSupport::textOf(field()), "480");
    EXPECT_EQ(GetFocus(), field());
    EXPECT_EQ(GetCapture(), field());
    EXPECT_TRUE(GetWindowLongPtrA(field(), GWL_STYLE) & ES_CENTER);
    EXPECT_EQ(SendMessageA(field(), EM_GETSEL, 0, 0), MAKELONG(3, 3));
    EXPECT_EQ(SendMessageA(field(), WM_GETFONT, 0, 0),
              reinterpret_cast<LRESULT>(gui.getGdiManager().getFont4().handle()));
    EXPECT_TRUE(SendMessageA(field(), WM_GETDLGCODE, 0, 0) & DLGC_WANTALLKEYS);
    Picture(window()).save("time-field");
}

TEST_F(TimeIntervalFieldTest, EnterTakesTheValue) {
    type(" 600 ticks");
    const int requests = gui.focusRequests;
    key(VK_RETURN);
    EXPECT_EQ(field(), nullptr);
    EXPECT_EQ(heard, "600 ");
    EXPECT_EQ(gui.focusRequests, requests + 1);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(TimeIntervalFieldTest, EscapeDropsIt) {
    type("600");
    key(VK_ESCAPE);
    EXPECT_EQ(field(), nullptr);
    EXPECT_EQ(heard, "");
    EXPECT_EQ(control.getValue(), 480);
}

TEST_F(TimeIntervalFieldTest, LosingTheFocusTakesTheValue) {
    type("700");
    SetFocus(top.handle());
    pump();
    EXPECT_EQ(field(), nullptr);
    EXPECT_EQ(heard, "700 ");
}

TEST_F(TimeIntervalFieldTest, PressBesideItTakesTheValue) {
    type("800");
    clickLeft(panel.getWindowHandle(), 2, 2);
    EXPECT_EQ(field(), nullptr);
    EXPECT_EQ(heard, "800 ");
}

TEST_F(TimeIntervalFieldTest, PressOnTheTextIsTheFields) {
    clickLeft(field(), 20, 8);
    ASSERT_NE(field(), nullptr);
    EXPECT_EQ(GetCapture(), field());
}

TEST_F(TimeIntervalFieldTest, OpensOnlyOnce) {
    SendMessageA(window(), WM_LBUTTONDOWN, 0, MAKELPARAM(VALUE.x, VALUE.y));
    EXPECT_EQ(FindWindowExA(window(), field(), "Edit", nullptr), nullptr);
    type("600");
    key(VK_RETURN);
    EXPECT_EQ(field(), nullptr);
    EXPECT_EQ(heard, "600 ");
}

TEST_F(TimeIntervalFieldTest, NumberBeyondAllLimitsIsTheLongest) {
    type("99999999999999999999");
    key(VK_RETURN);
    EXPECT_EQ(heard, "30720 ");
}

TEST_F(TimeIntervalFieldTest, TextWithoutANumberIsTheShortest) {
    type("abc");
    key(VK_RETURN);
    EXPECT_EQ(heard, "20 ");
}

TEST_F(TimeIntervalCtlTest, MenuGivesTheNoteLengthsFromLongToShort) {
    panel.menuKeys = {VK_DOWN, VK_RETURN};
    press(VALUE);
    EXPECT_EQ(control.getValue(), 30720);
    EXPECT_EQ(control.getDisplayText(), "16");
    EXPECT_EQ(heard, "30720 ");
}

TEST_F(TimeIntervalCtlTest, MenuHoldsWhatTheLimitsAllow) {
    control.setRange(120, 960);
    int items = 0;
    RECT place{};
    panel.answer = [&](const TestSupport::TestWindow::Message& message) -> LRESULT {
        if (message.id == WM_ENTERIDLE && items == 0) {
            const auto menu = reinterpret_cast<HWND>(message.lParam);
            items = GetMenuItemCount(reinterpret_cast<HMENU>(SendMessageA(menu, 0x1e1 /* MN_GETHMENU */, 0, 0)));
            GetWindowRect(menu, &place);
            Picture(menu).save("time-menu");
            // The last entry is the shortest.
            for (const WPARAM key : {VK_UP, VK_RETURN})
                PostMessageA(panel.getWindowHandle(), WM_KEYDOWN, key, 1);
        }
        return 0;
    };
    panel.menuKeys.clear();
    press(VALUE);
    EXPECT_EQ(items, 10);
    const POINT corner = TestSupport::onScreen(window(), 0, 20);
    EXPECT_EQ(place.left, corner.x);
    EXPECT_EQ(place.top, corner.y);
    EXPECT_EQ(heard, "120 ");
}

TEST_F(TimeIntervalCtlTest, MenuWorksForALengthWithoutAName) {
    control.setValue(100, false);
    panel.menuKeys = {VK_DOWN, VK_DOWN, VK_RETURN};
    press(VALUE);
    EXPECT_EQ(heard, "15360 ");
}

TEST_F(TimeIntervalCtlTest, MenuClosedWithoutAChoiceChangesNothingAndDoesNotReopen) {
    press(VALUE);
    ASSERT_EQ(panel.count(WM_ENTERMENULOOP), 1u);
    SendMessageA(window(), WM_LBUTTONDOWN, 0, MAKELPARAM(VALUE.x, VALUE.y));
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 1u);
    EXPECT_EQ(heard, "");
    EXPECT_TRUE(TestSupport::pumpUntil([&] {
        SendMessageA(window(), WM_LBUTTONDOWN, 0, MAKELPARAM(VALUE.x, VALUE.y));
        return panel.count(WM_ENTERMENULOOP) == 2;
    }));
}

TEST_F(TimeIntervalCtlTest, LooksLikeItsState) {
    const GdiManager& gdi = gui.getGdiManager();
    const COLORREF border = gdi.getControlBorderBrush().colour();
    const COLORREF amber = gdi.getTextBrush().colour();
    const COLORREF grey = gdi.getDisabledButtonBrush().colour();
    const RECT valueBox = {0, 0, 45, 20};
    const RECT typeBox = {50, 0, 80, 20};
    const RECT knob = {85, 0, 106, 21};
    {
        const Picture picture(window());
        picture.save("time-note");
        EXPECT_EQ(picture.at(0, 0), border);
        EXPECT_EQ(picture.at(44, 19), border);
        EXPECT_EQ(picture.at(1, 1), GdiManager::BLACK);
        EXPECT_GT(picture.count(amber, valueBox), 5);
        EXPECT_EQ(picture.at(50, 0), border);
        EXPECT_EQ(picture.at(51, 1), gdi.getUnselectedButtonBrush().colour());
        EXPECT_GT(picture.count(GdiManager::BLACK, typeBox), 5);
        EXPECT_EQ(picture.at(47, 10), GdiManager::BLACK);
        EXPECT_GT(picture.count(gdi.getUnusedButtonBrush().colour(), knob), 100);
        EXPECT_GT(picture.count(gdi.getGreenPen().colour(), knob), 10);
    }
    control.setInvalid(true);
    {
        const Picture picture(window());
        picture.save("time-invalid");
        EXPECT_EQ(picture.count(amber, valueBox), 0);
        EXPECT_GT(picture.count(gdi.getLabelDisabledBrush().colour(), valueBox), 0);
    }
    EnableWindow(window(), FALSE);
    {
        const Picture picture(window());
        picture.save("time-disabled-invalid");
        EXPECT_GT(picture.count(gdi.getLabelDisabledBrush().colour(), valueBox), 0);
        EXPECT_EQ(picture.at(1, 1), grey);
        EXPECT_EQ(picture.count(grey, typeBox), 30 * 20);
        EXPECT_GT(picture.count(grey, knob), 100);
        EXPECT_EQ(picture.count(gdi.getGreenPen().colour()), 0);
    }
    control.setInvalid(false);
    EXPECT_EQ(Picture(window()).count(grey, valueBox), 45 * 20);
    EnableWindow(window(), TRUE);
    control.setType(PPQ);
    Picture(window()).save("time-ppq");
}

TEST_F(TimeIntervalCtlTest, PointerShowsThePosition) {
    const COLORREF pen = gui.getGdiManager().getGreenPen().colour();
    control.setType(PPQ);
    control.setValue(20, false);  // To the lower right.
    const Picture shortest(window());
    EXPECT_GT(shortest.count(pen, {96, 12, 106, 21}), 8);
    EXPECT_EQ(shortest.count(pen, {85, 0, 106, 9}), 0);
    control.setValue(30720, false);  // To the lower left.
    const Picture longest(window());
    EXPECT_GT(longest.count(pen, {85, 12, 97, 21}), 8);
    EXPECT_EQ(longest.count(pen, {99, 0, 106, 21}), 0);
    control.setValue(TimeIntervalScale::valueAt(PPQ, {20, 30720}, 64), false);  // Up.
    const Picture middlePicture(window());
    EXPECT_GT(middlePicture.count(pen, {94, 0, 99, 11}), 12);
    EXPECT_EQ(middlePicture.count(pen, {85, 14, 106, 21}), 0);
}

TEST_F(TimeIntervalCtlTest, KnobCanLieOnTheLeft) {
    control.setKnobOnRight(false);
    const Picture picture(window());
    picture.save("time-left");
    EXPECT_GT(picture.count(gui.getGdiManager().getUnusedButtonBrush().colour(), {0, 0, 21, 21}), 100);
    EXPECT_EQ(picture.at(26, 0), gui.getGdiManager().getControlBorderBrush().colour());
    EXPECT_EQ(picture.at(25, 10), GdiManager::BLACK);
    press({80, 10});
    EXPECT_EQ(heard, "ppq ");
    press({30, 10});
    EXPECT_EQ(TestSupport::rectInParent(field()).left, 27);
    SetFocus(top.handle());
    movePointer(window(), 10, 10);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(isLocked());
}

TEST_F(TimeIntervalCtlTest, PointerAboveItAsksForHelp) {
    movePointer(window(), 3, 3);
    ASSERT_FALSE(gui.helpWindows.empty());
    EXPECT_EQ(gui.helpWindows.back(), window());
}

}
}
