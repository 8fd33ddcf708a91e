#pragma once

#include <windows.h>

namespace Gui {

// [gui] Registers a class of windows with the arrow cursor and, unless a brush is given, no background. Each class does
// so once in the process, with the module of its first window. That is the module under which the system knows the
// class from then on, also for windows whose templates come from another one; null if it can't be registered.
inline HINSTANCE registerWindowClass(const char* name, HINSTANCE module, WNDPROC procedure,
                                     HBRUSH background = nullptr) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = module;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = name;
    return RegisterClassExA(&windowClass) != 0 ? module : nullptr;
}

}
