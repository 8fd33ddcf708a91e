#pragma once

#include <windows.h>

#include <string>

namespace Gui {

// [any] The text as the system draws it: functions that draw bytes use the system's code page, not the process's.
inline std::wstring toDrawnText(const std::string& utf8) {
    const auto length = static_cast<int>(utf8.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

// [gui] The system's functions of these names, for UTF-8.
inline void drawText(HDC dc, const std::string& text, RECT& place, UINT format) {
    const std::wstring wide = toDrawnText(text);
    DrawTextW(dc, wide.c_str(), static_cast<int>(wide.size()), &place, format);
}

inline SIZE measureText(HDC dc, const std::string& text) {
    const std::wstring wide = toDrawnText(text);
    SIZE extent{};
    GetTextExtentPoint32W(dc, wide.c_str(), static_cast<int>(wide.size()), &extent);
    return extent;
}

}
