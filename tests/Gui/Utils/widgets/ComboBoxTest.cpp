#include "Gui/Utils/widgets/ComboBox.h"

#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/widgets/ComboButton.h"
#include "tests/Gui/Utils/widgets/WidgetPanel.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <string>

namespace Gui {
namespace {

using TestSupport::clickLeft;
using TestSupport::mouseButton;
using TestSupport::movePointer;
using TestSupport::Picture;
using TestSupport::pump;
using TestSupport::pumpUntil;
using TestSupport::textOf;
using Message = TestSupport::TestWindow::Message;

constexpr WPARAM WHEEL_UP = WPARAM{120} << 16;
constexpr WPARAM WHEEL_DOWN = static_cast<WPARAM>(static_cast<WORD>(-120)) << 16;

class ComboBoxTest : public WidgetTest {
protected:
    ComboBoxTest() : edit(panel.item(IDC_TEST_COMBO)) {
        box.attach(edit, 0, 30);
        box.addItem(-1, "Default");
        box.addItem(4, "Synth");
        box.addItem(7, "Absent", false);
        box.addItem(9, "Drums");
        pump();
        panel.messages.clear();
    }

    // Opens the list with this button and gives it these keys.
    void open(DWORD down, DWORD up, const std::vector<WPARAM>& keys) {
        panel.menuKeys = keys;
        movePointer(edit, 5, 5);
        mouseButton(down);
        mouseButton(up);
    }

    void openLeft(const std::vector<WPARAM>& keys) { open(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, keys); }
    void openRight(const std::vector<WPARAM>& keys) { open(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, keys); }

    std::vector<Message> changes() const { return panel.received(ComboBox::changeMessage()); }
    std::vector<Message> questions() const { return panel.received(ComboBox::validateMessage()); }

