#include "Gui/Utils/widgets/TextPrompt.h"

#include "Backend/core/xml/Text.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/FieldText.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Gui/Utils/windows/WindowText.h"
#include "Platform/Shell.h"

namespace Gui {

namespace {

constexpr const char* OBJECT = "EditBoxDialog";

}

std::optional<std::string> TextPrompt::run(HWND owner) {
    const INT_PTR result =
        DialogBoxParamA(static_cast<HINSTANCE>(Platform::getModuleInstance()), MAKEINTRESOURCEA(IDD_TEXT_PROMPT), owner,
                        dialogProcedure, reinterpret_cast<LPARAM>(this));
    if (result != IDOK)
        return std::nullopt;
    return m_text;
}

INT_PTR CALLBACK TextPrompt::dialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        setObject(dialog, OBJECT, reinterpret_cast<void*>(lParam));
    auto* const self = getObject<TextPrompt>(dialog, OBJECT);
    return self ? withoutExceptions([&] { return self->dlgProc(dialog, message, wParam); }) : 0;
}

INT_PTR TextPrompt::dlgProc(HWND dialog, UINT message, WPARAM wParam) {
    switch (message) {
        case WM_INITDIALOG: fill(dialog); return TRUE;  // The system gives the focus to the field, all of it selected.
        case WM_COMMAND:
            if (LOWORD(wParam) == IDCANCEL || (LOWORD(wParam) == IDOK && take(dialog)))
                EndDialog(dialog, LOWORD(wParam));
            return 0;
        case WM_NCDESTROY: RemovePropA(dialog, OBJECT); return 0;
        default: return 0;
    }
}

void TextPrompt::fill(HWND dialog) {
    SetWindowTextA(dialog, m_caption.c_str());
    SetDlgItemTextA(dialog, IDC_PROMPT, m_prompt.c_str());
    setFieldText(dialog, IDC_DIALOG_TEXT, m_text);
}

bool TextPrompt::take(HWND dialog) {
    const std::string text = getWindowText(GetDlgItem(dialog, IDC_DIALOG_TEXT));
    const std::string_view trimmed = Backend::Text::trim(text);
    if (trimmed.empty() && !m_allowBlank) {
        MessageBoxA(dialog, "Entry cannot be blank", "Error", MB_OK);
        SetFocus(GetDlgItem(dialog, IDC_DIALOG_TEXT));
        return false;
    }
    m_text = trimmed;
    return true;
}

}
