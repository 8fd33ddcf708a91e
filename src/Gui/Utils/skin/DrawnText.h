#pragma once

#include <windows.h>

#include <string>

namespace Gui {

// [any] The text as the system draws it. What draws bytes goes by the system's code page, not by the process's.
inline std::wstring toDrawnText(const std::string& utf8) {
    const auto length = static_cast<int>(utf8.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

// [gui] As the system's calls of these names do with UTF-8.
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
