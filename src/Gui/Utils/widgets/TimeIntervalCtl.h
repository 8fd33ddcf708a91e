#pragma once

#include "Backend/midi/TimeIntervalType.h"
#include "Gui/Rules/values/TimeIntervalScale.h"
#include "Gui/Utils/widgets/KnobPainter.h"
#include "Gui/Utils/widgets/MouseLock.h"
#include "Gui/Utils/widgets/TimeIntervalEdit.h"
#include "Gui/Utils/windows/WindowsLib.h"

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Gui {

class MirelGuiIF;
class PopupMenu;

// A length of time as a knob, with its value beside it as a note length or a number of ppq. The knob follows the mouse
// while the left button is held, or after a click of the middle one until the next left press; the wheel turns it; the
// value opens as a menu or as a field; the box beside it changes the type. [gui]
class TimeIntervalCtl : private TimeIntervalEdit::Listener {
public:
    class Listener {
    public:
        virtual void valueChanged(TimeIntervalCtl& control) = 0;
        virtual void typeChanged(TimeIntervalCtl& control) = 0;

    protected:
        ~Listener() = default;
    };

    struct Colours {
        WindowsLib::Brush background;
        WindowsLib::Brush boxFill;
        WindowsLib::Brush boxFrame;  // Of the type's box.
        WindowsLib::Brush text;
        WindowsLib::Brush valueFrame;
        WindowsLib::Brush typeBox;
        WindowsLib::Brush typeText;
    };

    // The colours of the desk's other controls.
    static Colours standardColours(MirelGuiIF& gui);

    static constexpr int DIAMETER = 21;
    static constexpr int KNOB_LEFT = 85;
    static constexpr int WIDTH = DIAMETER + KNOB_LEFT;
    static constexpr int HEIGHT = 21;

    // The listener may be null.
    TimeIntervalCtl(MirelGuiIF& gui, Listener* listener);
    TimeIntervalCtl(const TimeIntervalCtl&) = delete;
    TimeIntervalCtl& operator=(const TimeIntervalCtl&) = delete;
    ~TimeIntervalCtl();

    // Replaces a static control of a skinned panel, taking its corner and caption, and destroys it. Takes its id too
    // unless another is given.
    void create(HWND placeholder, const Colours& colours, int id = 0);

    // The limits of the value, in ppq, at least 1 each; 20 and 30720 at first. Clamps the value to them.
    void setRange(std::int32_t min, std::int32_t max);

    // Clamps to the limits. The listener is notified unless the value is unchanged or notify is false. An invalid value
    // becomes valid.
    void setValue(std::int32_t value, bool notify = true);
    std::int32_t getValue() const { return m_value; }

    // Notifies nobody.
    void setType(Backend::TimeIntervalType::Mode type);
    Backend::TimeIntervalType::Mode getType() const { return m_type.getMode(); }

    // Shows "?" until the value is next set.
    void setInvalid(bool invalid);
    bool isInvalid() const { return m_invalid; }

    // Which side of its boxes the knob is on; at first the right.
    void setKnobOnRight(bool right);

    // The text in the value's box.
    std::string getDisplayText() const;

    HWND getWindowHandle() const { return m_windowHandle; }

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static HINSTANCE registerClassOnce(HINSTANCE module);
    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // Painting.
    void paint() const;
    void paintValueBox(HDC dc) const;
    void paintTypeBox(HDC dc) const;
    bool isEnabled() const;
    void redraw() const;
    TimeIntervalScale::Range range() const { return {m_min, m_max}; }

    RECT knobSquare() const;
    RECT valueBox() const;
    RECT typeBox() const;
    int getPosition() const;

    // Mouse.
    void handleLeftButtonDown(POINT point);
    void handleMiddleButtonDown(POINT point);
    void drag(int y);
    void handleWheel(WPARAM wParam, POINT screenPoint);

    // The value's field and menu.
    void openValue();
    void openEdit();
    HBRUSH colourEdit(HDC dc) const;
    void openMenu();
    void editEnded(bool taken, std::int32_t value, bool byKey) override;
    void handleTimer(WPARAM timer);
    void flipType();
    int chooseFromMenu();

    MirelGuiIF* m_gui;
    HWND m_dialog = nullptr;
    Listener* m_listener;
    HWND m_windowHandle = nullptr;
    std::optional<KnobPainter> m_knob;  // From the creation on.
    std::unique_ptr<PopupMenu> m_intervalMenu;
    std::unique_ptr<Colours> m_colours;
    int m_knobOnRight = 1;
    int m_diameter = DIAMETER;
    Backend::TimeIntervalType m_type;
    std::int32_t m_value = 480;
    std::int32_t m_min = 20;
    std::int32_t m_max = 30720;
    bool m_menuShowing = false;
    bool m_invalid = false;
    MouseLock m_lock{MouseLock::Button::LEFT};
    TimeIntervalEdit m_edit;
};

}
