#include "Platform/WindowSink.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace Platform {
namespace {

TEST(WindowsWindowSinkTest, PostToARealWindowGoesIntoItsQueue) {
    const HWND window = CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(postToWindow(window, WM_APP + 1, 7, -7));
    MSG message;
    ASSERT_TRUE(PeekMessageA(&message, window, WM_APP + 1, WM_APP + 1, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
    EXPECT_EQ(message.lParam, -7);
    DestroyWindow(window);
    EXPECT_FALSE(postToWindow(window, WM_APP + 1, 0, 0)) << "the window is gone";
}

}
}
