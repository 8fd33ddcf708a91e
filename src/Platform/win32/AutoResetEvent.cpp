#include "Platform/AutoResetEvent.h"

#include <windows.h>

namespace Platform {

struct AutoResetEvent::State {
    HANDLE handle = CreateEventA(nullptr, FALSE, FALSE, nullptr);

    ~State() { CloseHandle(handle); }
};

AutoResetEvent::AutoResetEvent() : m_state(std::make_unique<State>()) {}

AutoResetEvent::~AutoResetEvent() = default;

void AutoResetEvent::set() {
    SetEvent(m_state->handle);
}

void AutoResetEvent::wait() {
    WaitForSingleObject(m_state->handle, INFINITE);
}

void AutoResetEvent::waitAnsweringWindows() {
    while (MsgWaitForMultipleObjects(1, &m_state->handle, FALSE, INFINITE, QS_SENDMESSAGE) == WAIT_OBJECT_0 + 1) {
        MSG unused;
        PeekMessageA(&unused, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
}

}
