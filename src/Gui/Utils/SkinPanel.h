#pragma once

#include "Gui/Utils/Panel.h"
#include "Gui/Utils/skin/Skinner.h"

namespace Gui {

class MirelGuiIF;

// The panel that every screen is made of: it has the desk's look and takes no keyboard focus. Keys, clicks, the focus
// and what the pointer is over go up to the main window.
class SkinPanel : public Panel {
public:
    // See Panel. The gui must outlive the panel's window.
    explicit SkinPanel(MirelGuiIF& gui, int dialogId = 0, bool hasBorder = false)
        : Panel(dialogId, hasBorder), m_gui(&gui), m_skinner(gui) {}

    ~SkinPanel() override { m_skinner.leaveWindow(getWindowHandle()); }

    // A panel that hides returns the keyboard to the main window.
    void showWnd(bool show) override;
    void createWnd(HINSTANCE module, HWND parentWindow) override;

    // Derived classes call this for what they don't handle themselves.
    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    INT_PTR dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    MirelGuiIF& gui() const { return *m_gui; }
    Skinner& skinner() { return m_skinner; }

private:
    MirelGuiIF* m_gui;
    Skinner m_skinner;
};

}
