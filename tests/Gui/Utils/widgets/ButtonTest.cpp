#include "Gui/Utils/widgets/Button.h"

#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/widgets/RadioButton.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Platform/Shell.h"
#include "tests/Gui/Utils/widgets/WidgetPanel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Gui {
namespace {

using TestSupport::clickLeft;
using TestSupport::mouseButton;
using TestSupport::movePointer;
using TestSupport::Picture;
using TestSupport::pump;
using TestSupport::rectInParent;

constexpr COLORREF ON = GdiManager::LIGHT_LIGHT_GREEN;
constexpr COLORREF OFF = GdiManager::DARK_GREEN;
constexpr COLORREF GREY = GdiManager::DARK_GREY;
constexpr COLORREF BLACK = GdiManager::BLACK;
constexpr COLORREF WHITE = GdiManager::WHITE;

// Where the class of buttons is registered.
const auto LIBRARY = static_cast<HINSTANCE>(Platform::getModuleInstance());

class Reports : public Button::Listener {
public:
    void buttonChanged(int id, bool state) override { text += std::to_string(id) + (state ? "+ " : "- "); }

    std::string text;
};

class ButtonTest : public WidgetTest {
protected:
    // The colour of the ground at both ends of the button.
    static std::pair<COLORREF, COLORREF> ground(const Button& button) {
        const Picture picture(button.getWindowHandle());
        return {picture.at(1, 1), picture.at(picture.width() - 2, 1)};
    }

    static std::pair<COLORREF, COLORREF> whole(COLORREF colour) { return {colour, colour}; }

    static int textPixels(const Button& button, COLORREF colour) {
        return Picture(button.getWindowHandle()).count(colour);
    }

