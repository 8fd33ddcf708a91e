#include "Platform/Sleep.h"

#include <windows.h>

namespace Platform {

void sleepMilliseconds(unsigned milliseconds) {
    Sleep(milliseconds);
}

void sleepAnsweringWindows(unsigned milliseconds) {
    if (!IsGUIThread(FALSE)) {
        Sleep(milliseconds);
        return;
    }
    const ULONGLONG end = GetTickCount64() + milliseconds;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
        const auto left = static_cast<DWORD>(end - now);
        if (MsgWaitForMultipleObjects(0, nullptr, FALSE, left, QS_SENDMESSAGE) == WAIT_TIMEOUT)
            return;
        MSG unused;
        PeekMessageA(&unused, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
}

}
