#include "Platform/AutoResetEvent.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <thread>

namespace Platform {
namespace {

TEST(AutoResetEventTest, WindowsAnswerWhileTheirThreadWaits) {
    const HWND window = CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    AutoResetEvent event;
    LRESULT answer = 0;
    std::thread other([&] {
        answer = SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("asked"));
        event.set();
    });
    event.waitAnsweringWindows();
    other.join();
    EXPECT_EQ(answer, TRUE);
    DestroyWindow(window);
}

TEST(AutoResetEventTest, SetBeforeAWaitThatAnswersWindowsLetsItThrough) {
    AutoResetEvent event;
    event.set();
    event.waitAnsweringWindows();
}

}
}
