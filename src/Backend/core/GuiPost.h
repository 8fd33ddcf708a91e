// Notifications to the desk's window.
#pragma once

#include "Backend/core/MirelIF.h"
#include "Platform/WindowSink.h"

namespace Backend {

// [any] Posts a message to a window. Copies of its content are made only if there is a window, and destroyed if the
// window does not take them. Returns whether it did.
template <class Row, class... Values>
bool postToWindow(HWND window, Row row, const Values&... values) {
    const auto post = [window](UINT number, WPARAM wParam, LPARAM lParam) {
        return Platform::postToWindow(window, number, wParam, lParam);
    };
    return window && row.post(post, values...);
}

// [any] Posts a message to the desk's window in the same way.
template <class Row, class... Values>
bool postToGui(MirelIF& mirel, Row row, const Values&... values) {
    return postToWindow(mirel.getGuiWindowHandle(), row, values...);
}

}
