#include "Gui/Utils/widgets/EditBox.h"

#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

namespace Gui {

namespace {

constexpr const char* OBJECT = "EditBox";
constexpr const char* PROCEDURE = "EDITBOX_PROP";

}

EditBox::~EditBox() {
    if (!m_windowHandle)
        return;
    RemovePropA(m_windowHandle, OBJECT);
    unsubclass(m_windowHandle, PROCEDURE);
}

void EditBox::create(HWND parent, DWORD style, int x, int y, int width, int height, const char* text) {
    m_windowHandle = CreateWindowExA(0, "Edit", text, WS_CHILD | style, x, y, width, height, parent, nullptr,
                                     static_cast<HINSTANCE>(Platform::getModuleInstance()), nullptr);
    if (!m_windowHandle)
        return;
    setObject(m_windowHandle, OBJECT, this);
    subclass(m_windowHandle, PROCEDURE, windowProcedure);
}

LRESULT EditBox::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DESTROY)
        return callOriginal(window, PROCEDURE, message, wParam, lParam);
    m_windowHandle = nullptr;
    RemovePropA(window, OBJECT);
    return passOnForTheLastTime(window, PROCEDURE, message, wParam, lParam);
}

LRESULT CALLBACK EditBox::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    EditBox* const box = getObject<EditBox>(window, OBJECT);
    if (!box)
        return callOriginal(window, PROCEDURE, message, wParam, lParam);
    return withoutExceptions([&] { return box->wndProc(window, message, wParam, lParam); });
}

}
