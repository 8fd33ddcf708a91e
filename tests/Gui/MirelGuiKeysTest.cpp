#include "Gui/Utils/windows/UserMessages.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::pump;
using TestSupport::pumpUntil;
using TestSupport::TestWindow;
using TestSupport::WindowDesk;
using Strings = std::vector<std::string>;

constexpr LPARAM FIRST = 0x00000001;
constexpr LPARAM REPEAT = 0x40000001;
constexpr LPARAM EXTENDED = 0x01000001;
constexpr LPARAM RELEASED = static_cast<LPARAM>(0xc0000001);

// Keys of the computer that are held for a while.
class HeldKey {
public:
    explicit HeldKey(WORD key) : m_key(key) { send(0); }
    ~HeldKey() { release(); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

    void release() {
        if (std::exchange(m_isDown, false))
            send(KEYEVENTF_KEYUP);
    }

private:
    void send(DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = m_key;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
        pumpUntil([this, flags] { return (GetAsyncKeyState(m_key) < 0) == (flags == 0); });
        pump();
    }

    WORD m_key;
    bool m_isDown = true;
};

class MirelGuiKeysTest : public testing::Test {
protected:
    MirelGuiKeysTest() {
        desk.start();
        desk.open();
        focus();
    }

    void focus() {
        SetForegroundWindow(desk.host.handle());
        desk.gui().setFocus();
        desk.settle();
        desk.takeKeys();
    }

    void send(UINT message, WPARAM key, LPARAM lParam) { SendMessageA(desk.window(), message, key, lParam); }

    ComputerInput::ComputerKeyboardCtl& keyboard() {
        auto& panel =
            dynamic_cast<ComputerInput::ComputerInputPanel&>(desk.gui().getComputerInputPanelAsPresetGuiOwner());
        return panel.getMainPanel().getComputerKeyboardCtl();
    }

