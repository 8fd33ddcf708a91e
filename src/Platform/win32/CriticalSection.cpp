#include "Platform/CriticalSection.h"

#include "Platform/ThreadMessages.h"

#include <windows.h>

#include <atomic>

struct CriticalSection::State {
    CRITICAL_SECTION section;
    std::atomic<DWORD> owner{0};  // Thread id, or 0. A thread finds its own id here only if it wrote it itself.
    unsigned depth = 0;           // The owner's.

    State() { InitializeCriticalSection(&section); }
    ~State() { DeleteCriticalSection(&section); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    bool isMine() const { return owner.load(std::memory_order_relaxed) == GetCurrentThreadId(); }

    void own() {
        owner.store(GetCurrentThreadId(), std::memory_order_relaxed);
        ++depth;
    }

    bool tryEnter() {
        if (!TryEnterCriticalSection(&section))
            return false;
        own();
        return true;
    }
};

CriticalSection::CriticalSection() : m_state(std::make_unique<State>()) {}

CriticalSection::~CriticalSection() {
    while (m_state->isMine())
        leave();
}

void CriticalSection::enter() {
    EnterCriticalSection(&m_state->section);
    m_state->own();
}

void CriticalSection::leave() {
    // Leaving from a thread that is not inside would corrupt the system's section.
    if (!m_state->isMine())
        return;
    if (--m_state->depth == 0)
        m_state->owner.store(0, std::memory_order_relaxed);
    LeaveCriticalSection(&m_state->section);
}

bool CriticalSection::waitWithMessageLoop() {
    while (!m_state->tryEnter()) {
        if (!Platform::dispatchThreadMessages())
            return false;
        Sleep(0);
    }
    return true;
}
