#include "Gui/Utils/widgets/ComboButton.h"

#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/ButtonFill.h"
#include "Gui/Utils/skin/DrawnText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/widgets/Placeholder.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Gui/Utils/windows/Redraw.h"
#include "Gui/Utils/windows/WindowClass.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

namespace Gui {

namespace {

constexpr const char* CLASS_NAME = "MIRELComboButton_Tamsel2008";
constexpr const char* OBJECT = "ComboButton";

}

UINT ComboButton::changeMessage() {
    static const UINT message = RegisterWindowMessageA("COMBOBUTTONCHANGED_Tamsel2008");
    return message;
}

ComboButton::ComboButton(MirelGuiIF& gui, std::vector<std::string> texts) : m_gui(&gui), m_texts(std::move(texts)) {}

ComboButton::~ComboButton() {
    forget(m_windowHandle, OBJECT, this);
}

HINSTANCE ComboButton::registerClassOnce(HINSTANCE module) {
    static const HINSTANCE registered = registerWindowClass(CLASS_NAME, module, windowProcedure);
    return registered;
}

void ComboButton::create(HWND window, int id) {
    Placeholder placeholder(window);
    if (id != 0)
        placeholder.id = id;
    const HINSTANCE module = registerClassOnce(static_cast<HINSTANCE>(Platform::getModuleInstance()));
    m_id = placeholder.id;
    m_windowHandle = placeholder.replace(CLASS_NAME, module, this);
}

void ComboButton::setSelected(int index) {
    m_selected = index;
    redraw(m_windowHandle);
}

void ComboButton::handleLeftButtonDown() {
    m_gui->setFocus();
    if (m_texts.empty())
        return;
    const int count = static_cast<int>(m_texts.size());
    const int next = m_selected >= 0 && m_selected < count - 1 ? m_selected + 1 : 0;
    if (next != m_selected)
        setSelected(next);
    PostMessageA(GetParent(m_windowHandle), changeMessage(), 0, m_id);
}

LRESULT CALLBACK ComboButton::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return handOver(OBJECT, &ComboButton::wndProc, window, message, wParam, lParam);
}

LRESULT ComboButton::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN: handleLeftButtonDown(); return 0;
        case WM_NCHITTEST: m_gui->displayHelp(window); break;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: paint(); return 0;
        case WM_NCDESTROY: m_windowHandle = nullptr; break;
        default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void ComboButton::paint() {
    const PaintScope scope(m_windowHandle);
    const GdiManager& gdi = m_gui->getGdiManager();
    const HDC dc = scope.dc();
    const SelectScope font(dc, gdi.getFont3().handle());
    RECT rect{};
    GetClientRect(m_windowHandle, &rect);
    FillRect(dc, &rect, (m_selected < 1 ? gdi.getUnselectedButtonBrush() : gdi.getSelectedButtonBrush()).handle());
    if (getFlag(m_windowHandle, SkinProperties::GRAY_TEXT))
        fillOnAndOff(dc, rect, gdi);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GdiManager::BLACK);
    if (m_selected >= 0 && static_cast<std::size_t>(m_selected) < m_texts.size())
        drawText(dc, m_texts[static_cast<std::size_t>(m_selected)], rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

}