    WindowDesk desk;
};

TEST_F(MirelGuiKeysTest, AKeyOfTheComputerReachesTheDesk) {
    HeldKey key('A');
    key.release();
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 0", "up 65 0"}));
}

TEST_F(MirelGuiKeysTest, AKeyWithAltReachesTheDeskToo) {
    send(WM_SYSKEYDOWN, 'A', FIRST);
    send(WM_SYSKEYUP, 'A', RELEASED);
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 0", "up 65 0"}));
}

TEST_F(MirelGuiKeysTest, ARepeatIsReportedAsOne) {
    send(WM_KEYDOWN, 'A', FIRST);
    send(WM_KEYDOWN, 'A', REPEAT);
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 0", "down 65 0 repeat"}));
}

TEST_F(MirelGuiKeysTest, TheTwoKeysOfOneVirtualKeyAreDistinguished) {
    send(WM_KEYDOWN, VK_RETURN, FIRST);
    send(WM_KEYDOWN, VK_RETURN, EXTENDED);
    send(WM_SYSKEYDOWN, VK_MENU, FIRST);
    send(WM_SYSKEYDOWN, VK_MENU, EXTENDED);
    send(WM_KEYDOWN, VK_CONTROL, FIRST);
    send(WM_KEYDOWN, VK_CONTROL, EXTENDED);
    EXPECT_EQ(desk.takeKeys(),
              (Strings{"down 13 0", "down 226 0", "down 164 0", "down 165 0", "down 17 0", "down 225 0"}));
    send(WM_KEYUP, VK_RETURN, EXTENDED);
    send(WM_SYSKEYUP, VK_MENU, EXTENDED);
    send(WM_KEYUP, VK_CONTROL, EXTENDED);
    EXPECT_EQ(desk.takeKeys(), (Strings{"up 226 0", "up 165 0", "up 225 0"}));
}

TEST_F(MirelGuiKeysTest, ModifiersGoWithTheKey) {
    const HeldKey control(VK_CONTROL);
    const HeldKey shift(VK_SHIFT);
    desk.takeKeys();
    send(WM_KEYDOWN, 'A', FIRST);
    send(WM_KEYUP, 'A', RELEASED);
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 3", "up 65 3"}));
}

TEST_F(MirelGuiKeysTest, AModifierModifiesItselfOnlyAsItComesUp) {
    const HeldKey control(VK_CONTROL);
    EXPECT_EQ(desk.takeKeys(), Strings{"down 17 0"});
    send(WM_KEYDOWN, VK_CONTROL, EXTENDED);
    send(WM_KEYUP, VK_CONTROL, RELEASED);
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 225 0", "up 17 2"}));
}

TEST_F(MirelGuiKeysTest, AShiftDuringAnotherKeyIsDropped) {
    {
        const HeldKey letter('Q');
        desk.takeKeys();
        send(WM_KEYDOWN, VK_SHIFT, FIRST);
        EXPECT_EQ(desk.takeKeys(), Strings());
    }
    desk.takeKeys();
    send(WM_KEYDOWN, VK_SHIFT, FIRST);
    EXPECT_EQ(desk.takeKeys(), Strings{"down 16 0"});
}

TEST_F(MirelGuiKeysTest, AShiftDuringControlCounts) {
    const HeldKey control(VK_CONTROL);
    desk.takeKeys();
    send(WM_KEYDOWN, VK_SHIFT, FIRST);
    EXPECT_EQ(desk.takeKeys(), Strings{"down 16 2"});
}

TEST_F(MirelGuiKeysTest, TheReleaseOfTheLeftWindowsKeyIsDropped) {
    send(WM_KEYUP, VK_LWIN, RELEASED);
    EXPECT_EQ(desk.takeKeys(), Strings());
    send(WM_KEYUP, VK_RWIN, RELEASED);
    EXPECT_EQ(desk.takeKeys(), Strings{"up 92 0"});
}

TEST_F(MirelGuiKeysTest, AMessageWithoutAKeyIsPassedOnWithoutAMark) {
    send(WM_KEYDOWN, static_cast<WPARAM>(-1), FIRST);
    EXPECT_EQ(desk.takeKeys(), Strings{"down -1 0"});
    EXPECT_FALSE(keyboard().isPressed(Key()));
}

TEST_F(MirelGuiKeysTest, KeysAreMarkedWhileTheyAreDown) {
    const Key plain(65, false, false, false, false);
    const Key modified(65, false, true, false, false);
    send(WM_KEYDOWN, 'A', FIRST);
    EXPECT_TRUE(keyboard().isPressed(plain));
    {
        const HeldKey control(VK_CONTROL);
        send(WM_KEYDOWN, 'A', REPEAT);
        EXPECT_TRUE(keyboard().isPressed(modified));
    }
    send(WM_KEYUP, 'A', RELEASED);
    EXPECT_FALSE(keyboard().isPressed(plain));
    EXPECT_FALSE(keyboard().isPressed(modified));
}

TEST_F(MirelGuiKeysTest, AMarkEndsWithItsModifiersWhereReleasesHaveThem) {
    desk.mirel().getComputerInputMessageManager().postSetUseKeyUpMod(true);
    desk.settle();
    auto& panel = dynamic_cast<ComputerInput::ComputerInputPanel&>(desk.gui().getComputerInputPanelAsPresetGuiOwner());
    panel.setAllKeys(panel.getKeyConfigurations(), true);
    const Key plain(65, false, false, false, false);
    send(WM_KEYDOWN, 'A', FIRST);
    {
        const HeldKey control(VK_CONTROL);
        send(WM_KEYUP, 'A', RELEASED);
        EXPECT_TRUE(keyboard().isPressed(plain));
    }
    send(WM_KEYUP, 'A', RELEASED);
    EXPECT_FALSE(keyboard().isPressed(plain));
}

TEST_F(MirelGuiKeysTest, KeysAreReleasedWhenAnotherProgramComesToTheFront) {
    const HeldKey first('A');
    const HeldKey second('S');
    desk.takeKeys();
    const TestWindow other;
    SetForegroundWindow(other.handle());
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), (Strings{"up 65 0", "up 83 0"}));
    EXPECT_FALSE(keyboard().isPressed(Key(65, false, false, false, false)));
}

