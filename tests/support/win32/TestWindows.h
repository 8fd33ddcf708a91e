// Windows for tests: messages, the pointer and the keyboard, and what the screen shows.
#pragma once

#include "tests/support/Eventually.h"

#include <windows.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace TestSupport {

// Dispatches every message that waits for this thread.
void pump();

// Pumps until the condition holds. False after a limit that only a hang reaches.
template <class Condition>
bool pumpUntil(Condition condition) {
    return eventually([&] {
        pump();
        return condition();
    });
}

// A visible window of this thread that records what it gets.
class TestWindow {
public:
    struct Message {
        UINT id;
        WPARAM wParam;
        LPARAM lParam;

        bool operator==(const Message&) const = default;
    };

    explicit TestWindow(int width = 400, int height = 300);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    HWND handle() const { return m_window; }

    // The messages with this number that came so far, in order.
    std::vector<Message> received(UINT id) const;
    std::size_t count(UINT id) const { return received(id).size(); }
    void forgetMessages() { m_messages.clear(); }

    // What the window answers instead of the system; 0 leaves it to the system.
    std::function<LRESULT(const Message&)> answer;

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window = nullptr;
    std::vector<Message> m_messages;
};

// The pixels of a window's client area, after it has been painted.
class Picture {
public:
    explicit Picture(HWND window);

    int width() const { return m_width; }
    int height() const { return m_height; }

    // Black beyond the edges.
    COLORREF at(int x, int y) const;

    // How many pixels in a part have this colour.
    int count(COLORREF colour, const RECT& part) const;
    int count(COLORREF colour) const { return count(colour, {0, 0, m_width, m_height}); }

    // The first row, from the top, with a pixel of this colour; -1 if there is none.
    int firstRowWith(COLORREF colour) const;

    // For looking at: writes NAME.bmp into the folder that the variable MIREL_SHOTS names, if it is set.
    void save(const std::string& name) const;

private:
    int m_width;
    int m_height;
    std::vector<DWORD> m_pixels;
};

// A window's rectangle in its parent's client area.
RECT rectInParent(HWND window);

// Where a point of a window's client area lies on the screen.
POINT onScreen(HWND window, int x, int y);

// Move the pointer and press buttons through the system's own input. Each pumps until that has arrived.
void movePointer(HWND window, int x, int y);
void mouseButton(DWORD flags);  // MOUSEEVENTF_LEFTDOWN and the like.
void clickLeft(HWND window, int x, int y);
void releaseButtons();  // Whichever are down.

// Queues a key press for a menu that is about to open on this window.
void keyForMenu(HWND owner, WPARAM key);

// [any other] Waits for a menu that a thread shows, and ends it; returns whether there was one. What it posts may
// arrive late: the thread must pump before it shows another.
bool endMenuOf(DWORD thread);

// Does something on another thread, which may see a dialog of this one; the destructor waits for it.
class OtherThread {
public:
    explicit OtherThread(std::function<void()> work);
    ~OtherThread();
    OtherThread(const OtherThread&) = delete;
    OtherThread& operator=(const OtherThread&) = delete;

private:
    HANDLE m_thread;
    std::function<void()> m_work;
};

// [any] Waits for a visible dialog of this process that the condition accepts. Null after the limit.
HWND waitForDialog(const std::function<bool(HWND)>& condition);

// [any] The text of a window, even of another thread's.
std::string textOf(HWND window);

}
