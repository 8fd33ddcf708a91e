// What every procedure of a window class does: find the object behind the window, hand over, and let no exception out.
#pragma once

#include "Backend/core/trace/Trace.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <windows.h>

#include <exception>

namespace Gui {

inline void traceException(const char* what) {
    Backend::Trace::channel().trace("src\\Gui\\Utils\\WindowProcedure", __LINE__, "withoutExceptions", what);
}

// The result of a call; 0 for one that ends in an exception, which is only traced.
template <class Call>
auto withoutExceptions(Call call) -> decltype(call()) {
    try {
        return call();
    } catch (const std::exception& exception) {
        traceException(exception.what());
        return 0;
    } catch (...) {
        traceException("an exception of no known kind");
        return 0;
    }
}

// For windows whose creation parameter is their object. It stands with the window under this name for as long as the
// window lives and the object doesn't take it away; without it the system's procedure answers.
template <class Object>
LRESULT handOver(const char* name, LRESULT (Object::*procedure)(HWND, UINT, WPARAM, LPARAM), HWND window, UINT message,
                 WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE)
        setObject(window, name, reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
    Object* const object = getObject<Object>(window, name);
    if (message == WM_NCDESTROY)
        RemovePropA(window, name);
    if (!object)
        return DefWindowProcA(window, message, wParam, lParam);
    return withoutExceptions([&] { return (object->*procedure)(window, message, wParam, lParam); });
}

// An object that ends before its window hears no more of it.
inline void forget(HWND window, const char* name, const void* object) {
    if (window && GetPropA(window, name) == object)
        RemovePropA(window, name);
}

}
