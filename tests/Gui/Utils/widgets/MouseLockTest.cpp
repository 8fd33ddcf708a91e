#include "Gui/Utils/widgets/MouseLock.h"

#include "Gui/Utils/skin/GdiManager.h"
#include "tests/support/win32/FakeMirelGui.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::movePointer;
using TestSupport::pumpUntil;
using TestSupport::TestWindow;

// A window whose value follows the mouse by a lock that presses the right button.
class RightMouseLockTest : public testing::Test {
protected:
    RightMouseLockTest() {
        window.answer = [this](const TestWindow::Message& message) -> LRESULT {
            if (message.id == WM_RBUTTONDOWN)
                presses += lock.takeOwnPress() ? "own " : "user ";
            else if (message.id == WM_CAPTURECHANGED)
                lock.captureChanged(reinterpret_cast<HWND>(message.lParam));
            return 0;
        };
        movePointer(window.handle(), 50, 60);
    }
    ~RightMouseLockTest() override {
        lock.end();
        TestSupport::releaseButtons();
    }

    void startFree() {
        lock.startFree(window.handle(), 60, 7, gui.getGdiManager().getRedCursor());
        ASSERT_TRUE(pumpUntil([this] { return !presses.empty(); }));
    }
    static bool isRightDown() { return GetAsyncKeyState(VK_RBUTTON) < 0; }

    TestWindow window;
    TestSupport::FakeMirelGui gui;
    MouseLock lock{MouseLock::Button::RIGHT};
    std::string presses;
};

TEST_F(RightMouseLockTest, HoldsTheMouseByAPressOfItsOwn) {
    EXPECT_FALSE(lock.isLocked());
    startFree();
    EXPECT_TRUE(lock.isLocked());
    EXPECT_EQ(presses, "own ");
    EXPECT_TRUE(isRightDown());
    EXPECT_EQ(GetCapture(), window.handle());
    EXPECT_EQ(lock.getStartValue(), 7);
    EXPECT_EQ(lock.getDistance(45), 15);
    EXPECT_EQ(lock.getDistance(61), -1);
    EXPECT_EQ(GetPropA(window.handle(), "MYLDOWN"), nullptr);
}

TEST_F(RightMouseLockTest, EndLetsGoOfTheButton) {
    startFree();
    EXPECT_TRUE(lock.end());
    EXPECT_FALSE(lock.isLocked());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
    EXPECT_TRUE(pumpUntil([] { return !isRightDown(); }));
    EXPECT_FALSE(lock.end());
}

TEST_F(RightMouseLockTest, EndsWhenTheMouseIsTakenAway) {
    startFree();
    const TestWindow other;
    SetCapture(other.handle());
    EXPECT_FALSE(lock.isLocked());
    EXPECT_TRUE(pumpUntil([] { return !isRightDown(); }));
    ReleaseCapture();
}

TEST_F(RightMouseLockTest, TakesOnlyItsOwnPress) {
    startFree();
    lock.end();
    ASSERT_TRUE(pumpUntil([] { return !isRightDown(); }));
    TestSupport::mouseButton(MOUSEEVENTF_RIGHTDOWN);
    EXPECT_EQ(presses, "own user ");
    TestSupport::mouseButton(MOUSEEVENTF_RIGHTUP);
}

}
}
