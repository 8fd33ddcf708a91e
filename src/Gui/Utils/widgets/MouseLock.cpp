#include "Gui/Utils/widgets/MouseLock.h"

#include "Gui/Utils/windows/WindowProperties.h"

#include <utility>

namespace Gui {

namespace {

constexpr const char* CAPTURED = "CAPTURED";            // The value follows the mouse.
constexpr const char* CAPTURE_POSITION = "CAPTUREPOS";  // The pointer's at the start, and the offset.
constexpr const char* CAPTURE_VALUE = "CAPTUREVAL";
constexpr const char* OWN_LEFT_PRESS = "MYLDOWN";  // The next press is the one that this code sent.
constexpr const char* OWN_RIGHT_PRESS = "MYRDOWN";
constexpr int POSITION_OFFSET = 2000;

void restoreCursor() {
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
}

}

const char* MouseLock::ownPress() const {
    return m_button == Button::LEFT ? OWN_LEFT_PRESS : OWN_RIGHT_PRESS;
}

// The button that programs see as left or right, which a left-handed user's system swaps.
bool MouseLock::sendButton(bool down) const {
    const bool isSwapped = GetSystemMetrics(SM_SWAPBUTTON) != 0;
    const bool isLeft = (m_button == Button::LEFT) != isSwapped;
    INPUT input{};
    input.type = INPUT_MOUSE;
    if (down)
        input.mi.dwFlags = isLeft ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN;
    else
        input.mi.dwFlags = isLeft ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP;
    return SendInput(1, &input, sizeof input) == 1;
}

void MouseLock::startHeld(HWND window, int position, int value) {
    m_isFree = false;
    start(window, position, value);
}

void MouseLock::startFree(HWND window, int position, int value, const WindowsLib::Cursor& cursor) {
    m_isFree = true;
    start(window, position, value);
    SetCursor(cursor.handle());
}

void MouseLock::start(HWND window, int position, int value) {
    m_window = window;
    setNumber(window, CAPTURED, 1);
    setNumber(window, CAPTURE_POSITION, position + POSITION_OFFSET);
    setNumber(window, CAPTURE_VALUE, value);
    SetCapture(window);
    if (sendButton(true))
        setNumber(window, ownPress(), 1);
}

bool MouseLock::isLocked() const {
    return m_window && getFlag(m_window, CAPTURED);
}

bool MouseLock::takeOwnPress() {
    return m_window && RemovePropA(m_window, ownPress()) != nullptr;
}

bool MouseLock::unlock() {
    return m_window && RemovePropA(m_window, CAPTURED) != nullptr;
}

bool MouseLock::endByButton() {
    if (!unlock())
        return false;
    m_isFree = false;
    ReleaseCapture();
    restoreCursor();
    return true;
}

// No real release will ever end the press that was sent at the start.
bool MouseLock::end() {
    if (!endByButton())
        return false;
    sendButton(false);
    return true;
}

bool MouseLock::released() {
    m_isFree = false;
    const bool wasLocked = unlock();
    if (wasLocked)
        ReleaseCapture();
    // If the click was so short that it ends before the sent press arrives, nothing else would release that press.
    if (m_window && getFlag(m_window, ownPress()))
        sendButton(false);
    return wasLocked;
}

void MouseLock::captureChanged(HWND capturer) {
    if (capturer == m_window || !unlock())
        return;
    restoreCursor();
    if (std::exchange(m_isFree, false))
        sendButton(false);
}

int MouseLock::getDistance(int position) const {
    return static_cast<int>(getNumber(m_window, CAPTURE_POSITION)) - POSITION_OFFSET - position;
}

int MouseLock::getStartValue() const {
    return static_cast<int>(getNumber(m_window, CAPTURE_VALUE));
}

}
