#include "Platform/StopRequest.h"

#include <windows.h>

namespace Platform {

namespace {

// The first request sets it permanently.
HANDLE requestEvent() {
    static const HANDLE event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    return event;
}

// When a console is closed, the system ends the process as soon as this returns, so this waits to give the program time
// to end by itself.
BOOL WINAPI request(DWORD kind) {
    constexpr DWORD TIME_TO_END = 5000;
    SetEvent(requestEvent());
    if (kind == CTRL_CLOSE_EVENT || kind == CTRL_LOGOFF_EVENT || kind == CTRL_SHUTDOWN_EVENT)
        Sleep(TIME_TO_END);
    return TRUE;
}

}

void watchForStopRequests() {
    requestEvent();
    SetConsoleCtrlHandler(request, TRUE);
}

bool waitForStopRequest(std::chrono::milliseconds limit) {
    return WaitForSingleObject(requestEvent(), static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

bool isPauseRequested() {
    return false;
}

void pauseProgram() {}

}
