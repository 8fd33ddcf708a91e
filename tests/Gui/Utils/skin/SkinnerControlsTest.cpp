#include "Gui/Rules/values/TrackbarChannel.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "tests/Gui/Utils/skin/SkinnedDialog.h"

#include <gtest/gtest.h>

#include <commctrl.h>

namespace Gui {
namespace {

using namespace SkinProperties;
using TestSupport::Picture;
using TestSupport::pump;

using Messages = std::vector<SkinnedDialog::Message>;

constexpr int WIDTH = 50;
constexpr int HEIGHT = 30;
constexpr WPARAM NOTCH = 120u << 16;

class SkinnerControlsTest : public testing::Test {
protected:
    HWND addButton(DWORD type, int row = 0) {
        return dialog.add("Button", "B", type, {10, 10 + row * 40, 10 + WIDTH, 10 + row * 40 + HEIGHT});
    }

    static void press(HWND button) { SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5)); }
    static void release(HWND button, int x = 5, int y = 5) {
        SendMessageA(button, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
        pump();
    }
    static void click(HWND button) {
        press(button);
        release(button);
    }
    static bool isChecked(HWND button) { return SendMessageA(button, BM_GETCHECK, 0, 0) == BST_CHECKED; }
    static COLORREF colourOf(const Picture& picture, HWND window) {
        const RECT place = TestSupport::rectInParent(window);
        return picture.at(place.left + 1, place.top + 1);
    }

    SkinnedDialog dialog;
};

TEST_F(SkinnerControlsTest, ShowsHelpForEveryControlUnderThePointer) {
    const HWND controls[] = {addButton(BS_PUSHBUTTON), addButton(BS_AUTOCHECKBOX), addButton(BS_AUTORADIOBUTTON),
                             dialog.add(TRACKBAR_CLASSA, "", 0, {10, 100, 110, 130}),
                             dialog.add("Edit", "", 0, {10, 140, 110, 160})};
    dialog.skin();
    dialog.gui().helpWindows.clear();
    for (const HWND control : controls) {
        const POINT inside = TestSupport::onScreen(control, 3, 3);
        EXPECT_EQ(SendMessageA(control, WM_NCHITTEST, 0, MAKELPARAM(inside.x, inside.y)), HTCLIENT);
    }
    EXPECT_EQ(dialog.gui().helpWindows, std::vector<HWND>(std::begin(controls), std::end(controls)));
}

TEST_F(SkinnerControlsTest, SendsKeysOfButtonsUp) {
    for (const DWORD type : {BS_PUSHBUTTON, BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON}) {
        const HWND button = addButton(static_cast<DWORD>(type));
        dialog.skin();
        for (const UINT message : {WM_KEYDOWN, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSKEYUP}) {
            dialog.forgetMessages();
            EXPECT_EQ(SendMessageA(button, message, VK_SPACE, 7), 1);
            EXPECT_EQ(dialog.received(message), (Messages{{message, VK_SPACE, 7}})) << type;
        }
        EXPECT_EQ(dialog.countNotifications(button, BN_CLICKED), 0);
        DestroyWindow(button);
    }
}

TEST_F(SkinnerControlsTest, TakesADoubleClickForTwoPresses) {
    for (const DWORD type : {BS_PUSHBUTTON, BS_AUTOCHECKBOX}) {
        const HWND button = addButton(static_cast<DWORD>(type));
        dialog.skin();
        click(button);
        EXPECT_EQ(SendMessageA(button, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5)), 0);
        EXPECT_EQ(dialog.countNotifications(button, BN_CLICKED), 1);
        pump();
        release(button);
        EXPECT_EQ(dialog.countNotifications(button, BN_CLICKED), 2);
        EXPECT_FALSE(isChecked(button));
        EXPECT_EQ(dialog.countNotifications(button, BN_DBLCLK), 0);
        DestroyWindow(button);
    }
}

TEST_F(SkinnerControlsTest, FlipsACheckBoxWithAClick) {
    const HWND check = addButton(BS_AUTOCHECKBOX);
    dialog.skin();
    for (const bool expected : {true, false, true}) {
        dialog.forgetMessages();
        click(check);
        EXPECT_EQ(isChecked(check), expected);
        EXPECT_EQ(getFlag(check, CHECKED), expected);
        EXPECT_EQ(dialog.countNotifications(check, BN_CLICKED), 1);
        EXPECT_EQ(dialog.received(UM_RETURN_FOCUS), (Messages{{UM_RETURN_FOCUS, 0, 0}}));
        EXPECT_EQ(colourOf(Picture(dialog.handle()), check),
                  expected ? GdiManager::LIGHT_LIGHT_GREEN : GdiManager::DARK_GREEN);
    }
}

