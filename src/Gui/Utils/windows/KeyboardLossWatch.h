#pragma once

#include <windows.h>

#include <functional>

namespace Gui {

// Notices that key messages will not reach the windows of a desk for a while: another window gets the keyboard, a menu
// opens, or a window is dragged. For the thread that makes it, and for its windows alone. [gui]
class KeyboardLossWatch {
public:
    // keepsKeyboard: whether a window, null for one of another program, hands all its keys to the desk.
    KeyboardLossWatch(std::function<bool(HWND window)> keepsKeyboard, std::function<void()> keyboardLost);
    ~KeyboardLossWatch();
    KeyboardLossWatch(const KeyboardLossWatch&) = delete;
    KeyboardLossWatch& operator=(const KeyboardLossWatch&) = delete;

private:
    static LRESULT CALLBACK hookProcedure(int code, WPARAM wParam, LPARAM lParam);
    void look(const CWPSTRUCT& message) const;

    std::function<bool(HWND window)> m_keepsKeyboard;
    std::function<void()> m_keyboardLost;
};

}
