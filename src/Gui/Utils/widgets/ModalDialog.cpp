#include "Gui/Utils/widgets/ModalDialog.h"

#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/FieldText.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

namespace Gui {

namespace {

constexpr const char* OBJECT = "ModalDialog";

}

void ModalDialog::run(HWND owner) {
    DialogBoxParamA(static_cast<HINSTANCE>(Platform::getModuleInstance()), MAKEINTRESOURCEA(IDD_WORK), owner,
                    dialogProcedure, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK ModalDialog::dialogProcedure(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        setObject(dialog, OBJECT, reinterpret_cast<void*>(lParam));
    auto* const self = getObject<ModalDialog>(dialog, OBJECT);
    return self ? withoutExceptions([&] { return self->dlgProc(dialog, message); }) : 0;
}

// Work that doesn't begin never ends, and nothing else would close the dialog.
void ModalDialog::startOrEnd(HWND dialog) {
    try {
        start(dialog);
    } catch (...) {
        EndDialog(dialog, 0);
        throw;
    }
}

INT_PTR ModalDialog::dlgProc(HWND dialog, UINT message) {
    if (message == WM_INITDIALOG) {
        setFieldText(dialog, IDC_DIALOG_TEXT, m_text);
        startOrEnd(dialog);
    } else if (message == m_closeMessage) {
        EndDialog(dialog, 0);
    } else if (message == WM_NCDESTROY) {
        RemovePropA(dialog, OBJECT);
    }
    return 0;
}

}
