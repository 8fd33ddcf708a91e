#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "tests/Gui/Utils/TemplateIds.h"
#include "tests/Gui/Utils/skin/SkinnedDialog.h"

#include <gtest/gtest.h>

#include <string>

namespace Gui {
namespace {

using namespace SkinProperties;
using TestSupport::Picture;
using TestSupport::pump;
using TestSupport::textOf;

using Messages = std::vector<SkinnedDialog::Message>;

constexpr WPARAM UP = 120u << 16;
constexpr WPARAM DOWN = 0xff88u << 16;
constexpr RECT PLACE{10, 10, 110, 32};

class SkinnerEditTest : public testing::Test {
protected:
    HWND addEdit(const char* text = "", DWORD style = 0, DWORD extendedStyle = WS_EX_CLIENTEDGE) {
        const HWND edit = dialog.add("Edit", text, ES_AUTOHSCROLL | style, PLACE, extendedStyle);
        dialog.skin();
        return edit;
    }

    std::string turn(HWND edit, WPARAM wheel) {
        EXPECT_EQ(SendMessageA(edit, UM_MOUSEWHEEL, wheel, 0), 0);
        return textOf(edit);
    }

    // The frame of an edit, a pixel thick, and what lies inside it.
    void expectFrame(HWND edit, COLORREF border) {
        const Picture picture(dialog.handle());
        picture.save("skin-edit");
        const RECT place = TestSupport::rectInParent(edit);
        RECT inner = place;
        InflateRect(&inner, -1, -1);
        for (int y = place.top; y < place.bottom; ++y)
            for (int x = place.left; x < place.right; ++x) {
                if (!PtInRect(&inner, {x, y})) {
                    ASSERT_EQ(picture.at(x, y), border) << x << " " << y;
                } else if (x == inner.left || y == inner.top || x == inner.right - 1 || y == inner.bottom - 1) {
                    ASSERT_EQ(picture.at(x, y), GdiManager::BLACK) << x << " " << y;
                }
            }
    }

    SkinnedDialog dialog;
};

TEST_F(SkinnerEditTest, HasAFrameOfTheDesk) {
    const HWND edit = addEdit("12");
    expectFrame(edit, GdiManager::DARK_GREEN);
    for (const UINT message : {WM_ERASEBKGND, WM_NCPAINT})
        EXPECT_EQ(SendMessageA(edit, message, message == WM_NCPAINT ? 1 : 0, 0), 0);
    expectFrame(edit, GdiManager::DARK_GREEN);
    EnableWindow(edit, FALSE);
    SendMessageA(edit, WM_NCPAINT, 1, 0);
    expectFrame(edit, GdiManager::DARK_GREY);
}

TEST_F(SkinnerEditTest, HasTheFrameInDialogTemplatesToo) {
    dialog.skin();
    expectFrame(GetDlgItem(dialog.handle(), IDC_SKIN_EDIT), GdiManager::DARK_GREEN);
}

TEST_F(SkinnerEditTest, HasNoFrameWithoutABorder) {
    const HWND edit = addEdit("12", 0, 0);
    const Picture picture(dialog.handle());
    EXPECT_EQ(picture.count(GdiManager::DARK_GREEN, PLACE), 0);
    EXPECT_GT(picture.count(GdiManager::AMBER, PLACE), 3);
    EXPECT_EQ(picture.count(GdiManager::AMBER, PLACE) + picture.count(GdiManager::BLACK, PLACE), 100 * 22);
    const Canvas canvas(5, 5);
    EXPECT_NE(SendMessageA(edit, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc()), 0), 0);
}

TEST_F(SkinnerEditTest, DrawsScrollBarsInsideTheFrame) {
    const HWND edit = addEdit("1\r\n2\r\n3\r\n4\r\n5\r\n6", ES_MULTILINE | WS_VSCROLL);
    expectFrame(edit, GdiManager::DARK_GREEN);
    int others = 0;
    const Picture picture(dialog.handle());
    for (int y = PLACE.top + 2; y < PLACE.bottom - 2; ++y)
        for (int x = PLACE.right - 12; x < PLACE.right - 4; ++x)
            others += picture.at(x, y) != GdiManager::BLACK && picture.at(x, y) != GdiManager::AMBER ? 1 : 0;
    EXPECT_GT(others, 50);
}

TEST_F(SkinnerEditTest, ShowsTheArrowForACursor) {
    const HWND edit = addEdit();
    SetCursor(LoadCursorA(nullptr, IDC_IBEAM));
    EXPECT_EQ(SendMessageA(edit, WM_SETCURSOR, reinterpret_cast<WPARAM>(edit), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), 1);
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(SkinnerEditTest, GivesFocusBackWithEnterAndEscape) {
    const HWND edit = addEdit("1", ES_MULTILINE | ES_WANTRETURN);
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE}) {
        dialog.forgetMessages();
        EXPECT_EQ(SendMessageA(edit, WM_KEYDOWN, key, 1), 0);
        EXPECT_TRUE(dialog.received(UM_RETURN_FOCUS).empty());  // Posted, not sent.
        pump();
        EXPECT_EQ(dialog.received(UM_RETURN_FOCUS), (Messages{{UM_RETURN_FOCUS, 0, 0}}));
        EXPECT_EQ(SendMessageA(edit, WM_CHAR, key, 1), 0);
        EXPECT_EQ(textOf(edit), "1");
    }
}

