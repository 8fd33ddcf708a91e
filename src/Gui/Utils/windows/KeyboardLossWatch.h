#pragma once

#include <windows.h>

#include <functional>

namespace Gui {

// Detects that key messages will not reach a desk's windows for a while: another window gets the keyboard, a menu
// opens, or a window is dragged. Only for the thread that creates it, and its windows. [gui]
class KeyboardLossWatch {
public:
    // keepsKeyboard: whether a window (null for one of another program) passes all its keys to the desk.
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
