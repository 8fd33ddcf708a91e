#include "Platform/CriticalSection.h"

#include "Platform/AutoResetEvent.h"
#include "Platform/MessageThread.h"
#include "tests/support/Eventually.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>

namespace {

using TestSupport::eventually;

std::atomic<int> windowMessages{0};

LRESULT CALLBACK countMessages(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP)
        windowMessages.fetch_add(1);
    return DefWindowProcA(window, message, wParam, lParam);
}

// A thread with a window that waits for a section.
class WindowThread {
public:
    explicit WindowThread(CriticalSection& section)
        : m_thread([this, &section] {
              const HWND window =
                  CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
              SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&countMessages));
              m_window.store(window);
              m_entered = section.waitWithMessageLoop();
              if (m_entered)
                  section.leave();
              DestroyWindow(window);
          }) {}

    HWND window() {
        EXPECT_TRUE(eventually([&] { return m_window.load() != nullptr; }));
        return m_window.load();
    }

    bool join() {
        m_thread.join();
        return m_entered;
    }

private:
    std::atomic<HWND> m_window{nullptr};
    bool m_entered = false;
    std::thread m_thread;
};

TEST(WindowsCriticalSectionTest, WindowGetsItsMessagesWhileItsThreadWaits) {
    CriticalSection section;
    section.enter();
    windowMessages.store(0);
    WindowThread thread(section);
    const HWND window = thread.window();
    ASSERT_NE(window, nullptr);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(PostMessageA(window, WM_APP, 0, 0));
    EXPECT_TRUE(eventually([] { return windowMessages.load() == 3; }));
    section.leave();
    EXPECT_TRUE(thread.join());
}

TEST(WindowsCriticalSectionTest, QuitMessageOfTheSystemEndsTheWait) {
    CriticalSection section;
    section.enter();
    WindowThread thread(section);
    const HWND window = thread.window();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(PostThreadMessageA(GetWindowThreadProcessId(window, nullptr), WM_QUIT, 0, 0));
    EXPECT_FALSE(thread.join());
    section.leave();
}

}
