#include "Platform/MessageThread.h"
#include "Platform/ThreadName.h"

#include <windows.h>

#include <string>

namespace Platform {

DWORD currentThreadId() {
    return GetCurrentThreadId();
}

void nameCurrentThread(const char* name) {
    // Not every Windows 10 has this, so it is looked up at run time.
    using SetDescription = HRESULT(WINAPI*)(HANDLE, PCWSTR);
    const HMODULE kernel = GetModuleHandleA("kernel32.dll");
    if (!kernel)
        return;
    const auto address = reinterpret_cast<void*>(GetProcAddress(kernel, "SetThreadDescription"));
    const auto setDescription = reinterpret_cast<SetDescription>(address);
    if (!setDescription)
        return;
    std::wstring wide;
    for (const char* letter = name; *letter; ++letter)
        wide += static_cast<wchar_t>(static_cast<unsigned char>(*letter));
    setDescription(GetCurrentThread(), wide.c_str());
}

}
