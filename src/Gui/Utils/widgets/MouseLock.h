#pragma once

#include "Gui/Utils/windows/WindowsLib.h"

#include <windows.h>

namespace Gui {

// A value that follows the mouse: while a button is held, or after a click of the middle one until something ends it.
// The mouse stays with the window outside the program's own windows only while some button is down, so the lock presses
// one itself through the system's own input. That press comes back to the window, which must drop it.
//
// Lasting state is kept in properties of the window. [gui]
class MouseLock {
public:
    // The button that the lock presses.
    enum class Button { LEFT, RIGHT };

    explicit MouseLock(Button button) : m_button(button) {}
    MouseLock(const MouseLock&) = delete;
    MouseLock& operator=(const MouseLock&) = delete;

    // Takes the mouse. position: where the pointer is, in client pixels along the relevant axis, above -2000; value:
    // the starting value of what changes. Without a held button, the cursor becomes the given one until the end.
    void startHeld(HWND window, int position, int value);
    void startFree(HWND window, int position, int value, const WindowsLib::Cursor& cursor);

    bool isLocked() const;

    // For handlers of the button's press, which must do nothing if this is true: the press was the lock's own.
    bool takeOwnPress();

    // The lock is over; false if there was none.
    // - byButton: the button that the lock had pressed was pressed, and is going to come up by itself.
    // - otherwise the lock lets go of it.
    // - released: that button came up. The cursor stays.
    bool endByButton();
    bool end();
    bool released();

    // For WM_CAPTURECHANGED: ends the lock if another window has taken the mouse.
    void captureChanged(HWND capturer);

    // While locked: how far the pointer has moved since the start, towards 0, and the value at the start.
    int getDistance(int position) const;
    int getStartValue() const;

private:
    void start(HWND window, int position, int value);
    bool unlock();
    bool sendButton(bool down) const;
    const char* ownPress() const;

    Button m_button;
    HWND m_window = nullptr;
    bool m_isFree = false;  // So that no button of the mouse is really down.
};

}
