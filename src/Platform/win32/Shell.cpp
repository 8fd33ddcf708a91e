#include "Platform/Shell.h"

#include <windows.h>

#include <mmsystem.h>
#include <shellapi.h>

namespace Platform {

void showSystemMessage(const std::string& text, const std::string& title) {
    MessageBoxA(GetForegroundWindow(), text.c_str(), title.c_str(), MB_OK);
}

void openWithUsersProgram(const std::string& path) {
    ShellExecuteA(nullptr, "open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

std::vector<std::string> getSystemMidiInputNames() {
    std::vector<std::string> names;
    const UINT count = midiInGetNumDevs();
    for (UINT device = 0; device < count; ++device) {
        MIDIINCAPSA description = {};
        if (midiInGetDevCapsA(device, &description, sizeof(description)) == MMSYSERR_NOERROR)
            names.emplace_back(description.szPname);
    }
    return names;
}

void* getModuleInstance() {
    HMODULE module = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const char*>(&getModuleInstance), &module);
    return module;
}

}