TEST_F(MirelGuiKeysTest, AKeyThatWasReleasedWithTheFocusIsNotReleasedAgain) {
    const TestWindow other;
    SetForegroundWindow(desk.host.handle());
    desk.gui().setFocus();
    desk.settle();
    send(WM_KEYDOWN, 'A', FIRST);
    SetForegroundWindow(other.handle());
    desk.settle();
    SetForegroundWindow(desk.host.handle());
    desk.gui().setFocus();
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 0", "up 65 0"}));
    send(WM_KEYDOWN, 'A', REPEAT);
    send(WM_KEYUP, 'A', RELEASED);
    EXPECT_EQ(desk.takeKeys(), Strings{});
    send(WM_KEYDOWN, 'A', FIRST);
    send(WM_KEYUP, 'A', RELEASED);
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 0", "up 65 0"}));
}

TEST_F(MirelGuiKeysTest, AReleasedKeyKeepsTheModifiersOfItsPress) {
    HeldKey control(VK_CONTROL);
    send(WM_KEYDOWN, 'A', FIRST);
    control.release();
    desk.takeKeys();
    SetFocus(desk.host.handle());
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), Strings{"up 65 2"});
}

TEST_F(MirelGuiKeysTest, KeysAreReleasedWhenADialogOpens) {
    const HeldKey key('A');
    desk.takeKeys();
    struct {
        DLGTEMPLATE dialog;
        WORD none[3];
    } description{{WS_POPUP | WS_VISIBLE | WS_CAPTION, 0, 0, 10, 10, 60, 40}, {}};
    const auto procedure = [](HWND dialog, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG)
            PostMessageA(dialog, WM_APP, 0, 0);
        if (message == WM_APP)
            EndDialog(dialog, 1);
        return message == WM_INITDIALOG;
    };
    DialogBoxIndirectParamA(GetModuleHandleA(nullptr), &description.dialog, desk.host.handle(), procedure, 0);
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), Strings{"up 65 0"});
}

TEST_F(MirelGuiKeysTest, KeysAreReleasedWhenAMenuOpens) {
    const HeldKey key('A');
    desk.takeKeys();
    const HMENU menu = CreatePopupMenu();
    AppendMenuA(menu, MF_STRING, 1, "One");
    TestSupport::keyForMenu(desk.window(), VK_ESCAPE);
    TrackPopupMenu(menu, TPM_RETURNCMD, 60, 60, 0, desk.window(), nullptr);
    DestroyMenu(menu);
    desk.settle();
    const Strings keys = desk.takeKeys();
    ASSERT_FALSE(keys.empty());
    EXPECT_EQ(keys.front(), "up 65 0");
}

TEST_F(MirelGuiKeysTest, KeysAreReleasedWhenTheWindowIsDragged) {
    send(WM_KEYDOWN, 'A', FIRST);
    SendMessageA(desk.host.handle(), WM_ENTERSIZEMOVE, 0, 0);
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 0", "up 65 0"}));
}

TEST_F(MirelGuiKeysTest, KeysAreReleasedWhenTheWindowGoes) {
    const TestWindow other;
    SetForegroundWindow(other.handle());  // The hook delivers them.
    desk.settle();
    desk.takeKeys();
    send(WM_KEYDOWN, 'A', FIRST);
    send(WM_KEYDOWN, 'S', FIRST);
    desk.takeKeys();
    desk.gui().destroy();
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), (Strings{"up 65 0", "up 83 0"}));
}

// Another program has the keyboard, and its keys came only through the hook.
TEST_F(MirelGuiKeysTest, KeysOfTheHookAreReleasedWhenItEnds) {
    const TestWindow other;
    SetForegroundWindow(other.handle());
    desk.settle();
    for (const bool byControlKey : {false, true}) {
        desk.tell(33266, 1);
        send(WM_KEYDOWN, 'A', FIRST);
        desk.takeKeys();
        if (byControlKey)
            send(KeyboardHookProxy::getStateMessage(), 0, 0);
        else
            desk.tell(33266, 0);
        desk.settle();
        EXPECT_EQ(desk.takeKeys(), Strings{"up 65 0"}) << byControlKey;
    }
}

TEST_F(MirelGuiKeysTest, KeysStayDownWhenTheHookEndsUnderTheWindowsOwnKeyboard) {
    desk.tell(33266, 1);
    send(WM_KEYDOWN, 'A', FIRST);
    desk.takeKeys();
    desk.tell(33266, 0);
    EXPECT_EQ(desk.takeKeys(), Strings());
}

