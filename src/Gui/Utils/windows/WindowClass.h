#pragma once

#include <windows.h>

namespace Gui {

// [gui] Registers a window class with the arrow cursor and, unless a brush is given, no background. Each class is
// registered once per process, with the module of its first window. The system knows the class under that module from
// then on, even for windows whose templates come from another one. Returns that module; null on failure.
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
