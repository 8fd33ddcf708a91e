#include "Gui/Utils/widgets/ModalDialog.h"

#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/FieldText.h"

namespace Gui {

void ModalDialog::run(HWND owner) {
    runModal(IDD_WORK, owner);
}

// Work that doesn't start never ends, and nothing else would close the dialog.
void ModalDialog::startOrEnd() {
    try {
        start(window());
    } catch (...) {
        EndDialog(window(), 0);
        throw;
    }
}

INT_PTR ModalDialog::dlgProc(UINT message, WPARAM, LPARAM) {
    if (message == WM_INITDIALOG) {
        setFieldText(window(), IDC_DIALOG_TEXT, m_text);
        startOrEnd();
    } else if (message == m_closeMessage) {
        EndDialog(window(), 0);
    }
    return 0;
}

}
