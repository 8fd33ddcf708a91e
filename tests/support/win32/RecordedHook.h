#pragma once

#include <windows.h>

#include <string>

namespace TestSupport {

// The tests' own keyboard hooks: one that records its calls, and one without functions.
class RecordedHook {
public:
    static std::string recordingFolder() { return folder() + "\\hooks\\recording"; }
    static std::string emptyFolder() { return folder() + "\\hooks\\empty"; }
    static std::string missingFolder() { return folder() + "\\hooks\\none"; }

    RecordedHook() : m_library(LoadLibraryA((recordingFolder() + "\\KeyboardHook_64.dll").c_str())) { takeCalls(); }
    ~RecordedHook() { FreeLibrary(m_library); }
    RecordedHook(const RecordedHook&) = delete;
    RecordedHook& operator=(const RecordedHook&) = delete;

    // The calls since the last time, one per line.
    std::string takeCalls() const {
        const auto take =
            reinterpret_cast<const char* (*)()>(reinterpret_cast<void (*)()>(GetProcAddress(m_library, "takeCalls")));
        return take ? take() : "";
    }

private:
    // The folder of this program's.
    static std::string folder() {
        std::string path(0x8000, '\0');
        path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
        return path.substr(0, path.rfind('\\'));
    }

    HMODULE m_library;
};

}
