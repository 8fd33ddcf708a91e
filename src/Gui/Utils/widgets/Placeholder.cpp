#include "Gui/Utils/widgets/Placeholder.h"

namespace Gui {

Placeholder::Placeholder(HWND placeholder)
    : window(placeholder),
      parent(GetParent(placeholder)),
      id(GetDlgCtrlID(placeholder)),
      caption(getWindowText(placeholder)) {
    RECT onScreen{};
    GetWindowRect(window, &onScreen);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&onScreen), 2);
    rect = {onScreen.left, onScreen.top, onScreen.right, onScreen.bottom};
}

HWND Placeholder::replace(const char* windowClass, HINSTANCE module, void* object) const {
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE)) & (WS_VISIBLE | WS_DISABLED | WS_GROUP);
    const HWND result = CreateWindowExA(0, windowClass, caption.c_str(), WS_CHILD | style, rect.left, rect.top,
                                        rect.right - rect.left, rect.bottom - rect.top, parent,
                                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), module, object);
    if (result)
        SetWindowPos(result, window, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    DestroyWindow(window);
    return result;
}

}
