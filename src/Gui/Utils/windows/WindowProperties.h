// Options and objects that a window keeps under a name.
#pragma once

#include <windows.h>

#include <cstdint>

namespace Gui {

// A number. A missing one reads as 0, so the two can't be told apart.
inline std::intptr_t getNumber(HWND window, const char* name) {
    return reinterpret_cast<std::intptr_t>(GetPropA(window, name));
}

inline void setNumber(HWND window, const char* name, std::intptr_t value) {
    SetPropA(window, name, reinterpret_cast<HANDLE>(value));
}

inline bool getFlag(HWND window, const char* name) {
    return getNumber(window, name) != 0;
}

// An object that the window doesn't own; null if there is none.
template <class Object>
Object* getObject(HWND window, const char* name) {
    return static_cast<Object*>(GetPropA(window, name));
}

inline void setObject(HWND window, const char* name, const void* object) {
    SetPropA(window, name, const_cast<void*>(object));
}

// Puts another procedure in front of a window's own, which is kept under this name.
inline void subclass(HWND window, const char* name, WNDPROC procedure) {
    setNumber(window, name, SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

// Restores the window's own procedure, and returns it; null if none is kept under this name.
inline WNDPROC unsubclass(HWND window, const char* name) {
    const auto original = getNumber(window, name);
    if (original == 0)
        return nullptr;
    SetWindowLongPtrA(window, GWLP_WNDPROC, original);
    RemovePropA(window, name);
    return reinterpret_cast<WNDPROC>(original);
}

// Passes a message to the kept procedure; without one, to DefWindowProc.
inline LRESULT callOriginal(HWND window, const char* name, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto original = reinterpret_cast<WNDPROC>(getNumber(window, name));
    return original ? CallWindowProcA(original, window, message, wParam, lParam)
                    : DefWindowProcA(window, message, wParam, lParam);
}

// The same when the window ends; restores its own procedure first.
inline LRESULT passOnForTheLastTime(HWND window, const char* name, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC original = unsubclass(window, name);
    return original ? CallWindowProcA(original, window, message, wParam, lParam)
                    : DefWindowProcA(window, message, wParam, lParam);
}

}
