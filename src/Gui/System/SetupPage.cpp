#include "Gui/System/SetupPage.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

namespace Gui::System {

namespace {

constexpr const char* OBJECT = "SetupPage";
constexpr const char* MANUAL_PAGE = "setup.htm";

}

PROPSHEETPAGEA SetupPage::describe() {
    PROPSHEETPAGEA page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_HASHELP;
    page.hInstance = static_cast<HINSTANCE>(Platform::getModuleInstance());
    page.pszTemplate = MAKEINTRESOURCEA(m_dialogId);
    page.pfnDlgProc = dialogProcedure;
    page.lParam = reinterpret_cast<LPARAM>(this);
    return page;
}

INT_PTR CALLBACK SetupPage::dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        setObject(window, OBJECT, reinterpret_cast<void*>(reinterpret_cast<PROPSHEETPAGEA*>(lParam)->lParam));
    SetupPage* const page = getObject<SetupPage>(window, OBJECT);
    if (!page)
        return 0;
    if (message == WM_INITDIALOG) {
        page->m_window = window;
        setObject(window, page->m_property, page);
    }
    return withoutExceptions([&] { return page->dlgProc(message, wParam, lParam); });
}

INT_PTR SetupPage::dlgProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            m_gui.getSkinner().skinWindow(m_window);
            initialize();
            return 1;
        case WM_NOTIFY: return handleNotify(*reinterpret_cast<NMHDR*>(lParam));
        case WM_CTLCOLORLISTBOX: return handleListColour(reinterpret_cast<HDC>(wParam));
        case WM_KEYDOWN:
            if (wParam == VK_SPACE)
                toggleFocusedCheckBox();
            return 0;
        case WM_NCDESTROY:
            RemovePropA(m_window, m_property);
            RemovePropA(m_window, OBJECT);
            m_window = nullptr;
            return 0;
        default: return 0;
    }
}

INT_PTR SetupPage::handleNotify(const NMHDR& header) {
    switch (header.code) {
        case PSN_HELP: Backend::MirelUtils::showManual(MANUAL_PAGE); return 1;
        case PSN_KILLACTIVE: SetWindowLongPtrA(m_window, DWLP_MSGRESULT, validate() ? FALSE : TRUE); return 1;
        case PSN_APPLY:
            apply();
            SetWindowLongPtrA(m_window, DWLP_MSGRESULT, PSNRET_NOERROR);
            return 1;
        default: handleNotification(header); return 0;
    }
}

// The skin colours edits and labels; the list that drops down is in the same colours.
INT_PTR SetupPage::handleListColour(HDC dc) const {
    const GdiManager& gdi = m_gui.getGdiManager();
    SetTextColor(dc, gdi.getTextBrush().colour());
    SetBkColor(dc, gdi.getBackroundBrush().colour());
    return reinterpret_cast<INT_PTR>(gdi.getBackroundBrush().handle());
}

// A skinned check box hands its keys to the page.
void SetupPage::toggleFocusedCheckBox() const {
    const HWND focus = GetFocus();
    if (GetParent(focus) == m_window && GetPropA(focus, SkinProperties::CHECK_BOX_PROCEDURE))
        SendMessageA(focus, BM_SETCHECK, SendMessageA(focus, BM_GETCHECK, 0, 0) ? BST_UNCHECKED : BST_CHECKED, 0);
}

void SetupPage::setChecked(int id, bool checked) const {
    CheckDlgButton(m_window, id, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool SetupPage::isChecked(int id) const {
    return IsDlgButtonChecked(m_window, id) == BST_CHECKED;
}

}