TEST_F(SkinnerControlsTest, HasFlippedACheckBoxWhenTheClickIsReported) {
    const HWND check = addButton(BS_AUTOCHECKBOX);
    dialog.skin();
    std::vector<bool> seen;
    dialog.onMessage = [&](const SkinnedDialog::Message& message) {
        if (message.id == WM_COMMAND && HIWORD(message.wParam) == BN_CLICKED)
            seen.push_back(isChecked(check));
    };
    click(check);
    click(check);
    EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(SkinnerControlsTest, FlipsNothingOutside) {
    const HWND check = addButton(BS_AUTOCHECKBOX);
    dialog.skin();
    struct Row {
        int x;
        int y;
        bool inside;
    };
    constexpr Row ROWS[] = {{0, 0, true},           {WIDTH, HEIGHT, true}, {WIDTH + 1, 5, false},
                            {5, HEIGHT + 1, false}, {-1, 5, false},        {5, -1, false}};
    for (const Row& row : ROWS) {
        SendMessageA(check, BM_SETCHECK, BST_UNCHECKED, 0);
        press(check);
        release(check, row.x, row.y);
        EXPECT_EQ(isChecked(check), row.inside) << row.x << " " << row.y;
        EXPECT_EQ(dialog.received(UM_RETURN_FOCUS).size(), 1u);
        dialog.forgetMessages();
    }
}

TEST_F(SkinnerControlsTest, SetsACheckBoxFromCode) {
    const HWND check = addButton(BS_AUTO3STATE);
    dialog.skin();
    for (const auto& [state, expected] :
         {std::pair{BST_CHECKED, true}, {BST_INDETERMINATE, false}, {BST_CHECKED, true}, {BST_UNCHECKED, false}}) {
        EXPECT_EQ(SendMessageA(check, BM_SETCHECK, static_cast<WPARAM>(state), 0), 0);
        EXPECT_EQ(isChecked(check), expected);
        RECT changed{};
        EXPECT_TRUE(GetUpdateRect(check, &changed, FALSE));
        UpdateWindow(check);
    }
    EXPECT_TRUE(dialog.received(WM_COMMAND).empty());
    CheckDlgButton(dialog.handle(), 1, BST_CHECKED);
    EXPECT_EQ(IsDlgButtonChecked(dialog.handle(), 1), static_cast<UINT>(BST_CHECKED));
}

class SkinnerRadioButtonTest : public SkinnerControlsTest {
protected:
    SkinnerRadioButtonTest() {
        for (int i = 0; i < 4; ++i)
            buttons.push_back(addButton((i % 2 == 0 ? BS_AUTORADIOBUTTON : BS_RADIOBUTTON) |
                                            (i == 0 || i == 3 ? static_cast<DWORD>(WS_GROUP) : 0u),
                                        i));
        dialog.skin();
    }

    std::vector<bool> states() const {
        std::vector<bool> checked;
        for (const HWND button : buttons)
            checked.push_back(isChecked(button));
        return checked;
    }

    std::vector<HWND> buttons;  // A group of three and one of another.
};

TEST_F(SkinnerRadioButtonTest, ChecksOneOfItsGroupWithAClick) {
    click(buttons[3]);
    click(buttons[0]);
    EXPECT_EQ(states(), (std::vector<bool>{true, false, false, true}));
    dialog.forgetMessages();
    click(buttons[2]);
    EXPECT_EQ(states(), (std::vector<bool>{false, false, true, true}));
    EXPECT_EQ(dialog.countNotifications(buttons[2], BN_CLICKED), 1);
    EXPECT_EQ(dialog.received(UM_RETURN_FOCUS).size(), 1u);
    const Picture picture(dialog.handle());
    EXPECT_EQ(colourOf(picture, buttons[0]), GdiManager::DARK_GREEN);
    EXPECT_EQ(colourOf(picture, buttons[2]), GdiManager::LIGHT_LIGHT_GREEN);
}

TEST_F(SkinnerRadioButtonTest, RepaintsTheWholeGroup) {
    click(buttons[0]);
    UpdateWindow(dialog.handle());
    for (const HWND button : buttons)
        ValidateRect(button, nullptr);
    SendMessageA(buttons[1], BM_SETCHECK, BST_CHECKED, 0);
    RECT changed{};
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(GetUpdateRect(buttons[static_cast<std::size_t>(i)], &changed, FALSE)) << i;
    EXPECT_FALSE(GetUpdateRect(buttons[3], &changed, FALSE));
}

TEST_F(SkinnerRadioButtonTest, StaysCheckedWithAnotherClick) {
    click(buttons[1]);
    click(buttons[1]);
    EXPECT_EQ(states(), (std::vector<bool>{false, true, false, false}));
    EXPECT_EQ(dialog.countNotifications(buttons[1], BN_CLICKED), 2);
}

TEST_F(SkinnerRadioButtonTest, StaysAsItIsWithAReleaseOutside) {
    click(buttons[1]);
    press(buttons[0]);
    release(buttons[0], -3, 5);
    EXPECT_EQ(states(), (std::vector<bool>{false, true, false, false}));
}

TEST_F(SkinnerRadioButtonTest, IsSetFromCodeButNeverCleared) {
    EXPECT_EQ(SendMessageA(buttons[0], BM_SETCHECK, BST_CHECKED, 0), 0);
    EXPECT_EQ(states(), (std::vector<bool>{true, false, false, false}));
    EXPECT_EQ(SendMessageA(buttons[1], BM_SETCHECK, BST_CHECKED, 0), 0);
    EXPECT_EQ(states(), (std::vector<bool>{false, true, false, false}));
    for (const WPARAM state : {BST_UNCHECKED, BST_INDETERMINATE}) {
        EXPECT_EQ(SendMessageA(buttons[1], BM_SETCHECK, state, 0), 0);
        EXPECT_EQ(SendMessageA(buttons[2], BM_SETCHECK, state, 0), 0);
        EXPECT_EQ(states(), (std::vector<bool>{false, true, false, false}));
    }
    EXPECT_TRUE(dialog.received(WM_COMMAND).empty());
}

TEST_F(SkinnerRadioButtonTest, IsSetWhileItIsDisabledOrHidden) {
    SendMessageA(buttons[0], BM_SETCHECK, BST_CHECKED, 0);
    EnableWindow(buttons[1], FALSE);
    SendMessageA(buttons[1], BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_EQ(states(), (std::vector<bool>{false, true, false, false}));
    ShowWindow(buttons[2], SW_HIDE);
    SendMessageA(buttons[2], BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_TRUE(isChecked(buttons[2]));
}

TEST_F(SkinnerControlsTest, ChecksARadioButtonThatIsAlone) {
    const HWND button = addButton(BS_RADIOBUTTON | WS_GROUP);
    dialog.skin();
    SetWindowLongPtrA(dialog.add("Static", "", WS_GROUP, {0, 0, 1, 1}), GWL_STYLE, WS_CHILD | WS_VISIBLE | WS_GROUP);
    click(button);
    EXPECT_TRUE(isChecked(button));
}

class SkinnerTrackbarTest : public SkinnerControlsTest {
protected:
    HWND addTrackbar(DWORD style, const RECT& place) {
        const HWND trackbar = dialog.add(TRACKBAR_CLASSA, "", style | TBS_NOTICKS, place);
        SendMessageA(trackbar, TBM_SETRANGE, TRUE, MAKELPARAM(0, 127));
        SendMessageA(trackbar, TBM_SETPOS, TRUE, 64);
        return trackbar;
    }

    static Rect ask(HWND trackbar, UINT message) {
        RECT rect{};
        SendMessageA(trackbar, message, 0, reinterpret_cast<LPARAM>(&rect));
        return {rect.left, rect.top, rect.right, rect.bottom};
    }

    static bool contains(const Rect& rect, int x, int y) {
        return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
    }

    // Thumb over channel over ground, and nothing else.
    void expectLook(HWND trackbar, const Rect& channel, COLORREF ground) {
        const Picture picture(dialog.handle());
        const RECT place = TestSupport::rectInParent(trackbar);
        const Rect thumb = ask(trackbar, TBM_GETTHUMBRECT);
        int wrong = 0;
        for (int y = 0; y < place.bottom - place.top; ++y)
            for (int x = 0; x < place.right - place.left; ++x) {
                const COLORREF expected = contains(thumb, x, y)     ? GdiManager::LIGHT_LIGHT_GREEN
                                          : contains(channel, x, y) ? GdiManager::DARK_DARK_GREEN
                                                                    : ground;
                wrong += picture.at(place.left + x, place.top + y) != expected ? 1 : 0;
            }
        EXPECT_EQ(wrong, 0);
        EXPECT_GT((thumb.right - thumb.left) * (thumb.bottom - thumb.top), 50);
        EXPECT_GT(channel.right - channel.left + channel.bottom - channel.top, 50);
        picture.save("skin-trackbar");
    }
};

TEST_F(SkinnerTrackbarTest, DrawsThumbAndChannel) {
    const HWND trackbar = addTrackbar(TBS_HORZ, {10, 10, 210, 40});
    dialog.skin();
    expectLook(trackbar, ask(trackbar, TBM_GETCHANNELRECT), GdiManager::BLACK);
    SendMessageA(trackbar, TBM_SETPOS, TRUE, 10);
    pump();
    expectLook(trackbar, ask(trackbar, TBM_GETCHANNELRECT), GdiManager::BLACK);
}

TEST_F(SkinnerTrackbarTest, DrawsAVerticalChannelUpright) {
    const HWND trackbar = addTrackbar(TBS_VERT, {10, 10, 40, 210});
    dialog.skin();
    const Rect channel = getVerticalChannel(ask(trackbar, TBM_GETTHUMBRECT), ask(trackbar, TBM_GETCHANNELRECT));
    EXPECT_GT(channel.bottom - channel.top, channel.right - channel.left);
    expectLook(trackbar, channel, GdiManager::BLACK);
}

TEST_F(SkinnerTrackbarTest, ShowsATwoStateBarOnGrey) {
    const HWND trackbar = addTrackbar(TBS_HORZ, {10, 10, 210, 40});
    dialog.skin();
    setNumber(trackbar, TOGGLE, 1);
    expectLook(trackbar, ask(trackbar, TBM_GETCHANNELRECT), GdiManager::DARK_DARK_GREY);
}

TEST_F(SkinnerTrackbarTest, FollowsTheKeyboard) {
    const HWND trackbar = addTrackbar(TBS_HORZ, {10, 10, 210, 40});
    dialog.skin();
    SendMessageA(trackbar, WM_KEYDOWN, VK_END, 1);
    EXPECT_EQ(SendMessageA(trackbar, TBM_GETPOS, 0, 0), 127);
    expectLook(trackbar, ask(trackbar, TBM_GETCHANNELRECT), GdiManager::BLACK);
}

TEST_F(SkinnerTrackbarTest, PassesTheWheelUp) {
    const HWND trackbar = addTrackbar(TBS_HORZ, {10, 10, 210, 40});
    dialog.skin();
    for (const UINT message : {UINT{WM_MOUSEWHEEL}, UM_MOUSEWHEEL}) {
        dialog.forgetMessages();
        SendMessageA(trackbar, message, NOTCH, 0x00050006);
        EXPECT_EQ(dialog.received(WM_MOUSEWHEEL), (Messages{{WM_MOUSEWHEEL, NOTCH, 0x00050006}}));
        EXPECT_TRUE(dialog.received(UM_MOUSEWHEEL).empty());
        EXPECT_EQ(SendMessageA(trackbar, TBM_GETPOS, 0, 0), 64);
    }
}

// As the main window does with a turn that nobody on the way handled.
TEST_F(SkinnerTrackbarTest, WheelThatComesBackEndsThere) {
    const HWND trackbar = addTrackbar(TBS_HORZ, {10, 10, 210, 40});
    dialog.skin();
    int turns = 0;
    dialog.onMessage = [&](const SkinnedDialog::Message& message) {
        if (message.id == WM_MOUSEWHEEL && ++turns < 10)
            SendMessageA(trackbar, UM_MOUSEWHEEL, message.wParam, message.lParam);
    };
    SendMessageA(trackbar, UM_MOUSEWHEEL, NOTCH, 0);
    EXPECT_EQ(turns, 1);
    SendMessageA(trackbar, UM_MOUSEWHEEL, NOTCH, 0);
    EXPECT_EQ(turns, 2);
}

}
}