    HWND edit;
    ComboBox box{gui.getGdiManager()};
};

TEST_F(ComboBoxTest, MessagesHaveTheirNames) {
    EXPECT_EQ(ComboBox::changeMessage(), RegisterWindowMessageA("UD_COMBOBOXCHANGE_Tamsel2008"));
    EXPECT_EQ(ComboBox::validateMessage(), RegisterWindowMessageA("UD_COMBOBOXVALIDATE_Tamsel2008"));
    EXPECT_EQ(ComboButton::changeMessage(), RegisterWindowMessageA("COMBOBUTTONCHANGED_Tamsel2008"));
}

TEST_F(ComboBoxTest, StandsWithItsEdit) {
    EXPECT_EQ(GetPropA(edit, "ComboBox"), &box);
    EXPECT_NE(GetPropA(edit, "COMBO_PROP"), nullptr);
    EXPECT_NE(GetPropA(edit, "TEXT"), nullptr);
    EXPECT_EQ(box.getSelection(), -1);
    EXPECT_EQ(box.getSelectedValue(), -1);
    EXPECT_EQ(box.getSelectedText(), "");
}

TEST_F(ComboBoxTest, ProgramSelectsWithoutNotifying) {
    box.selectValue(9);
    EXPECT_EQ(textOf(edit), "Drums");
    EXPECT_EQ(box.getSelection(), 3);
    box.setSelection(1, false);
    EXPECT_EQ(box.getSelectedValue(), 4);
    EXPECT_EQ(textOf(edit), "Synth");
    box.selectValue(1234);
    EXPECT_EQ(box.getSelection(), -1);
    EXPECT_EQ(textOf(edit), "");
    pump();
    EXPECT_TRUE(changes().empty());
    EXPECT_TRUE(questions().empty());
}

TEST_F(ComboBoxTest, KeysSelectToo) {
    box.clearItems();
    EXPECT_EQ(box.getItemCount(), 0);
    box.addItem(std::string("up"), "Up");
    box.addItem(std::string("down"), "Down");
    box.selectKey("down");
    EXPECT_EQ(textOf(edit), "Down");
    EXPECT_EQ(box.getSelectedKey(), "down");
    box.selectKey("sideways");
    EXPECT_EQ(textOf(edit), "");
    EXPECT_EQ(box.getSelectedKey(), "");
}

TEST_F(ComboBoxTest, IndexPastTheEndSelectsNone) {
    for (const int index : {4, 100, -1, -7}) {
        box.setSelection(1, false);
        box.setSelection(index, true);
        EXPECT_EQ(box.getSelection(), -1);
        EXPECT_EQ(textOf(edit), "");
    }
    pump();
    EXPECT_EQ(changes().size(), 4u);
}

TEST_F(ComboBoxTest, NotifyingPostsTheEditAndItsId) {
    box.setSelection(1, true);
    EXPECT_TRUE(changes().empty());
    pump();
    const std::vector<Message> expected = {{ComboBox::changeMessage(), reinterpret_cast<WPARAM>(edit), IDC_TEST_COMBO}};
    EXPECT_EQ(changes(), expected);
}

TEST_F(ComboBoxTest, LeftClickOpensTheListAndTakesTheChoice) {
    openLeft({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(box.getSelection(), 1);
    EXPECT_EQ(textOf(edit), "Synth");
    pump();
    ASSERT_EQ(questions().size(), 1u);
    EXPECT_EQ(questions()[0], (Message{ComboBox::validateMessage(), IDC_TEST_COMBO, 1}));
    ASSERT_EQ(changes().size(), 1u);
    EXPECT_EQ(changes()[0].wParam, reinterpret_cast<WPARAM>(edit));
    EXPECT_EQ(panel.count(UM_RETURN_FOCUS), 1u);
    EXPECT_NE(GetFocus(), edit);
}

TEST_F(ComboBoxTest, RightClickOpensTheListAlways) {
    box.setLeftClickOpens(false);
    openRight({VK_DOWN, VK_RETURN});
    EXPECT_EQ(box.getSelection(), 0);
    EXPECT_EQ(box.getSelectedValue(), -1);
    EXPECT_EQ(textOf(edit), "Default");
}

TEST_F(ComboBoxTest, LeftClickCanBeTheEditsOwn) {
    box.setLeftClickOpens(false);
    clickLeft(edit, 5, 5);
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 0u);
    EXPECT_EQ(GetFocus(), edit);
}

TEST_F(ComboBoxTest, ClosingWithoutAChoiceChangesNothing) {
    box.setSelection(3, false);
    openLeft({VK_ESCAPE});
    pump();
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 1u);
    EXPECT_EQ(box.getSelection(), 3);
    EXPECT_TRUE(questions().empty());
    EXPECT_TRUE(changes().empty());
}

TEST_F(ComboBoxTest, RefusedChoiceChangesNothing) {
    panel.answer = [](const Message& message) -> LRESULT { return message.id == ComboBox::validateMessage() ? 1 : 0; };
    box.setSelection(3, false);
    openLeft({VK_DOWN, VK_RETURN});
    SendMessageA(edit, WM_MOUSEWHEEL, WHEEL_UP, 0);
    pump();
    EXPECT_EQ(questions().size(), 2u);
    EXPECT_EQ(box.getSelection(), 3);
    EXPECT_TRUE(changes().empty());
}

TEST_F(ComboBoxTest, DisabledItemCannotBeChosen) {
    openLeft({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN, VK_ESCAPE});
    pump();
    EXPECT_EQ(box.getSelection(), -1);
    EXPECT_TRUE(questions().empty());
}

TEST_F(ComboBoxTest, ListStandsBelowTheEditWithTheCurrentItemMarked) {
    box.setSelection(1, false);
    RECT menu{};
    int items = 0;
    panel.answer = [&](const Message& message) -> LRESULT {
        if (message.id == WM_ENTERIDLE && items == 0) {
            const auto window = reinterpret_cast<HWND>(message.lParam);
            const auto handle = reinterpret_cast<HMENU>(SendMessageA(window, 0x1e1 /* MN_GETHMENU */, 0, 0));
            items = GetMenuItemCount(handle);
            GetWindowRect(window, &menu);
            const Picture picture(window);
            picture.save("combo-menu");
            PostMessageA(panel.getWindowHandle(), WM_KEYDOWN, VK_ESCAPE, 1);
        }
        return 0;
    };
    openLeft({});
    EXPECT_EQ(items, 4);
    RECT rect{};
    GetWindowRect(edit, &rect);
    EXPECT_EQ(menu.left, rect.left);
    EXPECT_EQ(menu.top, rect.bottom);
}

TEST_F(ComboBoxTest, ClickThatClosesTheListDoesNotOpenItAgain) {
    openLeft({VK_ESCAPE});
    ASSERT_EQ(panel.count(WM_ENTERMENULOOP), 1u);
    // The press that closed it is sent here before any timer is looked at.
    SetFocus(edit);
    SendMessageA(edit, WM_LBUTTONDOWN, 0, 0);
    SendMessageA(edit, WM_LBUTTONDBLCLK, 0, 0);
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 1u);
    // The edit of this template can't be typed into, so the panel gets the focus and passes it on.
    EXPECT_GE(panel.count(WM_SETFOCUS), 1u);
    bool opened = false;
    EXPECT_TRUE(pumpUntil([&] {
        SendMessageA(edit, WM_LBUTTONDOWN, 0, 0);
        opened = panel.count(WM_ENTERMENULOOP) == 2;
        return opened;
    }));
}

TEST_F(ComboBoxTest, EditThatTakesTextKeepsTheFocusAtASecondClick) {
    ComboBox other{gui.getGdiManager()};
    const HWND field = panel.item(IDC_TEST_EDIT);
    other.attach(field, 0, 30);
    other.addItem(1, "One");
    SendMessageA(field, WM_LBUTTONDOWN, 0, 0);
    SetFocus(field);
    SendMessageA(field, WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 1u);
    EXPECT_EQ(GetFocus(), field);
    EXPECT_EQ(panel.count(WM_SETFOCUS), 0u);
    SetPropA(field, "READONLY", reinterpret_cast<HANDLE>(1));
    SendMessageA(field, WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(panel.count(WM_SETFOCUS), 1u);
}

TEST_F(ComboBoxTest, DisabledOneAnswersNothing) {
    box.setSelection(0, false);
    box.setEnabled(false);
    EXPECT_FALSE(IsWindowEnabled(edit));
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN})
        SendMessageA(edit, message, 0, 0);
    SendMessageA(edit, WM_MOUSEWHEEL, WHEEL_DOWN, 0);
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 0u);
    EXPECT_EQ(box.getSelection(), 0);
    box.setEnabled(true);
    SendMessageA(edit, WM_MOUSEWHEEL, WHEEL_DOWN, 0);
    EXPECT_EQ(box.getSelection(), 1);
}

