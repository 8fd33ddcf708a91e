#pragma once

#include "Platform/WindowTypes.h"

namespace Platform {

// Stands for a window where there is none: what is posted to its handle arrives in windowMessage at once, on the
// poster's thread. It must outlive its last post.
class WindowSink {
public:
    virtual ~WindowSink() = default;

    // [any] One posted message. Payloads on the heap belong to the sink from here on.
    virtual void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    // [any] The handle under which this object takes posts.
    HWND handle();
};

// [any] Posts to a window or to a WindowSink, without retry. False if the window is gone, its queue is full or the
// handle is null.
bool postToWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}