TEST_F(SkinnerEditTest, TakesOtherKeys) {
    const HWND edit = addEdit();
    SendMessageA(edit, WM_CHAR, '7', 1);
    SendMessageA(edit, WM_KEYDOWN, VK_HOME, 1);
    SendMessageA(edit, WM_CHAR, '1', 1);
    pump();
    EXPECT_EQ(textOf(edit), "17");
    EXPECT_TRUE(dialog.received(UM_RETURN_FOCUS).empty());
}

TEST_F(SkinnerEditTest, TurnsItsValueWithTheWheel) {
    const HWND edit = addEdit("126");
    Skinner::setMinMax(dialog.handle(), 1, 0, 127);
    for (const UINT message : {UINT{WM_MOUSEWHEEL}, UM_MOUSEWHEEL}) {
        SetWindowTextA(edit, "126");
        dialog.forgetMessages();
        EXPECT_EQ(SendMessageA(edit, message, UP, 0), 0);
        EXPECT_EQ(textOf(edit), "127");
        EXPECT_EQ(dialog.countNotifications(edit, EN_CHANGE), 1);
        EXPECT_FALSE(getFlag(edit, SET_BY_PROGRAM));
        EXPECT_EQ(SendMessageA(edit, message, UP, 0), 0);
        EXPECT_EQ(textOf(edit), "127");
        EXPECT_EQ(dialog.countNotifications(edit, EN_CHANGE), 1);
        EXPECT_TRUE(dialog.received(message).empty());
    }
    EXPECT_EQ(turn(edit, DOWN), "126");
}

TEST_F(SkinnerEditTest, TurnsASignedValueThroughZero) {
    const HWND edit = addEdit("+5");
    Skinner::setMinMax(dialog.handle(), 1, -12, 12);
    EXPECT_EQ(turn(edit, DOWN), "+4");
    SetWindowTextA(edit, "+1");
    EXPECT_EQ(turn(edit, DOWN), "");
    EXPECT_EQ(turn(edit, DOWN), "-1");
}

TEST_F(SkinnerEditTest, TakesLargeStepsWithShift) {
    const HWND edit = addEdit("1", ES_NUMBER);
    EXPECT_EQ(turn(edit, UP | MK_SHIFT), "11");
    setNumber(edit, JUMP_BY_12, 1);
    EXPECT_EQ(turn(edit, UP | MK_SHIFT), "23");
    setNumber(edit, SHOW_NOTE_STRING, 1);
    SetWindowTextA(edit, "C4");
    EXPECT_EQ(turn(edit, UP | MK_SHIFT), "C5");
    EXPECT_EQ(turn(edit, UP), "C#5");
}

