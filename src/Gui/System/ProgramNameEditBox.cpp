#include "Gui/System/ProgramNameEditBox.h"

#include "Backend/core/MirelMessageManager.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/texts/TextCut.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "Gui/Utils/windows/WindowText.h"

namespace Gui::System {

namespace {

constexpr const char* CANCEL = "CANCEL";
constexpr int LEFT = 2;
constexpr int END_OF_TEXT = 1000;

bool endsEditing(WPARAM key) {
    return key == VK_RETURN || key == VK_ESCAPE;
}

}

ProgramNameEditBox::~ProgramNameEditBox() {
    if (!getWindowHandle())
        return;
    setNumber(getWindowHandle(), CANCEL, 1);
    DestroyWindow(getWindowHandle());
}

void ProgramNameEditBox::open(HWND list) {
    RECT rect{};
    GetClientRect(list, &rect);
    create(list, WS_VISIBLE | ES_AUTOHSCROLL, LEFT, 0, rect.right - LEFT, rect.bottom,
           m_gui.getCurrentProgram().getName().c_str());
    const HWND window = getWindowHandle();
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_gui.getGdiManager().getFont4().handle()), FALSE);
    SendMessageA(window, EM_LIMITTEXT, MAX_NAME, 0);
    SendMessageA(window, EM_SETSEL, END_OF_TEXT, END_OF_TEXT);
    SetFocus(window);
}

LRESULT ProgramNameEditBox::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KILLFOCUS: handleFocusLost(window); return 0;
        case WM_GETDLGCODE: {
            const LRESULT wanted = EditBox::wndProc(window, message, wParam, lParam);
            return endsEditing(wParam) ? wanted | DLGC_WANTALLKEYS : wanted;
        }
        case WM_KEYDOWN:
            if (!endsEditing(wParam))
                break;
            if (wParam == VK_ESCAPE)
                setNumber(window, CANCEL, 1);
            giveFocusBack(window);
            return 0;
        case WM_LBUTTONDOWN: giveFocusBack(window); return 0;
        default: break;
    }
    return EditBox::wndProc(window, message, wParam, lParam);
}

void ProgramNameEditBox::giveFocusBack(HWND window) {
    SetFocus(GetParent(GetParent(window)));
}

void ProgramNameEditBox::handleFocusLost(HWND window) {
    if (!getFlag(window, CANCEL))
        m_gui.getMirelMessageManager().postChangeProgramName(readName(window));
    setNumber(window, CANCEL, 1);  // From here on, closing the window for any reason saves nothing.
    DestroyWindow(window);
}

std::string ProgramNameEditBox::readName(HWND window) const {
    return cutText(getWindowText(window), MAX_NAME);
}

}
