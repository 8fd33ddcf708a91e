#pragma once

#include <windows.h>

#include <algorithm>
#include <string>

namespace Gui {

// [gui] All of a window's text, or its first characters.
inline std::string getWindowText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)), '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1)));
    return text;
}

inline std::string getWindowText(HWND window, int length) {
    std::string text = getWindowText(window);
    text.resize(std::min(text.size(), static_cast<std::size_t>(length)));
    return text;
}

}
