#include "Gui/System/ProgramNameComboBox.h"

#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/GdiManager.h"

namespace Gui::System {

ProgramNameComboBox::ProgramNameComboBox(MirelGuiIF& gui) : ComboBox(gui.getGdiManager()), m_gui(gui) {}

LRESULT ProgramNameComboBox::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CTLCOLOREDIT: return handleControlColour(reinterpret_cast<HDC>(wParam));
        case WM_LBUTTONDOWN:
            if (!(wParam & MK_CONTROL))
                break;
            editName(window);
            return 0;
        default: break;
    }
    return ComboBox::wndProc(window, message, wParam, lParam);
}

void ProgramNameComboBox::editName(HWND window) {
    m_gui.clearComputerKeyboardHilight();
    m_nameBox = std::make_unique<ProgramNameEditBox>(m_gui);
    m_nameBox->open(window);
}

LRESULT ProgramNameComboBox::handleControlColour(HDC dc) const {
    const GdiManager& gdi = m_gui.getGdiManager();
    SetTextColor(dc, gdi.getTextBrush().colour());
    SetBkColor(dc, gdi.getBackroundBrush().colour());
    return reinterpret_cast<LRESULT>(gdi.getBackroundBrush().handle());
}

}