TEST_F(SkinnerEditTest, TakesLargeStepsWithTheShiftKeyAlone) {
    const HWND edit = addEdit("1", ES_NUMBER);
    SetFocus(edit);
    const auto shift = [](DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = VK_SHIFT;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    };
    shift(0);
    EXPECT_TRUE(TestSupport::pumpUntil([] { return GetKeyState(VK_SHIFT) < 0; }));
    EXPECT_EQ(turn(edit, UP), "11");
    shift(KEYEVENTF_KEYUP);
    EXPECT_TRUE(TestSupport::pumpUntil([] { return GetKeyState(VK_SHIFT) >= 0; }));
    EXPECT_EQ(turn(edit, UP), "12");
}

TEST_F(SkinnerEditTest, ReadsItsLimitsWheneverItTurns) {
    const HWND edit = addEdit("1");
    Skinner::setMin(edit, 1);
    EXPECT_EQ(turn(edit, DOWN), "1");
    Skinner::setMin(edit, 0);
    EXPECT_EQ(getNumber(edit, MIN), 1);
    EXPECT_EQ(turn(edit, DOWN), "0");
    SetWindowTextA(edit, "-1");
    Skinner::setMin(edit, -5);
    Skinner::setMax(edit, 0);
    EXPECT_EQ(turn(edit, UP), "");
    EXPECT_EQ(turn(edit, UP), "");
    Skinner::setMax(edit, 1);
    EXPECT_EQ(turn(edit, UP), "+1");
}

TEST_F(SkinnerEditTest, TakesNoSignWhereOnlyDigitsAreTyped) {
    const HWND edit = addEdit("0", ES_NUMBER);
    EXPECT_EQ(turn(edit, DOWN), "0");
    SetWindowTextA(edit, "1");
    EXPECT_EQ(turn(edit, DOWN), "0");
}

TEST_F(SkinnerEditTest, ShowsZeroAsBlank) {
    const HWND edit = addEdit("1", ES_NUMBER);
    Skinner::showZeroAsBlank(dialog.handle(), 1);
    EXPECT_EQ(turn(edit, DOWN), "");
    EXPECT_EQ(turn(edit, UP), "1");
}

TEST_F(SkinnerEditTest, ReadsTwentyCharacters) {
    const HWND edit = addEdit("                  126 ");  // The 6 is the 21st.
    Skinner::setMinMax(dialog.handle(), 1, 0, 127);
    EXPECT_EQ(turn(edit, UP), "13");
}

TEST_F(SkinnerEditTest, WaitsForAWholeNotch) {
    const HWND edit = addEdit("?");
    Skinner::setMinMax(dialog.handle(), 1, 0, 127);
    dialog.forgetMessages();
    for (const WPARAM part : {WPARAM{60} << 16, WPARAM{0xffc4} << 16, WPARAM{0}})
        EXPECT_EQ(turn(edit, part), "?");
    EXPECT_EQ(dialog.countNotifications(edit, EN_CHANGE), 0);
}

TEST_F(SkinnerEditTest, LeavesTheWheelToOthers) {
    const HWND edit = addEdit("5");
    Skinner::setNoWheel(dialog.handle(), 1);
    dialog.forgetMessages();
    EXPECT_EQ(SendMessageA(edit, UM_MOUSEWHEEL, UP, 0x00020003), 0);
    EXPECT_EQ(dialog.received(UM_MOUSEWHEEL), (Messages{{UM_MOUSEWHEEL, UP, 0x00020003}}));
    EXPECT_TRUE(dialog.received(WM_MOUSEWHEEL).empty());
    // With Ctrl every stock edit passes it on.
    SendMessageA(edit, WM_MOUSEWHEEL, UP | MK_CONTROL, 0x00020003);
    EXPECT_EQ(dialog.received(UM_MOUSEWHEEL).size(), 1u);
    EXPECT_EQ(dialog.received(WM_MOUSEWHEEL), (Messages{{WM_MOUSEWHEEL, UP | MK_CONTROL, 0x00020003}}));
    EXPECT_EQ(textOf(edit), "5");
}

