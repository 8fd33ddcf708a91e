#pragma once

#include <windows.h>

namespace Gui {

// One of the system's edit controls with a custom procedure in front. [gui]
class EditBox {
public:
    EditBox() = default;
    EditBox(const EditBox&) = delete;
    EditBox& operator=(const EditBox&) = delete;
    virtual ~EditBox();

    // Passes everything on to the control.
    virtual LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // Creates the control as a child, in the parent's client area. The style is added to WS_CHILD.
    void create(HWND parent, DWORD style, int x, int y, int width, int height, const char* text);

    // Null if there is no control.
    HWND getWindowHandle() const { return m_windowHandle; }

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_windowHandle = nullptr;
};

}
