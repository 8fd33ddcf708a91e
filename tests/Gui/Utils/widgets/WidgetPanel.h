#pragma once

#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "tests/Gui/Utils/TemplateIds.h"
#include "tests/support/win32/FakeMirelGui.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

namespace Gui {

// The panel that holds a test's widgets. It records what it gets.
class WidgetPanel : public SkinPanel {
public:
    explicit WidgetPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_TEST_WIDGETS) {}

    INT_PTR dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
        messages.push_back({message, wParam, lParam});
        if (message == WM_ENTERMENULOOP)
            for (const WPARAM key : std::exchange(menuKeys, {VK_ESCAPE}))
                PostMessageA(window, WM_KEYDOWN, key, 1);
        if (answer) {
            if (const LRESULT result = answer(messages.back())) {
                SetWindowLongPtrA(window, DWLP_MSGRESULT, result);
                return TRUE;
            }
        }
        return SkinPanel::dlgProc(window, message, wParam, lParam);
    }

    std::vector<TestSupport::TestWindow::Message> received(UINT id) const {
        std::vector<TestSupport::TestWindow::Message> found;
        for (const auto& message : messages)
            if (message.id == id)
                found.push_back(message);
        return found;
    }

    std::size_t count(UINT id) const { return received(id).size(); }
    HWND item(int id) const { return GetDlgItem(getWindowHandle(), id); }

    std::vector<TestSupport::TestWindow::Message> messages;

    // The keys that the next menu gets; the default closes it.
    std::vector<WPARAM> menuKeys = {VK_ESCAPE};

    // What it answers; 0 is passed on.
    std::function<LRESULT(const TestSupport::TestWindow::Message&)> answer;
};

// A desk's window showing such a panel, with a real pointer that is nowhere near at first.
class WidgetTest : public testing::Test {
protected:
    WidgetTest() {
        panel.createWnd(GetModuleHandleA(nullptr), top.handle());
        panel.showWnd(true);
        // A panel that is the root of its tree makes the window around it as small as it can.
        SetWindowPos(top.handle(), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
        TestSupport::releaseButtons();
        SetCursorPos(0, 0);
        TestSupport::pump();
        gui.helpWindows.clear();
        panel.messages.clear();
        Skinner::startHook();
    }

    ~WidgetTest() override {
        Skinner::endHook();
        TestSupport::releaseButtons();
    }

    // How many timers of this thread run without a window.
    int countStrayTimers() const {
        constexpr UINT_PTR LATER = 77;
        constexpr UINT LATER_MILLISECONDS = 100;  // All others have shown up by then.
        SetTimer(panel.getWindowHandle(), LATER, LATER_MILLISECONDS, nullptr);
        int strays = 0;
        bool done = false;
        EXPECT_TRUE(TestSupport::eventually([&] {
            MSG message;
            while (!done && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
                strays += message.message == WM_TIMER && !message.hwnd ? 1 : 0;
                done = message.message == WM_TIMER && message.wParam == LATER;
                DispatchMessageA(&message);
            }
            return done;
        }));
        KillTimer(panel.getWindowHandle(), LATER);
        return strays;
    }

    TestSupport::TestWindow top{500, 400};
    TestSupport::FakeMirelGui gui;
    WidgetPanel panel{gui};
};

}
