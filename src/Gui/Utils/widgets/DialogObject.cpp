#include "Gui/Utils/widgets/DialogObject.h"

#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

#include <prsht.h>

namespace Gui {

namespace {

constexpr const char* OBJECT = "DialogObject";  // Known to the procedure before it has found the object.

}

INT_PTR DialogObject::runModal(int dialogId, HWND owner) {
    return DialogBoxParamA(static_cast<HINSTANCE>(Platform::getModuleInstance()), MAKEINTRESOURCEA(dialogId), owner,
                           dialogProcedure, parameter());
}

INT_PTR CALLBACK DialogObject::dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const opened = message == WM_INITDIALOG ? reinterpret_cast<DialogObject*>(lParam) : nullptr;
    return enter(opened, window, message, wParam, lParam);
}

INT_PTR CALLBACK DialogObject::pageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DialogObject* opened = nullptr;
    if (message == WM_INITDIALOG)
        opened = reinterpret_cast<DialogObject*>(reinterpret_cast<const PROPSHEETPAGEA*>(lParam)->lParam);
    return enter(opened, window, message, wParam, lParam);
}

INT_PTR DialogObject::enter(DialogObject* opened, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (opened) {
        setObject(window, OBJECT, opened);
        setObject(window, opened->m_property, opened);
        opened->m_window = window;
    }
    auto* const self = getObject<DialogObject>(window, OBJECT);
    return self ? self->handle(window, message, wParam, lParam) : 0;
}

INT_PTR DialogObject::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const INT_PTR result = withoutExceptions([&] { return dlgProc(message, wParam, lParam); });
    if (message == WM_NCDESTROY) {
        RemovePropA(window, m_property);
        RemovePropA(window, OBJECT);
        m_window = nullptr;
    }
    return result;
}

}
