#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace Gui {

class MirelGuiIF;

// A button that cycles through several states, each with its text. The first counts as off, the others as on. [gui]
class ComboButton {
public:
    // Posted to the parent after each press. l: the control id.
    static UINT changeMessage();

    // The texts of the states, in order.
    ComboButton(MirelGuiIF& gui, std::vector<std::string> texts);
    ComboButton(const ComboButton&) = delete;
    ComboButton& operator=(const ComboButton&) = delete;
    ~ComboButton();

    // Replaces a static control, taking its position, size and caption, and destroys it. Takes its id too unless
    // another is given.
    void create(HWND placeholder, int id = 0);

    int getSelected() const { return m_selected; }

    // Redraws it, without a message. An index without a state shows no text.
    void setSelected(int index);

    HWND getWindowHandle() const { return m_windowHandle; }
    int getId() const { return m_id; }

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static HINSTANCE registerClassOnce(HINSTANCE module);
    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void handleLeftButtonDown();
    void paint();

    MirelGuiIF* m_gui;
    HWND m_windowHandle = nullptr;
    int m_id = 0;
    std::vector<std::string> m_texts;
    int m_selected = 0;
};

}