// The list of values, driven by keys.
class SkinnerValuePickerTest : public SkinnerEditTest {
protected:
    struct Shown {
        int items = 0;
        std::vector<int> columns;
        std::string marked;
        int firstId = 0;
        int lastId = 0;
        POINT corner{};
    };

    SkinnerValuePickerTest() {
        dialog.onMessage = [this](const SkinnedDialog::Message& message) {
            if (message.id == WM_INITMENUPOPUP) {
                ++opened;
                shown = look(reinterpret_cast<HMENU>(message.wParam));
            } else if (message.id == WM_ENTERIDLE) {
                const HWND window = reinterpret_cast<HWND>(message.lParam);
                RECT place{};
                GetWindowRect(window, &place);
                shown.corner = {place.left, place.top};
                TestSupport::keyForMenu(dialog.handle(), VK_ESCAPE);
            }
        };
    }

    static Shown look(HMENU menu) {
        Shown found;
        found.items = GetMenuItemCount(menu);
        found.firstId = static_cast<int>(GetMenuItemID(menu, 0));
        found.lastId = static_cast<int>(GetMenuItemID(menu, found.items - 1));
        for (int i = 0; i < found.items; ++i) {
            MENUITEMINFOA info{};
            info.cbSize = sizeof info;
            info.fMask = MIIM_FTYPE | MIIM_DATA;
            GetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &info);
            if ((info.fType & MFT_MENUBREAK) != 0)
                found.columns.push_back(i);
            const auto* item = reinterpret_cast<const PopupMenu::Item*>(info.dwItemData);
            if (item && item->selected)
                found.marked += item->text;
        }
        return found;
    }

    // The result of a right click with keys that wait for the menu.
    LRESULT pick(HWND edit, std::initializer_list<WPARAM> keys, LPARAM point = MAKELPARAM(200, 150)) {
        opened = 0;
        for (const WPARAM key : keys)
            TestSupport::keyForMenu(dialog.handle(), key);
        const LRESULT result = SendMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), point);
        pump();
        return result;
    }

    // Whether a right click brings up the system's own menu.
    bool bringsStockMenu(HWND edit) {
        opened = 0;
        stockMenus = 0;
        setNumber(edit, "TEST", GetWindowLongPtrA(edit, GWLP_WNDPROC));
        SetWindowLongPtrA(edit, GWLP_WNDPROC,
                          reinterpret_cast<LONG_PTR>(+[](HWND window, UINT message, WPARAM w, LPARAM l) -> LRESULT {
                              if (message == WM_ENTERIDLE && w == MSGF_MENU) {
                                  ++stockMenus;
                                  TestSupport::keyForMenu(window, VK_ESCAPE);
                              }
                              return CallWindowProcA(reinterpret_cast<WNDPROC>(getNumber(window, "TEST")), window,
                                                     message, w, l);
                          }));
        SendMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), MAKELPARAM(200, 150));
        pump();
        SetWindowLongPtrA(edit, GWLP_WNDPROC, getNumber(edit, "TEST"));
        EXPECT_EQ(opened, 0);
        return stockMenus > 0;
    }

    int opened = 0;
    Shown shown;
    static int stockMenus;
};

int SkinnerValuePickerTest::stockMenus = 0;

