#include "Platform/MessageThread.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace Platform {
namespace {

constexpr UINT ASK = WM_APP;
constexpr UINT FILL = WM_APP + 1;
constexpr UINT END = WM_APP + 2;

TEST(MessageThreadAnswerTest, WindowsAnswerWhileAPostWaitsForRoom) {
    const HWND window = CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);

    MessageThread thread;
    const HANDLE isFull = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    int asked = 0;
    int filled = 0;
    thread.start("asking", [&] {
        for (MSG message; thread.get(message) && message.message != END;) {
            if (message.message == FILL)
                ++filled;
            if (message.message != ASK)
                continue;
            WaitForSingleObject(isFull, INFINITE);
            asked += SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("asked")) != 0;
        }
    });
    ASSERT_TRUE(thread.post(ASK, 0, 0));
    // The queue is full once the thread has taken its question, so that only the last post waits.
    int posted = 0;
    while (posted < static_cast<int>(MessageThread::CAPACITY))
        posted += thread.post(FILL, 0, 0);
    SetEvent(isFull);
    thread.postUntilAccepted(FILL, 0, 0);
    thread.stop(END);

    EXPECT_EQ(asked, 1);
    EXPECT_EQ(filled, posted + 1);

    CloseHandle(isFull);
    DestroyWindow(window);
}

}
}
