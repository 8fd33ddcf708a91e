#include "Platform/CriticalSection.h"

#include "Platform/MessageThread.h"
#include "Platform/ThreadMessages.h"

#include <atomic>
#include <mutex>
#include <thread>

struct CriticalSection::State {
    std::mutex mutex;
    std::atomic<DWORD> owner{0};  // Thread id, or 0. A thread finds its own id here only if it wrote it itself.
    unsigned depth = 0;           // The owner's.

    bool isMine() const { return owner.load(std::memory_order_relaxed) == Platform::currentThreadId(); }

    void own() {
        owner.store(Platform::currentThreadId(), std::memory_order_relaxed);
        depth = 1;
    }

    bool tryEnter() {
        if (isMine()) {
            ++depth;
            return true;
        }
        if (!mutex.try_lock())
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
    if (m_state->isMine()) {
        ++m_state->depth;
        return;
    }
    m_state->mutex.lock();
    m_state->own();
}

void CriticalSection::leave() {
    if (!m_state->isMine() || --m_state->depth > 0)
        return;
    m_state->owner.store(0, std::memory_order_relaxed);
    m_state->mutex.unlock();
}

bool CriticalSection::waitWithMessageLoop() {
    while (!m_state->tryEnter()) {
        if (!Platform::dispatchThreadMessages())
            return false;
        std::this_thread::yield();
    }
    return true;
}
