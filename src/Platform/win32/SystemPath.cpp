#include "Platform/SystemPath.h"

#include <windows.h>

namespace Platform {

std::optional<std::filesystem::path> systemPath(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos)
        return std::nullopt;
    const int length = static_cast<int>(path.size());
    const int needed = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), length, nullptr, 0);
    if (needed <= 0)
        return std::nullopt;
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), length, wide.data(), needed);
    return std::filesystem::path(wide).make_preferred();
}

std::string utf8Path(const std::filesystem::path& path) {
    const std::wstring& wide = path.native();
    const int length = static_cast<int>(wide.size());
    const int needed = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, text.data(), needed, nullptr, nullptr);
    return text;
}

}
