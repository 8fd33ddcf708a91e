#pragma once

#include "Platform/WindowTypes.h"

namespace Platform {

// Stands in for a window where there is none: what is posted to its handle arrives in windowMessage at once, on the
// poster's thread. It must outlive the last post to it.
class WindowSink {
public:
    virtual ~WindowSink() = default;

    // [any] One posted message. The sink takes ownership of payloads on the heap.
    virtual void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    // [any] The handle that posts to this object use.
    HWND handle();
};

// [any] Posts to a window or to a WindowSink, without retrying. False if the window is gone, its queue is full or the
// handle is null.
bool postToWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}
