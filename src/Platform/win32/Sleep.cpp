#include "Platform/Sleep.h"

#include <windows.h>

namespace Platform {

void sleepMilliseconds(unsigned milliseconds) {
    Sleep(milliseconds);
}

void sleepAnsweringMilliseconds(unsigned milliseconds) {
    if (!IsGUIThread(FALSE)) {
        Sleep(milliseconds);
        return;
    }
    if (MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds, QS_SENDMESSAGE) != WAIT_OBJECT_0)
        return;
    MSG unused;
    PeekMessageA(&unused, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

}
