#pragma once

#include <windows.h>

namespace Gui {

// A dialog from the desk's own templates: the window procedure that all of them share, and the object that the window
// keeps from its WM_INITDIALOG to its end. The object must outlive the window. [gui]
class DialogObject {
public:
    // property: the name under which the window stores this object.
    explicit DialogObject(const char* property) : m_property(property) {}
    DialogObject(const DialogObject&) = delete;
    DialogObject& operator=(const DialogObject&) = delete;

protected:
    ~DialogObject() = default;

    // The messages, including WM_INITDIALOG and WM_NCDESTROY. An exception is traced and answered with 0.
    virtual INT_PTR dlgProc(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    // Shows the dialog in front of its owner, and returns what EndDialog was given; 0 or -1 if it can't be shown.
    INT_PTR runModal(int dialogId, HWND owner);

    // For a dialog that the system creates: the procedure, whose WM_INITDIALOG carries this object.
    static INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // The same for a page of a sheet, whose PROPSHEETPAGE carries this object as its lParam.
    static INT_PTR CALLBACK pageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // The object as the system passes it.
    LPARAM parameter() { return reinterpret_cast<LPARAM>(this); }

    HWND window() const { return m_window; }  // Null outside the window's life.
    HWND control(int id) const { return GetDlgItem(m_window, id); }

private:
    static INT_PTR enter(DialogObject* opened, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    const char* m_property;
    HWND m_window = nullptr;
};

}
