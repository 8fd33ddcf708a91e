#pragma once

#include "Backend/core/settings/Rect.h"
#include "Gui/Utils/windows/WindowsLib.h"

#include <windows.h>

#include <string>

namespace Gui {

class MirelGuiIF;

// A button that toggles with each press, or is on while it is held. It notifies its listener and leaves the keyboard to
// the main window. The properties "COLOR", "CHECKED", "SELECTED" and "GRAYTEXT" set its look. [gui]
class Button {
public:
    class Listener {
    public:
        virtual void buttonChanged(int id, bool state) = 0;

    protected:
        ~Listener() = default;
    };

    enum class Kind { push, toggle };

    // The listener may be null. With reportOnRelease it is notified of a press only at its end, and only if the pointer
    // is still over the button.
    Button(MirelGuiIF& gui, Listener* listener, Kind kind, bool reportOnRelease = false);

    // Presses the button and reports it.
    virtual void onLeftButtonDown();

    virtual ~Button();
    Button(const Button&) = delete;
    Button& operator=(const Button&) = delete;

    // Replaces a static control, taking its id, position, size and caption, and destroys it.
    void create(HWND placeholder);

    // Creates a hidden window of 29 by 20 pixels at (x, 6) in its parent.
    void create(const std::string& caption, int x, HWND parent, int id, HINSTANCE module);

    bool getState() const { return m_state; }
    void setState(bool state);  // Redraws it, without a report.

    const std::string& getCaption() const { return m_caption; }
    void setCaption(const std::string& caption);

    // For buttons of more than 15 by 10 pixels, from the next paint on; smaller ones have their own.
    void setFont(const WindowsLib::Font& font) { m_font = &font; }

    HWND getWindowHandle() const { return m_windowHandle; }
    int getId() const { return m_id; }

    // In the parent's client area.
    const Rect& getRect() const { return m_rect; }

protected:
    void report();

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static HINSTANCE registerClassOnce(HINSTANCE module);
    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void handleLeftButtonUp();
    void paint();
    HFONT fontFor(int width, int height) const;
    const WindowsLib::Brush& fillBrush() const;
    COLORREF textColour() const;

    Listener* m_listener;
    int m_id = 0;
    bool m_state = false;
    MirelGuiIF* m_gui;
    HWND m_windowHandle = nullptr;
    std::string m_caption;
    bool m_isToggle;
    Rect m_rect;
    const WindowsLib::Font* m_font = nullptr;
    HFONT m_defaultFont = nullptr;  // The dialog's, if it came from one.
    bool m_reportOnRelease;
};

}
