#include "Gui/Utils/windows/PassUp.h"

#include "Gui/Utils/windows/UserMessages.h"

namespace Gui {

std::optional<LRESULT> passUp(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
        case WM_LBUTTONDOWN: SendMessageA(GetParent(window), message, wParam, lParam); return 1;
        case WM_SETFOCUS:
        case WM_ACTIVATE:
        case UM_RETURN_FOCUS: PostMessageA(GetParent(window), UM_RETURN_FOCUS, 0, 0); return 0;
        case UM_HOVER: PostMessageA(GetParent(window), UM_HOVER, 0, lParam); return 0;
        default: return std::nullopt;
    }
}

std::optional<LRESULT> passDown(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto source = reinterpret_cast<HWND>(lParam);
    if (!source)
        return std::nullopt;
    switch (message) {
        case WM_VSCROLL: return SendMessageA(source, UM_VERTICAL_TRACK, wParam, lParam);
        case WM_HSCROLL: return SendMessageA(source, UM_HORIZONTAL_TRACK, wParam, lParam);
        case WM_COMMAND: return SendMessageA(source, WM_COMMAND, wParam, lParam);
        default: return std::nullopt;
    }
}

}
