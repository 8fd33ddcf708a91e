#pragma once

#include "Gui/Rules/values/ValueField.h"
#include "Gui/Utils/windows/WindowsLib.h"

#include <windows.h>

#include <string>

namespace Gui {

class GdiManager;
class MirelGuiIF;
class TimeIntervalCtl;

// Gives the system's own controls the desk's look, and the behaviour that all screens share: help about what is under
// the pointer, values that the wheel turns, lists of values on the right button. It puts its own procedures in front of
// the windows' and reads what it needs from their properties (SkinProperties.h) when it needs it.
//
// In an edit, Tab goes to the next field of its window and Shift+Tab to the previous one, and Enter and Escape return
// the keyboard to the desk. [gui]
class Skinner {
public:
    // The gui is used from the first skinWindow on, and must outlive every skinned window.
    explicit Skinner(MirelGuiIF& gui) : m_gui(gui) {}

    // Skins all controls below a window, and the window itself, which draws for them. Controls that come to it later
    // are skinned as they come, before CreateWindow returns, but only those right below it. So a control with controls
    // of its own is skinned by a call for itself, before it gets the first; a procedure that it then puts in front of
    // one of them stands in front of the skin's. What is skinned already stays as it is. Null is ignored.
    void skinWindow(HWND window);

    // For a Skinner that ends before a window: neither the window nor its children use this Skinner any more.
    void leaveWindow(HWND window) const;

    // Frames this thread's menus until endHook has been called as often. Only the first thread to call it is hooked.
    static void startHook();
    static void endHook();

    // Set options of a control, given by its id in a window or by its own window.
    static void setNoWheel(HWND dialog, int id);
    static void setNoWheel(HWND control);
    static void setMinMax(HWND dialog, int id, int min, int max);
    static void setMin(HWND dialog, int id, int min);
    static void setMin(HWND control, int min);
    static void setMax(HWND dialog, int id, int max);
    static void setMax(HWND control, int max);
    static void showZeroAsBlank(HWND dialog, int id, bool blank = true);
    static void setGrayText(HWND dialog, int id, bool gray, bool invalidateNow);
    static void setText(HWND dialog, int id, bool text = true);
    static void setSelected(HWND dialog, int id, bool selected);  // Redraws it.

    // Shows a control as having no value, "?", or as having one again, whose text the caller then sets.
    static void indicateInvalidValue(HWND dialog, int id, bool invalid);

    // Enables or disables an edit with its label.
    static void enableControl(HWND dialog, int editId, int labelId, bool enable);
    static void enableControl(HWND dialog, TimeIntervalCtl& control, int labelId, bool enable);

private:
    static void enableLabel(HWND dialog, int id, bool enable);

    using Procedure = LRESULT (Skinner::*)(HWND, UINT, WPARAM, LPARAM);

    // A window's procedure: calls its Skinner.
    template <Procedure PROCEDURE>
    static LRESULT CALLBACK enter(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    static BOOL CALLBACK skinEachChild(HWND window, LPARAM skinner);
    static BOOL CALLBACK leaveEachChild(HWND window, LPARAM skinner);
    void skinChild(HWND window);
    void skinButton(HWND window);
    void skinEdit(HWND window);
    static void install(HWND window, const char* property, WNDPROC procedure);

    // Windows.
    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handleControlColour(HWND control, HDC dc, bool isEdit);
    bool handleNCPaint(HWND window);
    bool handleDrawItem(const DRAWITEMSTRUCT& item);
    bool handleDrawButtonItem(const DRAWITEMSTRUCT& item);
    const WindowsLib::Brush& getItemBrush(const DRAWITEMSTRUCT& item, HWND window) const;
    COLORREF getItemTextColour(HWND window) const;

    // Menus.
    bool handleDrawMenuItem(const DRAWITEMSTRUCT& item);
    void handleMeasureMenuItem(HWND window, MEASUREITEMSTRUCT& item);
    static LRESULT CALLBACK hookProc(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK menuProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // Controls.
    LRESULT buttonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT checkBoxProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT radioButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT trackbarProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handleButtonMessage(const char* property, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT passWheelUp(HWND window, WPARAM wParam, LPARAM lParam);
    void handlePaintTrackbar(HWND window);
    static void checkRadioButton(HWND window);
    static bool inWindow(HWND window, LPARAM lParam);

    // Edits.
    LRESULT editProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static bool handleEditKey(HWND window, WPARAM key);
    void drawEditFrame(HWND window);
    bool handleEditBoxMouseWheel(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool handleContextMenu(HWND window, WPARAM wParam, LPARAM lParam);
    static ValueField readField(HWND window);

    const GdiManager& gdi() const;

    MirelGuiIF& m_gui;
};

}
