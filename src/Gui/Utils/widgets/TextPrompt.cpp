#include "Gui/Utils/widgets/TextPrompt.h"

#include "Backend/core/xml/Text.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/FieldText.h"
#include "Gui/Utils/windows/WindowText.h"

namespace Gui {

std::optional<std::string> TextPrompt::run(HWND owner) {
    if (runModal(IDD_TEXT_PROMPT, owner) != IDOK)
        return std::nullopt;
    return m_text;
}

INT_PTR TextPrompt::dlgProc(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_INITDIALOG: fill(); return TRUE;  // The system focuses the field and selects all of it.
        case WM_COMMAND:
            if (LOWORD(wParam) == IDCANCEL || (LOWORD(wParam) == IDOK && take()))
                EndDialog(window(), LOWORD(wParam));
            return 0;
        default: return 0;
    }
}

void TextPrompt::fill() {
    SetWindowTextA(window(), m_caption.c_str());
    SetDlgItemTextA(window(), IDC_PROMPT, m_prompt.c_str());
    setFieldText(window(), IDC_DIALOG_TEXT, m_text);
}

bool TextPrompt::take() {
    const std::string text = getWindowText(control(IDC_DIALOG_TEXT));
    const std::string_view trimmed = Backend::Text::trim(text);
    if (trimmed.empty() && !m_allowBlank) {
        MessageBoxA(window(), "Entry cannot be blank", "Error", MB_OK);
        SetFocus(control(IDC_DIALOG_TEXT));
        return false;
    }
    m_text = trimmed;
    return true;
}

}
