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

}