TEST_F(MirelGuiKeysTest, AKeyThatIsUpIsNotReleasedAgain) {
    send(WM_KEYDOWN, 'A', FIRST);
    send(WM_KEYUP, 'A', RELEASED);
    desk.takeKeys();
    SetFocus(desk.host.handle());
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), Strings());
}

TEST_F(MirelGuiKeysTest, TheDesksOwnFocusControlKeepsTheKeys) {
    send(WM_KEYDOWN, 'A', FIRST);
    desk.takeKeys();
    SetFocus(GetDlgItem(desk.window(), 116));
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), Strings());
}

TEST_F(MirelGuiKeysTest, AClickAndARequestGiveTheKeyboardToTheWindow) {
    for (const UINT message : {UINT{WM_LBUTTONDOWN}, UM_RETURN_FOCUS}) {
        SetFocus(desk.host.handle());
        send(message, 0, 0);
        EXPECT_EQ(GetFocus(), desk.window()) << message;
    }
}

TEST_F(MirelGuiKeysTest, AltWithAKeyMakesNoSound) {
    EXPECT_EQ(SendMessageA(desk.window(), WM_SYSCHAR, 'a', 0x20000001), 0);
}

TEST_F(MirelGuiKeysTest, ItsGroundIsBlack) {
    const HDC dc = GetDC(desk.window());
    EXPECT_EQ(SendMessageA(desk.window(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), 1);
    ReleaseDC(desk.window(), dc);
    const TestSupport::Picture picture(desk.window());
    EXPECT_EQ(picture.at(1, 1), GdiManager::BLACK);
}

TEST_F(MirelGuiKeysTest, TheWheelGoesToWhatIsUnderThePointer) {
    RECT rect;
    GetWindowRect(desk.host.handle(), &rect);
    const LPARAM place = MAKELPARAM(rect.right - 20, rect.bottom - 20);  // Beside the desk's window.
    send(WM_MOUSEWHEEL, 0x00780008, place);
    const std::vector<TestWindow::Message> expected = {{UM_MOUSEWHEEL, 0x00780008, place}};
    EXPECT_EQ(desk.host.received(UM_MOUSEWHEEL), expected);
}

class MirelGuiPluginTest : public testing::Test {
protected:
    MirelGuiPluginTest() {
        desk.start();
        desk.open(true);
        SetForegroundWindow(desk.host.handle());
        desk.gui().setFocus();
        desk.settle();
        desk.takeKeys();
    }

    WindowDesk desk;
};

TEST_F(MirelGuiPluginTest, TheHiddenControlHasTheKeyboard) {
    EXPECT_TRUE(desk.gui().isVstPlugin());
    EXPECT_EQ(GetFocus(), GetDlgItem(desk.window(), 116));
}

TEST_F(MirelGuiPluginTest, KeysOfTheHiddenControlReachTheDesk) {
    HeldKey key('A');
    key.release();
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 65 0", "up 65 0"}));
    SendMessageA(GetFocus(), WM_SYSKEYDOWN, 'B', FIRST);
    SendMessageA(GetFocus(), WM_SYSKEYUP, 'B', RELEASED);
    EXPECT_EQ(desk.takeKeys(), (Strings{"down 66 0", "up 66 0"}));
}

TEST_F(MirelGuiPluginTest, TheWheelOfTheHiddenControlGoesToWhatIsUnderThePointer) {
    RECT rect;
    GetWindowRect(desk.host.handle(), &rect);
    SendMessageA(GetFocus(), WM_MOUSEWHEEL, 0x00780000, MAKELPARAM(rect.right - 20, rect.bottom - 20));
    EXPECT_EQ(desk.host.count(UM_MOUSEWHEEL), 1u);
}

TEST_F(MirelGuiPluginTest, KeysAreReleasedWhenTheHostTakesTheKeyboard) {
    const HeldKey key('A');
    desk.takeKeys();
    SetFocus(desk.host.handle());
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), Strings{"up 65 0"});
}

}
}
