#pragma once

#include "Host/console/MetalFrame.h"

#include <windows.h>

#include <string>

namespace Host::Console {

// The metallic border of a window: its picture, icon and title. [gui]
class FrameBorder {
public:
    FrameBorder();
    ~FrameBorder();
    FrameBorder(const FrameBorder&) = delete;
    FrameBorder& operator=(const FrameBorder&) = delete;

    // Draws everything except the desk into a device context of the whole window.
    void paint(HDC dc, const FrameLayout& layout, const FrameLook& look, const std::string& title, HICON icon);

private:
    void drawTitle(HDC dc, const Rect& place, bool isActive, const std::string& title) const;

    HFONT m_font;
    Picture m_picture;  // The last one, because a window is painted often and changes rarely.
    FrameLook m_look;
};

}
