// What every window procedure does: find the object behind the window, call it, and let no exception out.
#pragma once

#include "Backend/core/trace/Trace.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <windows.h>

#include <exception>

namespace Gui {

inline void traceException(const char* what) {
    Backend::Trace::channel().trace("src\\Gui\\Utils\\WindowProcedure", __LINE__, "withoutExceptions", what);
}

// The result of a call; 0 if it throws, and the exception is only traced.
template <class Call>
auto withoutExceptions(Call call) -> decltype(call()) {
    try {
        return call();
    } catch (const std::exception& exception) {
        traceException(exception.what());
        return 0;
    } catch (...) {
        traceException("an exception of unknown type");
        return 0;
    }
}

// For windows whose creation parameter is their object. The window keeps it under this property until either goes;
// without it, the system's procedure answers.
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

// Stops the messages of a window from reaching an object that ends before it.
inline void forget(HWND window, const char* name, const void* object) {
    if (window && GetPropA(window, name) == object)
        RemovePropA(window, name);
}

}