TEST_F(SkinnerValuePickerTest, OffersAllNotes) {
    const HWND edit = addEdit("C4");
    setNumber(edit, SHOW_NOTE_STRING, 1);
    dialog.forgetMessages();
    EXPECT_EQ(pick(edit, {VK_DOWN, VK_DOWN, VK_RETURN}), 0);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(shown.items, 128);
    EXPECT_EQ(shown.marked, "C4 (60)");
    EXPECT_EQ(shown.firstId, 1);
    EXPECT_EQ(shown.lastId, 128);
    EXPECT_EQ(shown.columns, (std::vector<int>{15, 30, 45, 60, 75, 90, 105, 120}));
    EXPECT_EQ(textOf(edit), "C#-1");
    EXPECT_EQ(dialog.countNotifications(edit, EN_CHANGE), 1);
    EXPECT_FALSE(getFlag(edit, SET_BY_PROGRAM));
}

TEST_F(SkinnerValuePickerTest, OffersTheValuesWithinTheLimits) {
    const HWND edit = addEdit("18");
    Skinner::setMinMax(dialog.handle(), 1, 16, 40);
    EXPECT_EQ(pick(edit, {VK_UP, VK_RETURN}), 0);
    EXPECT_EQ(shown.items, 25);
    EXPECT_EQ(shown.marked, "18");
    EXPECT_EQ(shown.columns, std::vector<int>{15});
    EXPECT_EQ(textOf(edit), "40");
    EXPECT_EQ(pick(edit, {VK_DOWN, VK_RETURN}), 0);
    EXPECT_EQ(shown.marked, "40");
    EXPECT_EQ(textOf(edit), "16");
}

