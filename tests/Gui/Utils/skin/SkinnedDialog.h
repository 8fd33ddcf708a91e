#pragma once

#include "tests/support/win32/FakeMirelGui.h"
#include "tests/support/win32/TestWindows.h"

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

namespace Gui {

// A real dialog with the system's controls, to be skinned. It records what its own procedure gets.
class SkinnedDialog {
public:
    struct Message {
        UINT id;
        WPARAM wParam;
        LPARAM lParam;

        bool operator==(const Message&) const = default;
    };

    SkinnedDialog();
    ~SkinnedDialog();
    SkinnedDialog(const SkinnedDialog&) = delete;
    SkinnedDialog& operator=(const SkinnedDialog&) = delete;

    HWND handle() const { return m_dialog; }
    TestSupport::FakeMirelGui& gui() { return m_gui; }
    GdiManager& gdi() { return m_gui.getGdiManager(); }

    // Adds a visible control, its place in pixels of the client area. Ids count from 1.
    HWND add(const char* className, const char* text, DWORD style, const RECT& place, DWORD extendedStyle = 0);

    // Skins it with everything that was added, and forgets the messages.
    void skin();

    void forgetMessages() { m_messages.clear(); }
    std::vector<Message> received(UINT id) const;

    // How often a control sent this notification.
    int countNotifications(HWND control, WORD code) const;

    // Called before a message is recorded.
    std::function<void(const Message&)> onMessage;

private:
    static INT_PTR CALLBACK dialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

    TestSupport::FakeMirelGui m_gui;
    HWND m_dialog = nullptr;
    int m_controls = 0;
    std::vector<Message> m_messages;
};

// A picture in memory to draw on, white at first.
class Canvas {
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC dc() const { return m_dc; }
    COLORREF at(int x, int y) const { return GetPixel(m_dc, x, y); }

    // The pixels of a colour in a part, and the first row with one; -1 without any.
    int count(COLORREF colour, const RECT& part) const;
    int count(COLORREF colour) const { return count(colour, {0, 0, m_width, m_height}); }
    int firstRowWith(COLORREF colour) const;

private:
    int m_width;
    int m_height;
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

}
