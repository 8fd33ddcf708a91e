#pragma once

#include "Gui/Utils/windows/WindowsLib.h"

#include <windows.h>

#include <map>
#include <memory>
#include <tuple>

namespace Gui {

// Every colour, brush, pen, font, cursor and knob that the screens draw with. Created on any thread, then used only by
// the window's [gui]. What the getters return lives as long as this object; copies share fonts and knobs.
class GdiManager {
public:
    static constexpr COLORREF BLACK = RGB(0, 0, 0);
    static constexpr COLORREF WHITE = RGB(255, 255, 255);
    static constexpr COLORREF LIGHT_RED = RGB(255, 5, 5);
    static constexpr COLORREF DARK_RED = RGB(128, 0, 0);
    static constexpr COLORREF AMBER = RGB(188, 188, 60);
    static constexpr COLORREF LIGHT_LIGHT_GREEN = RGB(0, 255, 0);
    static constexpr COLORREF LIGHT_GREEN = RGB(0, 235, 0);
    static constexpr COLORREF GREEN = RGB(0, 210, 0);
    static constexpr COLORREF DARK_GREEN = RGB(0, 160, 0);
    static constexpr COLORREF DARK_DARK_GREEN = RGB(0, 100, 0);
    static constexpr COLORREF DARK_DARK_DARK_GREEN = RGB(0, 50, 0);
    static constexpr COLORREF LIGHT_GREY = RGB(192, 192, 192);
    static constexpr COLORREF DARK_GREY = RGB(100, 100, 100);
    static constexpr COLORREF DARK_DARK_GREY = RGB(70, 70, 70);

    GdiManager(COLORREF background, COLORREF panelBorder, COLORREF selectedButton, COLORREF selectedButton1,
               COLORREF selectedButton2, COLORREF unselectedButton, COLORREF unusedButton,
               COLORREF unusedSelectedButton, COLORREF disabledButton, COLORREF controlBorder,
               COLORREF controlBorderDisabled, COLORREF frame, COLORREF text, COLORREF labelDisabled, COLORREF greenPen,
               COLORREF selectedCell, COLORREF label);

    // With the desk's colours.
    static GdiManager create();

    const WindowsLib::Brush& getBackroundBrush() const { return m_background; }
    const WindowsLib::Brush& getPanelBorderBrush() const { return m_panelBorder; }
    const WindowsLib::Brush& getSelectedButtonBrush() const { return m_selectedButton; }
    const WindowsLib::Brush& getSelectedButton1Brush() const { return m_selectedButton1; }
    const WindowsLib::Brush& getSelectedButton2Brush() const { return m_selectedButton2; }
    const WindowsLib::Brush& getUnselectedButtonBrush() const { return m_unselectedButton; }
    const WindowsLib::Brush& getUnusedButtonBrush() const { return m_unusedButton; }
    const WindowsLib::Brush& getUnusedSelectedButtonBrush() const { return m_unusedSelectedButton; }
    const WindowsLib::Brush& getDisabledButtonBrush() const { return m_disabledButton; }
    const WindowsLib::Brush& getControlBorderBrush() const { return m_controlBorder; }
    const WindowsLib::Brush& getControlBorderDisabledBrush() const { return m_controlBorderDisabled; }
    const WindowsLib::Brush& getFrameBrush() const { return m_frame; }
    const WindowsLib::Brush& getLabelBrush() const { return m_label; }
    const WindowsLib::Brush& getLabelDisabledBrush() const { return m_labelDisabled; }
    const WindowsLib::Brush& getSelectedCellBrush() const { return m_selectedCell; }
    const WindowsLib::Brush& getTextBrush() const { return m_text; }

    const WindowsLib::Pen& getGreenPen() const { return m_greenPen; }    // Two pixels wide.
    const WindowsLib::Pen& getGreenPen2() const { return m_greenPen2; }  // One.
    const WindowsLib::Pen& getBlackPen() const { return m_blackPen; }    // Two.

    // Shown while a value follows the mouse without a button held.
    const WindowsLib::Cursor& getRedCursor() const { return m_redCursor; }