TEST_F(SkinnerValuePickerTest, OffersNoZeroWhereItIsBlank) {
    const HWND edit = addEdit("");
    Skinner::setMinMax(dialog.handle(), 1, 0, 16);
    pick(edit, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(shown.items, 17);
    EXPECT_EQ(textOf(edit), "0");
    Skinner::showZeroAsBlank(dialog.handle(), 1);
    pick(edit, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(shown.items, 16);
    EXPECT_EQ(textOf(edit), "1");
}

TEST_F(SkinnerValuePickerTest, ChangesNothingWithoutAChoice) {
    const HWND edit = addEdit("18");
    Skinner::setMinMax(dialog.handle(), 1, 16, 40);
    dialog.forgetMessages();
    EXPECT_EQ(pick(edit, {VK_DOWN, VK_ESCAPE}), 0);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(textOf(edit), "18");
    EXPECT_EQ(dialog.countNotifications(edit, EN_CHANGE), 0);
}

TEST_F(SkinnerValuePickerTest, OpensAtThePointerOrBelowTheField) {
    const HWND edit = addEdit("18");
    Skinner::setMinMax(dialog.handle(), 1, 16, 40);
    pick(edit, {}, MAKELPARAM(200, 150));
    EXPECT_EQ(shown.corner.x, 200);
    EXPECT_EQ(shown.corner.y, 150);
    RECT place{};
    GetWindowRect(edit, &place);
    for (const LPARAM none : {LPARAM{-1}, LPARAM{0xffffffff}}) {
        shown = {};
        pick(edit, {}, none);
        EXPECT_EQ(shown.corner.x, place.left);
        EXPECT_EQ(shown.corner.y, place.bottom);
    }
}

TEST_F(SkinnerValuePickerTest, OpensForAtMostFiveHundredValues) {
    const HWND edit = addEdit("18");
    Skinner::setMinMax(dialog.handle(), 1, 1, 500);
    EXPECT_EQ(pick(edit, {VK_ESCAPE}), 0);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(shown.items, 500);
    Skinner::setMin(dialog.handle(), 1, 0);
    EXPECT_TRUE(bringsStockMenu(edit));
}

TEST_F(SkinnerValuePickerTest, LeavesSignedFieldsToTheStockMenu) {
    const HWND edit = addEdit("+5");
    Skinner::setMinMax(dialog.handle(), 1, -12, 12);
    EXPECT_TRUE(bringsStockMenu(edit));
    Skinner::setMinMax(dialog.handle(), 1, 0, 0);
    EXPECT_TRUE(bringsStockMenu(edit));
    EXPECT_EQ(textOf(edit), "+5");
}

// Some fields in a row, separated by what Tab skips.
class SkinnerTabTest : public testing::Test {
protected:
    SkinnerTabTest() { dialog.skin(); }

    HWND add(const char* className, DWORD style) {
        top += 24;
        return dialog.add(className, "12", style, {10, top, 110, top + 20});
    }

    static void press(HWND window, WPARAM key) {
        PostMessageA(window, WM_KEYDOWN, key, 1);
        pump();
    }

    static void holdKey(WORD key, bool down) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
        SendInput(1, &input, sizeof input);
        ASSERT_TRUE(TestSupport::pumpUntil([&] { return (GetKeyState(key) < 0) == down; }));
    }

    SkinnedDialog dialog;
    int top = 0;
    HWND first = GetDlgItem(dialog.handle(), IDC_SKIN_EDIT);
    HWND disabled = add("Edit", WS_TABSTOP | WS_DISABLED);
    HWND button = add("Button", WS_TABSTOP);
    HWND second = add("Edit", WS_TABSTOP);
    HWND readOnly = add("Edit", WS_TABSTOP | ES_READONLY);
    HWND withoutStop = add("Edit", 0);
    HWND combo = add("Edit", WS_TABSTOP);
};

TEST_F(SkinnerTabTest, GoesFromFieldToFieldAndRound) {
    setNumber(combo, COMBO_BOX, 1);
    SetFocus(first);
    press(first, VK_TAB);
    EXPECT_EQ(GetFocus(), second);
    EXPECT_EQ(SendMessageA(second, EM_GETSEL, 0, 0), MAKELONG(0, 2));
    press(second, VK_TAB);
    EXPECT_EQ(GetFocus(), first);
    RemovePropA(combo, COMBO_BOX);
    press(first, VK_TAB);
    press(second, VK_TAB);
    EXPECT_EQ(GetFocus(), combo);
}

TEST_F(SkinnerTabTest, GoesBackWithShift) {
    SetFocus(first);
    holdKey(VK_SHIFT, true);
    press(first, VK_TAB);
    EXPECT_EQ(GetFocus(), combo);
    press(combo, VK_TAB);
    EXPECT_EQ(GetFocus(), second);
    holdKey(VK_SHIFT, false);
}

TEST_F(SkinnerTabTest, PassesOverAHiddenField) {
    ShowWindow(second, SW_HIDE);
    SetFocus(first);
    press(first, VK_TAB);
    EXPECT_EQ(GetFocus(), combo);
}

TEST_F(SkinnerTabTest, StaysInTheOnlyFieldAndLeavesItsText) {
    for (const HWND other : {second, combo})
        EnableWindow(other, FALSE);
    SetFocus(first);
    SetWindowTextA(first, "7");
    dialog.forgetMessages();
    press(first, VK_TAB);
    SendMessageA(first, WM_CHAR, VK_TAB, 1);
    EXPECT_EQ(GetFocus(), first);
    EXPECT_EQ(textOf(first), "7");
    EXPECT_TRUE(dialog.received(UM_RETURN_FOCUS).empty());
}

TEST_F(SkinnerTabTest, IsNotTheFieldsWithControl) {
    SetFocus(first);
    holdKey(VK_CONTROL, true);
    press(first, VK_TAB);
    holdKey(VK_CONTROL, false);
    EXPECT_EQ(GetFocus(), first);
}

TEST_F(SkinnerTabTest, EscapeStillGivesTheKeyboardBack) {
    SetFocus(second);
    dialog.forgetMessages();
    press(second, VK_ESCAPE);
    EXPECT_EQ(dialog.received(UM_RETURN_FOCUS).size(), 1u);
}

}
}
