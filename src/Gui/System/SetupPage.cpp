#include "Gui/System/SetupPage.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Platform/Shell.h"

namespace Gui::System {

namespace {

constexpr const char* MANUAL_PAGE = "setup.htm";

}

PROPSHEETPAGEA SetupPage::describe() {
    PROPSHEETPAGEA page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_HASHELP;
    page.hInstance = static_cast<HINSTANCE>(Platform::getModuleInstance());
    page.pszTemplate = MAKEINTRESOURCEA(m_dialogId);
    page.pfnDlgProc = pageProcedure;
    page.lParam = parameter();
    return page;
}

INT_PTR SetupPage::dlgProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            m_gui.getSkinner().skinWindow(window());
            initialize();
            return 1;
        case WM_NOTIFY: return handleNotify(*reinterpret_cast<NMHDR*>(lParam));
        case WM_CTLCOLORLISTBOX: return handleListColour(reinterpret_cast<HDC>(wParam));
        case WM_KEYDOWN:
            if (wParam == VK_SPACE)
                toggleFocusedCheckBox();
            return 0;
        default: return 0;
    }
}

INT_PTR SetupPage::handleNotify(const NMHDR& header) {
    switch (header.code) {
        case PSN_HELP: Backend::MirelUtils::showManual(MANUAL_PAGE); return 1;
        case PSN_KILLACTIVE: SetWindowLongPtrA(window(), DWLP_MSGRESULT, validate() ? FALSE : TRUE); return 1;
        case PSN_APPLY:
            apply();
            SetWindowLongPtrA(window(), DWLP_MSGRESULT, PSNRET_NOERROR);
            return 1;
        default: handleNotification(header); return 0;
    }
}

// The skin colours edits and labels; this gives the drop-down list the same colours.
INT_PTR SetupPage::handleListColour(HDC dc) const {
    const GdiManager& gdi = m_gui.getGdiManager();
    SetTextColor(dc, gdi.getTextBrush().colour());
    SetBkColor(dc, gdi.getBackroundBrush().colour());
    return reinterpret_cast<INT_PTR>(gdi.getBackroundBrush().handle());
}

// The page handles the keys of skinned check boxes.
void SetupPage::toggleFocusedCheckBox() const {
    const HWND focus = GetFocus();
    if (GetParent(focus) == window() && GetPropA(focus, SkinProperties::CHECK_BOX_PROCEDURE))
        SendMessageA(focus, BM_SETCHECK, SendMessageA(focus, BM_GETCHECK, 0, 0) ? BST_UNCHECKED : BST_CHECKED, 0);
}

void SetupPage::setChecked(int id, bool checked) const {
    CheckDlgButton(window(), id, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool SetupPage::isChecked(int id) const {
    return IsDlgButtonChecked(window(), id) == BST_CHECKED;
}

}