TEST_F(ComboBoxTest, EmptyListOpensNothing) {
    box.clearItems();
    SendMessageA(edit, WM_LBUTTONDOWN, 0, 0);
    SendMessageA(edit, UM_MOUSEWHEEL, WHEEL_DOWN, 0);
    pump();
    EXPECT_EQ(box.getSelection(), -1);
    EXPECT_TRUE(changes().empty());
}

TEST_F(ComboBoxTest, WheelGoesThroughTheEnabledItemsAndStopsAtTheEnds) {
    struct Step {
        WPARAM wheel;
        int selection;
    };
    const Step steps[] = {{WHEEL_UP, -1},  {WHEEL_DOWN, 0}, {WHEEL_DOWN, 1}, {WHEEL_DOWN, 3},
                          {WHEEL_DOWN, 3}, {WHEEL_UP, 1},   {WHEEL_UP, 0},   {WHEEL_UP, 0},
                          {WHEEL_DOWN, 1}, {0, 1},          {WHEEL_DOWN, 3}, {WHEEL_DOWN, 3}};
    std::size_t changed = 0;
    int before = -1;
    for (const UINT message : {UINT{WM_MOUSEWHEEL}, UM_MOUSEWHEEL}) {
        box.setSelection(-1, false);
        before = -1;
        for (const Step& step : steps) {
            SendMessageA(edit, message, step.wheel, 0);
            pump();
            EXPECT_EQ(box.getSelection(), step.selection);
            changed += step.selection != before ? 1 : 0;
            before = step.selection;
            EXPECT_EQ(changes().size(), changed);
            EXPECT_EQ(questions().size(), changed);
        }
    }
}

