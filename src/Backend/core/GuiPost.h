// Notifications to the desk's window.
#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Platform/WindowSink.h"

#include <memory>

namespace Backend {

// [any] Posts to the window, if there is one.
inline void postToGui(MirelIF& mirel, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    if (const HWND window = mirel.getGuiWindowHandle())
        Platform::postToWindow(window, message, wParam, lParam);
}

// [any] The same with a copy of an object in lParam, which is made only if there is a window.
template <class Payload>
void postCopyToGui(MirelIF& mirel, UINT message, const Payload& object, WPARAM wParam = 0) {
    const HWND window = mirel.getGuiWindowHandle();
    if (!window)
        return;
    auto copy = std::make_unique<Payload>(object);
    if (Platform::postToWindow(window, message, wParam, reinterpret_cast<LPARAM>(copy.get())))
        static_cast<void>(copy.release());
}

}
