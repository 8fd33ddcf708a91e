#include "Gui/Help/ModuleTime.h"

#include "Platform/Shell.h"

#include <array>

namespace Gui::Help {

namespace {

constexpr DWORD MAX_MODULE_PATH = 4096;

std::optional<BuildTime> toLocalTime(const FILETIME& written) {
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (!FileTimeToSystemTime(&written, &universal) || !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        return std::nullopt;
    return BuildTime{local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

}

std::optional<BuildTime> getFileTime(const char* path) {
    const HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    FILETIME written{};
    const bool isKnown = ::GetFileTime(file, nullptr, nullptr, &written) != 0;
    CloseHandle(file);
    return isKnown ? toLocalTime(written) : std::nullopt;
}

std::optional<BuildTime> getModuleTime() {
    std::array<char, MAX_MODULE_PATH> path{};
    const DWORD length =
        GetModuleFileNameA(static_cast<HMODULE>(Platform::getModuleInstance()), path.data(), MAX_MODULE_PATH);
    return length > 0 && length < MAX_MODULE_PATH ? getFileTime(path.data()) : std::nullopt;
}

}