    const WindowsLib::Font& getFont1() const { return m_font1; }
    const WindowsLib::Font& getFont2() const { return m_font2; }
    const WindowsLib::Font& getFont3() const { return m_font3; }
    const WindowsLib::Font& getFont4() const { return m_font4; }
    const WindowsLib::Font& getFont5() const { return m_font5; }
    const WindowsLib::Font& getFont6() const { return m_font6; }
    const WindowsLib::Font& getFont7() const { return m_font7; }
    const WindowsLib::Font& getFont8() const { return m_font8; }
    const WindowsLib::Font& getFont9() const { return m_font9; }
    const WindowsLib::Font& getBigFont() const { return m_bigFont; }
    const WindowsLib::Font& getSmallFont() const { return m_smallFont; }
    const WindowsLib::Font& getLargeFont() const { return m_largeFont; }
    const WindowsLib::Font& getWebdingsFont() const { return m_webdingsFont; }
    const WindowsLib::Font& getWebdingsFont2() const { return m_webdingsFont2; }
    const WindowsLib::Font& getWebdingsFont3() const { return m_webdingsFont3; }
    const WindowsLib::Font& getSmallWebdingsFont() const { return m_smallWebdingsFont; }

    // [gui] The picture of a knob, created when first requested and then kept. See createKnobBitmap.
    WindowsLib::Bitmap& getKnob(COLORREF foreground, COLORREF background, bool smooth, int diameter);

    // [any] A new picture of a knob, owned by the caller. See createKnobBitmap.
    static HBITMAP createKnob(COLORREF foreground, COLORREF background, bool smooth, int diameter);

private:
    using KnobKey = std::tuple<COLORREF, COLORREF, int, bool>;  // Foreground, background, diameter, smooth.

    WindowsLib::Brush m_background;
    WindowsLib::Brush m_panelBorder;
    WindowsLib::Brush m_selectedButton;
    WindowsLib::Brush m_selectedButton1;
    WindowsLib::Brush m_selectedButton2;
    WindowsLib::Brush m_unselectedButton;
    WindowsLib::Brush m_unusedButton;
    WindowsLib::Brush m_unusedSelectedButton;
    WindowsLib::Brush m_disabledButton;
    WindowsLib::Brush m_controlBorder;
    WindowsLib::Brush m_controlBorderDisabled;
    WindowsLib::Brush m_frame;
    WindowsLib::Brush m_label;
    WindowsLib::Brush m_labelDisabled;
    WindowsLib::Brush m_pen;
    WindowsLib::Brush m_selectedCell;
    WindowsLib::Brush m_text;

    WindowsLib::Pen m_greenPen;
    WindowsLib::Pen m_greenPen2;
    WindowsLib::Pen m_blackPen;

    WindowsLib::Cursor m_redCursor;

    WindowsLib::Font m_font1{"Small Fonts", -7, FW_NORMAL};
    WindowsLib::Font m_font2{"Small Fonts", -8, FW_BOLD};
    WindowsLib::Font m_font3{"Small Fonts", -8, FW_NORMAL};
    WindowsLib::Font m_font4{"Microsoft Sans Serif", 14, FW_NORMAL};
    WindowsLib::Font m_font5{"MS Sans Serif", -8, FW_BOLD};
    WindowsLib::Font m_font6{"Microsoft Sans Serif", -11, FW_BOLD};
    WindowsLib::Font m_font7{"Tahoma", -11, FW_BOLD};
    WindowsLib::Font m_font8{"MS Sans Serif", -14, FW_NORMAL};
    WindowsLib::Font m_font9{"Tahoma", -11, FW_NORMAL};
    WindowsLib::Font m_bigFont{"System", -8, FW_BOLD};
    WindowsLib::Font m_smallFont{"Arial", 12, FW_NORMAL};
    WindowsLib::Font m_largeFont{"Arial", -72, FW_BOLD};
    WindowsLib::Font m_webdingsFont{"Webdings", 24, FW_NORMAL};
    WindowsLib::Font m_webdingsFont2{"Webdings", -30, FW_NORMAL};
    WindowsLib::Font m_webdingsFont3{"Webdings", -14, FW_NORMAL};
    WindowsLib::Font m_smallWebdingsFont{"Webdings", 18, FW_NORMAL};

    std::map<KnobKey, std::shared_ptr<WindowsLib::Bitmap>> m_knobs;
};

}
