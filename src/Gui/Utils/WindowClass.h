#pragma once

#include <windows.h>

namespace Gui {

// [gui] Registers a class of windows with the arrow cursor and, unless a brush is given, no background. Each class does
// so once in the process, with the module of its first window.
inline bool registerWindowClass(const char* name, HINSTANCE module, WNDPROC procedure, HBRUSH background = nullptr) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = module;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = name;
    return RegisterClassExA(&windowClass) != 0;
}

}
