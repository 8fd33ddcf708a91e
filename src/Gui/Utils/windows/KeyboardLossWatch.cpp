#include "Gui/Utils/windows/KeyboardLossWatch.h"

#include "Gui/Utils/windows/WindowProcedure.h"

#include <algorithm>
#include <vector>

namespace Gui {

namespace {

// A hook's procedure has no context but its thread.
thread_local std::vector<const KeyboardLossWatch*> watches;
thread_local HHOOK hook = nullptr;

}

KeyboardLossWatch::KeyboardLossWatch(std::function<bool(HWND window)> keepsKeyboard, std::function<void()> keyboardLost)
    : m_keepsKeyboard(std::move(keepsKeyboard)), m_keyboardLost(std::move(keyboardLost)) {
    if (watches.empty())
        hook = SetWindowsHookExA(WH_CALLWNDPROC, hookProcedure, nullptr, GetCurrentThreadId());
    watches.push_back(this);
}

KeyboardLossWatch::~KeyboardLossWatch() {
    std::erase(watches, this);
    if (watches.empty() && hook)
        UnhookWindowsHookEx(hook);
}

LRESULT CALLBACK KeyboardLossWatch::hookProcedure(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        for (const KeyboardLossWatch* watch : watches)
            withoutExceptions([&] {
                watch->look(message);
                return 0;
            });
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void KeyboardLossWatch::look(const CWPSTRUCT& message) const {
    const bool isFocusLost =
        message.message == WM_KILLFOCUS && !m_keepsKeyboard(reinterpret_cast<HWND>(message.wParam));
    if (isFocusLost || message.message == WM_ENTERMENULOOP || message.message == WM_ENTERSIZEMOVE)
        m_keyboardLost();
}

}
