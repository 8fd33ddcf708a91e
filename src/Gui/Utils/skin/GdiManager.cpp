#include "Gui/Utils/skin/GdiManager.h"

#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/KnobBitmap.h"
#include "Platform/Shell.h"

namespace Gui {

GdiManager::GdiManager(COLORREF background, COLORREF panelBorder, COLORREF selectedButton, COLORREF selectedButton1,
                       COLORREF selectedButton2, COLORREF unselectedButton, COLORREF unusedButton,
                       COLORREF unusedSelectedButton, COLORREF disabledButton, COLORREF controlBorder,
                       COLORREF controlBorderDisabled, COLORREF frame, COLORREF text, COLORREF labelDisabled,
                       COLORREF greenPen, COLORREF selectedCell, COLORREF label)
    : m_background(background),
      m_panelBorder(panelBorder),
      m_selectedButton(selectedButton),
      m_selectedButton1(selectedButton1),
      m_selectedButton2(selectedButton2),
      m_unselectedButton(unselectedButton),
      m_unusedButton(unusedButton),
      m_unusedSelectedButton(unusedSelectedButton),
      m_disabledButton(disabledButton),
      m_controlBorder(controlBorder),
      m_controlBorderDisabled(controlBorderDisabled),
      m_frame(frame),
      m_label(label),
      m_labelDisabled(labelDisabled),
      m_pen(greenPen),
      m_selectedCell(selectedCell),
      m_text(text),
      m_greenPen(2, greenPen),
      m_greenPen2(1, unusedButton),
      m_blackPen(2, background),
      m_redCursor(static_cast<HINSTANCE>(Platform::getModuleInstance()), IDC_RED_CURSOR) {}

GdiManager GdiManager::create() {
    return {BLACK,                 // background
            DARK_GREEN,            // panelBorder
            LIGHT_LIGHT_GREEN,     // selectedButton
            LIGHT_GREEN,           // selectedButton1
            GREEN,                 // selectedButton2
            DARK_GREEN,            // unselectedButton
            DARK_DARK_GREEN,       // unusedButton
            DARK_RED,              // unusedSelectedButton
            DARK_GREY,             // disabledButton
            DARK_GREEN,            // controlBorder
            DARK_GREY,             // controlBorderDisabled
            LIGHT_RED,             // frame
            AMBER,                 // text
            LIGHT_GREY,            // labelDisabled
            DARK_DARK_DARK_GREEN,  // greenPen
            DARK_DARK_GREY,        // selectedCell
            GREEN};                // label
}

WindowsLib::Bitmap& GdiManager::getKnob(COLORREF foreground, COLORREF background, bool smooth, int diameter) {
    std::shared_ptr<WindowsLib::Bitmap>& knob = m_knobs[{foreground, background, diameter, smooth}];
    if (!knob)
        knob = std::make_shared<WindowsLib::Bitmap>(createKnob(foreground, background, smooth, diameter));
    return *knob;
}

HBITMAP GdiManager::createKnob(COLORREF foreground, COLORREF background, bool smooth, int diameter) {
    return createKnobBitmap(foreground, background, smooth, diameter);
}

}