    Reports reports;
    Button toggle{gui, &reports, Button::Kind::toggle};
    Button push{gui, &reports, Button::Kind::push};
    Button careful{gui, &reports, Button::Kind::push, true};
};

TEST_F(ButtonTest, TakesThePlaceOfItsPlaceholder) {
    const HWND placeholder = panel.item(IDC_TEST_BUTTON);
    const RECT place = rectInParent(placeholder);
    toggle.create(placeholder);
    EXPECT_FALSE(IsWindow(placeholder));
    EXPECT_EQ(panel.item(IDC_TEST_BUTTON), toggle.getWindowHandle());
    const RECT rect = rectInParent(toggle.getWindowHandle());
    EXPECT_TRUE(EqualRect(&rect, &place));
    EXPECT_EQ(toggle.getRect(), (Rect{place.left, place.top, place.right, place.bottom}));
    EXPECT_EQ(toggle.getCaption(), "OUT");
    EXPECT_EQ(toggle.getId(), IDC_TEST_BUTTON);
    EXPECT_EQ(TestSupport::textOf(toggle.getWindowHandle()), "OUT");
    EXPECT_TRUE(GetWindowLongPtrA(toggle.getWindowHandle(), GWL_STYLE) & WS_VISIBLE);
    char name[50] = "";
    GetClassNameA(toggle.getWindowHandle(), name, sizeof name);
    EXPECT_STREQ(name, "MIRELButton_Tamsel2008");
}

TEST_F(ButtonTest, StaysHiddenWhereThePlaceholderIs) {
    push.create(panel.item(IDC_TEST_HIDDEN_BUTTON));
    EXPECT_FALSE(GetWindowLongPtrA(push.getWindowHandle(), GWL_STYLE) & WS_VISIBLE);
}

TEST_F(ButtonTest, AloneItIsHiddenInTheTopRow) {
    push.create("R", 37, top.handle(), 117, LIBRARY);
    const RECT rect = rectInParent(push.getWindowHandle());
    const RECT expected = {37, 6, 66, 26};
    EXPECT_TRUE(EqualRect(&rect, &expected));
    EXPECT_FALSE(GetWindowLongPtrA(push.getWindowHandle(), GWL_STYLE) & WS_VISIBLE);
    EXPECT_EQ(GetDlgCtrlID(push.getWindowHandle()), 117);
    EXPECT_EQ(push.getCaption(), "R");
}

TEST_F(ButtonTest, ToggleFlipsWithEachPress) {
    toggle.create(panel.item(IDC_TEST_BUTTON));
    clickLeft(toggle.getWindowHandle(), 3, 3);
    EXPECT_EQ(reports.text, "1001+ ");
    EXPECT_TRUE(toggle.getState());
    EXPECT_EQ(ground(toggle), whole(ON));
    clickLeft(toggle.getWindowHandle(), 3, 3);
    EXPECT_EQ(reports.text, "1001+ 1001- ");
    EXPECT_EQ(ground(toggle), whole(OFF));
    EXPECT_EQ(gui.focusRequests, 2);
}

TEST_F(ButtonTest, PushIsOnWhileItIsHeld) {
    push.create(panel.item(IDC_TEST_BUTTON));
    movePointer(push.getWindowHandle(), 3, 3);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(push.getState());
    EXPECT_EQ(ground(push), whole(ON));
    EXPECT_EQ(reports.text, "1001+ ");
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_FALSE(push.getState());
    EXPECT_EQ(ground(push), whole(OFF));
    EXPECT_EQ(reports.text, "1001+ ");
}

TEST_F(ButtonTest, PushGoesOffWhereverItIsReleased) {
    push.create(panel.item(IDC_TEST_BUTTON));
    movePointer(push.getWindowHandle(), 3, 3);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    movePointer(push.getWindowHandle(), 3, -5);
    EXPECT_TRUE(push.getState());
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_FALSE(push.getState());
    EXPECT_EQ(ground(push), whole(OFF));
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(reports.text, "1001+ ");
}

TEST_F(ButtonTest, PushGoesOffWhenTheMouseIsTakenAway) {
    for (Button* button : {&push, &careful}) {
        button->create(panel.item(button == &push ? IDC_TEST_BUTTON : IDC_TEST_SECOND_BUTTON));
        movePointer(button->getWindowHandle(), 3, 3);
        mouseButton(MOUSEEVENTF_LEFTDOWN);
        EXPECT_TRUE(button->getState());
        SetCapture(top.handle());
        EXPECT_FALSE(button->getState());
        ReleaseCapture();
        mouseButton(MOUSEEVENTF_LEFTUP);
    }
    EXPECT_EQ(reports.text, "1001+ ");
}

TEST_F(ButtonTest, ToggleLeavesTheMouseAlone) {
    toggle.create(panel.item(IDC_TEST_BUTTON));
    movePointer(toggle.getWindowHandle(), 3, 3);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(GetCapture(), nullptr);
    SendMessageA(toggle.getWindowHandle(), WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(top.handle()));
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(toggle.getState());
}

TEST_F(ButtonTest, WithoutAWindowItPaintsNoOther) {
    ValidateRect(top.handle(), nullptr);
    toggle.setState(true);
    toggle.setCaption("X");
    EXPECT_FALSE(GetUpdateRect(top.handle(), nullptr, FALSE));
    EXPECT_TRUE(toggle.getState());
}

TEST_F(ButtonTest, CarefulButtonReportsAtItsRelease) {
    careful.create(panel.item(IDC_TEST_BUTTON));
    movePointer(careful.getWindowHandle(), 3, 3);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_EQ(reports.text, "");
    EXPECT_TRUE(careful.getState());
    EXPECT_EQ(GetCapture(), careful.getWindowHandle());
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(reports.text, "1001- ");
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ButtonTest, CarefulButtonReleasedOutsideReportsNothing) {
    careful.create(panel.item(IDC_TEST_BUTTON));
    movePointer(careful.getWindowHandle(), 3, 3);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    movePointer(careful.getWindowHandle(), 3, -5);
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(reports.text, "");
    EXPECT_FALSE(careful.getState());
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ButtonTest, CarefulButtonKnowsNoReleaseWithoutItsPress) {
    careful.create(panel.item(IDC_TEST_BUTTON));
    movePointer(panel.getWindowHandle(), 2, 2);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    movePointer(careful.getWindowHandle(), 3, 3);
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(reports.text, "");
}

TEST_F(ButtonTest, QuickSecondPressCounts) {
    toggle.create(panel.item(IDC_TEST_BUTTON));
    for (int i = 0; i < 4; ++i)
        clickLeft(toggle.getWindowHandle(), 3, 3);
    EXPECT_EQ(reports.text, "1001+ 1001- 1001+ 1001- ");
}

TEST_F(ButtonTest, RightPressIsSwallowed) {
    toggle.create(panel.item(IDC_TEST_BUTTON));
    movePointer(toggle.getWindowHandle(), 3, 3);
    mouseButton(MOUSEEVENTF_RIGHTDOWN);
    mouseButton(MOUSEEVENTF_RIGHTUP);
    EXPECT_EQ(reports.text, "");
    EXPECT_EQ(panel.count(WM_RBUTTONDOWN), 0u);
    EXPECT_EQ(SendMessageA(toggle.getWindowHandle(), WM_RBUTTONDOWN, 0, 0), 0);
}

TEST_F(ButtonTest, PointerAboveItAsksForHelp) {
    toggle.create(panel.item(IDC_TEST_BUTTON));
    movePointer(toggle.getWindowHandle(), 3, 3);
    ASSERT_FALSE(gui.helpWindows.empty());
    EXPECT_EQ(gui.helpWindows.back(), toggle.getWindowHandle());
    EXPECT_EQ(SendMessageA(toggle.getWindowHandle(), WM_ERASEBKGND, 0, 0), 1);
}

TEST_F(ButtonTest, WithoutAListenerItStillWorks) {
    Button lone{gui, nullptr, Button::Kind::toggle};
    lone.create(panel.item(IDC_TEST_BUTTON));
    clickLeft(lone.getWindowHandle(), 3, 3);
    EXPECT_TRUE(lone.getState());
}

TEST_F(ButtonTest, GroundShowsEveryState) {
    toggle.create(panel.item(IDC_TEST_BUTTON));
    const HWND window = toggle.getWindowHandle();
    EXPECT_EQ(ground(toggle), whole(OFF));
    EXPECT_GT(textPixels(toggle, BLACK), 10);
    Picture(window).save("button-off");
    toggle.setState(true);
    EXPECT_EQ(ground(toggle), whole(ON));
    EXPECT_GT(textPixels(toggle, BLACK), 10);
    Picture(window).save("button-on");

    EnableWindow(window, FALSE);
    EXPECT_EQ(ground(toggle), whole(GREY));
    EXPECT_GT(textPixels(toggle, WHITE), 10);
    EXPECT_EQ(textPixels(toggle, BLACK), 0);
    Picture(window).save("button-disabled-on");
    toggle.setState(false);
    EXPECT_EQ(ground(toggle), whole(GREY));
    EXPECT_GT(textPixels(toggle, BLACK), 10);
    EXPECT_EQ(textPixels(toggle, WHITE), 0);
    EnableWindow(window, TRUE);

    SetPropA(window, "CHECKED", reinterpret_cast<HANDLE>(1));
    EXPECT_EQ(ground(toggle), whole(ON));
    RemovePropA(window, "CHECKED");

    const WindowsLib::Brush red(GdiManager::DARK_RED);
    SetPropA(window, "COLOR", const_cast<WindowsLib::Brush*>(&red));
    EXPECT_EQ(ground(toggle), whole(GdiManager::DARK_RED));
    toggle.setState(true);
    EXPECT_EQ(ground(toggle), whole(GdiManager::DARK_RED));
    EnableWindow(window, FALSE);
    EXPECT_EQ(ground(toggle), whole(GREY));
    EnableWindow(window, TRUE);
    RemovePropA(window, "COLOR");
    toggle.setState(false);

    SetPropA(window, "SELECTED", reinterpret_cast<HANDLE>(1));
    EXPECT_EQ(ground(toggle), whole(OFF));
    EXPECT_GT(textPixels(toggle, ON), 10);
    EXPECT_EQ(textPixels(toggle, BLACK), 0);
    RemovePropA(window, "SELECTED");
}

TEST_F(ButtonTest, MixedStateIsSplitInTheMiddle) {
    toggle.create(panel.item(IDC_TEST_BUTTON));
    toggle.setCaption("");
    SetPropA(toggle.getWindowHandle(), "GRAYTEXT", reinterpret_cast<HANDLE>(1));
    for (const bool state : {false, true}) {
        toggle.setState(state);
        const Picture picture(toggle.getWindowHandle());
        const int half = picture.width() / 2;
        EXPECT_EQ(picture.count(OFF, {0, 0, half, picture.height()}), half * picture.height());
        EXPECT_EQ(picture.count(ON, {half, 0, picture.width(), picture.height()}),
                  (picture.width() - half) * picture.height());
    }
    toggle.setCaption("OUT");
    Picture(toggle.getWindowHandle()).save("button-mixed");
}

// Where the topmost pixel of a sign lies on a button of this height.
class SignTest : public ButtonTest {
protected:
    int top(const char* caption, int height) {
        Button button(gui, nullptr, Button::Kind::push);
        button.create(caption, 5, panel.getWindowHandle(), 300, LIBRARY);
        button.setFont(gui.getGdiManager().getFont5());
        SetWindowPos(button.getWindowHandle(), HWND_TOP, 0, 0, 20, height, SWP_SHOWWINDOW);
        const Picture picture(button.getWindowHandle());
        picture.save(std::string("sign") + (caption[0] == '+' ? "-plus-" : "-other-") + std::to_string(height));
        const int row = picture.firstRowWith(BLACK);
        DestroyWindow(button.getWindowHandle());
        return row;
    }

