#include "tests/Gui/Utils/skin/SkinnedDialog.h"

#include "tests/Gui/Utils/TemplateIds.h"

#include <commctrl.h>

namespace Gui {

namespace {

constexpr const char* OBJECT = "SkinnedDialog";

}

SkinnedDialog::SkinnedDialog() {
    InitCommonControls();
    m_dialog = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_TEST_SKIN), nullptr, dialogProcedure,
                                  reinterpret_cast<LPARAM>(this));
    ShowWindow(m_dialog, SW_SHOWNORMAL);
    SetForegroundWindow(m_dialog);
    TestSupport::pump();
}

SkinnedDialog::~SkinnedDialog() {
    RemovePropA(m_dialog, OBJECT);
    DestroyWindow(m_dialog);
    TestSupport::pump();
}

HWND SkinnedDialog::add(const char* className, const char* text, DWORD style, const RECT& place, DWORD extendedStyle) {
    const auto id = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(++m_controls));
    const HWND control =
        CreateWindowExA(extendedStyle, className, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                        place.right - place.left, place.bottom - place.top, m_dialog, id, nullptr, nullptr);
    SendMessageA(control, WM_SETFONT, static_cast<WPARAM>(SendMessageA(m_dialog, WM_GETFONT, 0, 0)), FALSE);
    return control;
}

void SkinnedDialog::skin() {
    m_gui.getSkinner().skinWindow(m_dialog);
    InvalidateRect(m_dialog, nullptr, TRUE);
    UpdateWindow(m_dialog);
    TestSupport::pump();
    forgetMessages();
}

std::vector<SkinnedDialog::Message> SkinnedDialog::received(UINT id) const {
    std::vector<Message> found;
    for (const Message& message : m_messages)
        if (message.id == id)
            found.push_back(message);
    return found;
}

int SkinnedDialog::countNotifications(HWND control, WORD code) const {
    int count = 0;
    for (const Message& message : received(WM_COMMAND))
        if (reinterpret_cast<HWND>(message.lParam) == control && HIWORD(message.wParam) == code)
            ++count;
    return count;
}

INT_PTR CALLBACK SkinnedDialog::dialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        SetPropA(dialog, OBJECT, reinterpret_cast<HANDLE>(lParam));
    if (auto* const self = static_cast<SkinnedDialog*>(GetPropA(dialog, OBJECT))) {
        if (self->onMessage)
            self->onMessage({message, wParam, lParam});
        self->m_messages.push_back({message, wParam, lParam});
    }
    return 0;
}

Canvas::Canvas(int width, int height) : m_width(width), m_height(height), m_dc(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_old = SelectObject(m_dc, m_bitmap);
    PatBlt(m_dc, 0, 0, width, height, WHITENESS);
}

Canvas::~Canvas() {
    SelectObject(m_dc, m_old);
    DeleteObject(m_bitmap);
    DeleteDC(m_dc);
}

int Canvas::count(COLORREF colour, const RECT& part) const {
    int found = 0;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            found += at(x, y) == colour ? 1 : 0;
    return found;
}

int Canvas::firstRowWith(COLORREF colour) const {
    for (int y = 0; y < m_height; ++y)
        if (count(colour, {0, y, m_width, y + 1}) > 0)
            return y;
    return -1;
}

}
