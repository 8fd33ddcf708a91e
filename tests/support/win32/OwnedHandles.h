#pragma once

#include <windows.h>

namespace TestSupport {

// How many of the system's objects this process holds.
struct OwnedHandles {
    int graphics = 0;
    int windows = 0;
    int menus = 0;

    bool operator==(const OwnedHandles&) const = default;

    // GetGuiResources counts nothing here, so every number that a handle can have is tried.
    static OwnedHandles count() {
        constexpr ULONG_PTR NUMBERS = 0x10000;
        OwnedHandles owned;
        for (ULONG_PTR number = 1; number < NUMBERS; ++number) {
            owned.graphics += GetObjectType(reinterpret_cast<HGDIOBJ>(number)) != 0;
            owned.menus += IsMenu(reinterpret_cast<HMENU>(number)) != FALSE;
            DWORD process = 0;
            GetWindowThreadProcessId(reinterpret_cast<HWND>(number), &process);
            owned.windows += process == GetCurrentProcessId();
        }
        return owned;
    }
};

}
