#include "Host/console/win32/FrameBorder.h"

#include "Gui/Utils/skin/DrawnText.h"

#include <algorithm>

namespace Host::Console {

FrameBorder::FrameBorder()
    : m_font(CreateFontA(-12, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                         CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Tahoma")) {}

FrameBorder::~FrameBorder() {
    DeleteObject(m_font);
}

void FrameBorder::paint(HDC dc, const FrameLayout& layout, const FrameLook& look, const std::string& title,
                        HICON icon) {
    if (m_picture.pixels.empty() || m_picture.width != layout.width() || m_picture.height != layout.height() ||
        m_look != look) {
        m_picture = renderMetalFrame(layout, look);
        m_look = look;
    }
    if (m_picture.pixels.empty())
        return;
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, m_picture.width, -m_picture.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    // Everything is composed off the screen, so that nothing flickers.
    void* bits = nullptr;
    const HDC memory = CreateCompatibleDC(dc);
    const HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!memory || !bitmap) {
        DeleteObject(bitmap);
        DeleteDC(memory);
        return;
    }
    std::copy(m_picture.pixels.begin(), m_picture.pixels.end(), static_cast<std::uint32_t*>(bits));
    const HGDIOBJ old = SelectObject(memory, bitmap);
    const Rect place = layout.icon();
    DrawIconEx(memory, place.left, place.top, icon, place.right - place.left, place.bottom - place.top, 0, nullptr,
               DI_NORMAL);
    drawTitle(memory, layout.title(), look.isActive, title);
    const int saved = SaveDC(dc);
    const Rect desk = layout.desk();
    ExcludeClipRect(dc, desk.left, desk.top, desk.right, desk.bottom);
    BitBlt(dc, 0, 0, m_picture.width, m_picture.height, memory, 0, 0, SRCCOPY);
    RestoreDC(dc, saved);
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
}

// Engraved: dark letters whose lower edges catch the light.
void FrameBorder::drawTitle(HDC dc, const Rect& place, bool isActive, const std::string& title) const {
    constexpr UINT FORMAT = DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS | DT_NOPREFIX;
    const HGDIOBJ old = SelectObject(dc, m_font);
    SetBkMode(dc, TRANSPARENT);
    RECT rect{place.left, place.top + 1, place.right, place.bottom + 1};
    SetTextColor(dc, isActive ? RGB(226, 230, 236) : RGB(128, 130, 134));
    Gui::drawText(dc, title, rect, FORMAT);
    OffsetRect(&rect, 0, -1);
    SetTextColor(dc, isActive ? RGB(22, 26, 30) : RGB(52, 54, 58));
    Gui::drawText(dc, title, rect, FORMAT);
    SelectObject(dc, old);
}

}