TEST_F(ComboBoxTest, ListThatChangesWhileItShowsGivesWhatWasChosen) {
    panel.answer = [&](const Message& message) -> LRESULT {
        if (message.id == WM_ENTERMENULOOP) {
            box.clearItems();
            box.addItem(4, "Synth");
            box.addItem(9, "Drums");
        }
        return 0;
    };
    openLeft({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(box.getSelectedValue(), 4) << "the second of the list that was shown, and the first of the new one";
}

TEST_F(ComboBoxTest, ItemThatGoesWhileTheListShowsIsNotChosen) {
    panel.answer = [&](const Message& message) -> LRESULT {
        if (message.id == WM_ENTERMENULOOP) {
            box.clearItems();
            box.addItem(9, "Drums");
        }
        return 0;
    };
    openLeft({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(box.getSelection(), -1);
}

TEST_F(ComboBoxTest, EditMayGoWhileItsListShows) {
    auto lost = std::make_unique<ComboBox>(gui.getGdiManager());
    const HWND field = panel.item(IDC_TEST_EDIT);
    lost->attach(field, 0, 30);
    lost->addItem(1, "One");
    panel.answer = [&](const Message& message) -> LRESULT {
        if (message.id == WM_ENTERMENULOOP) {
            DestroyWindow(field);
            lost.reset();
        }
        return 0;
    };
    panel.menuKeys = {VK_DOWN, VK_RETURN};
    SendMessageA(field, WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(lost, nullptr);
    EXPECT_EQ(countStrayTimers(), 0);
    EXPECT_TRUE(questions().empty());
}

TEST_F(ComboBoxTest, EditMayGoWhenTheParentIsAsked) {
    panel.answer = [&](const Message& message) -> LRESULT {
        if (message.id == ComboBox::validateMessage())
            DestroyWindow(edit);
        return 0;
    };
    SendMessageA(edit, WM_MOUSEWHEEL, WHEEL_DOWN, 0);
    EXPECT_EQ(box.getWindowHandle(), nullptr);
    EXPECT_EQ(box.getSelection(), -1);
}

TEST_F(ComboBoxTest, OpensOnAnotherEditAfterTheFirstIsGone) {
    SendMessageA(edit, WM_LBUTTONDOWN, 0, 0);
    DestroyWindow(edit);
    box.attach(panel.item(IDC_TEST_EDIT), 0, 30);
    SendMessageA(panel.item(IDC_TEST_EDIT), WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 2u);
}

TEST_F(ComboBoxTest, KeysGoToTheParent) {
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP}) {
        EXPECT_EQ(SendMessageA(edit, message, 'A', 0x11), 0);
        const std::vector<Message> expected = {{message, 'A', 0x11}};
        EXPECT_EQ(panel.received(message), expected);
    }
}

TEST_F(ComboBoxTest, RightButtonGivesNoMenuOfTheSystems) {
    box.setEnabled(true);
    box.clearItems();
    SendMessageA(edit, WM_RBUTTONUP, 0, 0);
    SendMessageA(edit, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(edit), 0);
    EXPECT_EQ(panel.count(WM_ENTERMENULOOP), 0u);
}

TEST_F(ComboBoxTest, EditHasItsProcedureBackAfterwards) {
    HWND field = panel.item(IDC_TEST_EDIT);
    const LONG_PTR before = GetWindowLongPtrA(field, GWLP_WNDPROC);
    {
        ComboBox other{gui.getGdiManager()};
        other.attach(field, 0, 30);
        EXPECT_NE(GetWindowLongPtrA(field, GWLP_WNDPROC), before);
    }
    EXPECT_EQ(GetWindowLongPtrA(field, GWLP_WNDPROC), before);
    EXPECT_EQ(GetPropA(field, "ComboBox"), nullptr);
    DestroyWindow(edit);
    EXPECT_EQ(box.getWindowHandle(), nullptr);
    box.setSelection(0, true);
}

constexpr COLORREF ON = GdiManager::LIGHT_LIGHT_GREEN;
constexpr COLORREF OFF = GdiManager::DARK_GREEN;

class ComboButtonTest : public WidgetTest {
protected:
    ComboButton button{gui, {"T", "T1", "T2"}};

    COLORREF ground() { return Picture(button.getWindowHandle()).at(1, 1); }
};

TEST_F(ComboButtonTest, TakesThePlaceOfItsPlaceholder) {
    const HWND placeholder = panel.item(IDC_TEST_COMBO_BUTTON);
    const RECT place = TestSupport::rectInParent(placeholder);
    button.create(placeholder);
    EXPECT_FALSE(IsWindow(placeholder));
    EXPECT_EQ(panel.item(IDC_TEST_COMBO_BUTTON), button.getWindowHandle());
    const RECT rect = TestSupport::rectInParent(button.getWindowHandle());
    EXPECT_TRUE(EqualRect(&rect, &place));
    char name[50] = "";
    GetClassNameA(button.getWindowHandle(), name, sizeof name);
    EXPECT_STREQ(name, "MIRELComboButton_Tamsel2008");
}

TEST_F(ComboButtonTest, CanHaveAnotherId) {
    button.create(panel.item(IDC_TEST_COMBO_BUTTON), 106);
    EXPECT_EQ(GetDlgCtrlID(button.getWindowHandle()), 106);
    EXPECT_EQ(button.getId(), 106);
}

TEST_F(ComboButtonTest, CyclesWithEachPress) {
    button.create(panel.item(IDC_TEST_COMBO_BUTTON));
    const int expected[] = {1, 2, 0, 1};
    std::size_t presses = 0;
    for (const int selected : expected) {
        clickLeft(button.getWindowHandle(), 3, 3);
        EXPECT_EQ(button.getSelected(), selected);
        EXPECT_EQ(ground(), selected == 0 ? OFF : ON);
        pump();
        ++presses;
        ASSERT_EQ(panel.count(ComboButton::changeMessage()), presses);
        EXPECT_EQ(panel.received(ComboButton::changeMessage()).back(),
                  (Message{ComboButton::changeMessage(), 0, IDC_TEST_COMBO_BUTTON}));
    }
    EXPECT_EQ(gui.focusRequests, 4);
}

TEST_F(ComboButtonTest, PressOfNoStateBeginsWithTheFirst) {
    button.create(panel.item(IDC_TEST_COMBO_BUTTON));
    for (const int selected : {INT_MAX, INT_MIN, -5, -1, 3}) {
        button.setSelected(selected);
        clickLeft(button.getWindowHandle(), 3, 3);
        EXPECT_EQ(button.getSelected(), 0) << selected;
    }
}

TEST_F(ComboButtonTest, WithoutAWindowItPaintsNoOther) {
    ValidateRect(top.handle(), nullptr);
    button.setSelected(1);
    EXPECT_FALSE(GetUpdateRect(top.handle(), nullptr, FALSE));
}

TEST_F(ComboButtonTest, OneStateIsPressedWithoutAChange) {
    ComboButton lone{gui, {"X"}};
    lone.create(panel.item(IDC_TEST_COMBO_BUTTON));
    clickLeft(lone.getWindowHandle(), 3, 3);
    pump();
    EXPECT_EQ(lone.getSelected(), 0);
    EXPECT_EQ(panel.count(ComboButton::changeMessage()), 1u);
}

TEST_F(ComboButtonTest, WithoutStatesItDoesNothing) {
    ComboButton none{gui, {}};
    none.create(panel.item(IDC_TEST_COMBO_BUTTON));
    clickLeft(none.getWindowHandle(), 3, 3);
    pump();
    EXPECT_EQ(panel.count(ComboButton::changeMessage()), 0u);
    const Picture picture(none.getWindowHandle());
    EXPECT_EQ(picture.count(OFF), picture.width() * picture.height());
}

TEST_F(ComboButtonTest, ShowsTheTextOfItsState) {
    button.create(panel.item(IDC_TEST_COMBO_BUTTON));
    const int one = Picture(button.getWindowHandle()).count(GdiManager::BLACK);
    EXPECT_GT(one, 3);
    button.setSelected(2);
    const Picture two(button.getWindowHandle());
    two.save("combo-button-two");
    EXPECT_GT(two.count(GdiManager::BLACK), one);
    button.setSelected(3);
    EXPECT_EQ(Picture(button.getWindowHandle()).count(GdiManager::BLACK), 0);
    EXPECT_EQ(panel.count(ComboButton::changeMessage()), 0u);
}

TEST_F(ComboButtonTest, MixedStateIsSplitInTheMiddle) {
    button.create(panel.item(IDC_TEST_COMBO_BUTTON));
    button.setSelected(5);
    SetPropA(button.getWindowHandle(), "GRAYTEXT", reinterpret_cast<HANDLE>(1));
    const Picture picture(button.getWindowHandle());
    const int half = picture.width() / 2;
    EXPECT_EQ(picture.count(OFF, {0, 0, half, picture.height()}), half * picture.height());
    EXPECT_EQ(picture.count(ON), (picture.width() - half) * picture.height());
}

TEST_F(ComboButtonTest, PointerAboveItAsksForHelp) {
    button.create(panel.item(IDC_TEST_COMBO_BUTTON));
    movePointer(button.getWindowHandle(), 3, 3);
    ASSERT_FALSE(gui.helpWindows.empty());
    EXPECT_EQ(gui.helpWindows.back(), button.getWindowHandle());
}

}
}