    // Where the same font puts the same text on a ground of the same height.
    int plainTop(const char* caption, int height) {
        const HDC screen = GetDC(nullptr);
        int row = -1;
        {
            const MemoryDc memory(screen, 20, height);
            RECT rect = {0, 0, 20, height};
            FillRect(memory.dc(), &rect, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
            const SelectScope font(memory.dc(), gui.getGdiManager().getFont5().handle());
            DrawTextA(memory.dc(), caption, -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
            for (int y = height - 1; y >= 0; --y)
                for (int x = 0; x < 20; ++x)
                    if (GetPixel(memory.dc(), x, y) == BLACK)
                        row = y;
        }
        ReleaseDC(nullptr, screen);
        return row;
    }
};

TEST_F(SignTest, StandsAPixelHigherWhereItMust) {
    for (const int height : {12, 13, 14, 15, 16, 17, 20}) {
        ASSERT_GE(plainTop("+", height), 0);
        EXPECT_EQ(top("+", height), plainTop("+", height) - 1) << height;
        EXPECT_EQ(top("-", height), plainTop("-", height) - (height <= 15 ? 1 : 0)) << height;
    }
}

TEST_F(ButtonTest, SmallButtonsHaveFontsOfTheirOwn) {
    // Far higher than the small fonts: a button that used this one would be full of it.
    const WindowsLib::Font& huge = gui.getGdiManager().getLargeFont();
    struct Size {
        int width, height;
        bool own;
    };
    for (const Size size : {Size{40, 15, true}, Size{40, 16, false}, Size{10, 40, true}, Size{11, 40, false}}) {
        Button button(gui, nullptr, Button::Kind::push);
        button.create("H", 0, panel.getWindowHandle(), 300, LIBRARY);
        SetWindowPos(button.getWindowHandle(), HWND_TOP, 0, 0, size.width, size.height, SWP_SHOWWINDOW);
        const int plain = textPixels(button, BLACK);
        button.setFont(huge);
        const int changed = textPixels(button, BLACK);
        EXPECT_EQ(changed == plain, size.own) << size.width << " by " << size.height;
        DestroyWindow(button.getWindowHandle());
    }
}

TEST_F(ButtonTest, WindowThatOutlivesItsButtonIsLeftAlone) {
    HWND window = nullptr;
    {
        Button gone(gui, &reports, Button::Kind::toggle);
        gone.create(panel.item(IDC_TEST_BUTTON));
        window = gone.getWindowHandle();
    }
    SendMessageA(window, WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(reports.text, "");
    Button ended(gui, &reports, Button::Kind::toggle);
    ended.create(panel.item(IDC_TEST_SECOND_BUTTON));
    DestroyWindow(ended.getWindowHandle());
    EXPECT_EQ(ended.getWindowHandle(), nullptr);
    ended.setState(true);
}

TEST_F(ButtonTest, RadioButtonsAreOnOneAtATime) {
    RadioButton first(gui, &reports);
    RadioButton second(gui, &reports);
    RadioButton third(gui, &reports);
    first.setGroup({&second, &third});
    second.setGroup({&first, &third});
    third.setGroup({&first, &second});
    first.create(panel.item(IDC_TEST_BUTTON));
    second.create(panel.item(IDC_TEST_SECOND_BUTTON));
    third.create(panel.item(IDC_TEST_THIRD_BUTTON));
    const auto states = [&] {
        std::string text;
        for (const Button* button : {&first, &second, &third}) {
            EXPECT_EQ(ground(*button), whole(button->getState() ? ON : OFF));
            text += button->getState() ? '1' : '0';
        }
        return text;
    };
    EXPECT_EQ(states(), "000");
    clickLeft(second.getWindowHandle(), 3, 3);
    EXPECT_EQ(states(), "010");
    clickLeft(third.getWindowHandle(), 3, 3);
    EXPECT_EQ(states(), "001");
    // Nor does a press turn it off.
    clickLeft(third.getWindowHandle(), 3, 3);
    EXPECT_EQ(states(), "001");
    EXPECT_EQ(reports.text, "1004+ 1005+ 1005+ ");
    EXPECT_EQ(gui.focusRequests, 3);
}

}
}
