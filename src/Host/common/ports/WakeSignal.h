#pragma once

#include "Platform/AddressWait.h"

#include <atomic>
#include <cstdint>

namespace Host {

// Wakes the one thread that waits for work. Notifying it while it is at work costs no system call.
class WakeSignal {
public:
    // [any, rt] There is something to do.
    void notify() {
        m_count.fetch_add(1);
        if (m_isAsleep.load())
            Platform::wakeOne(m_count);
    }

    // [the waiter] Read this before looking for work, and hand it to wait() if there was none.
    std::uint32_t now() const { return m_count.load(); }

    // [the waiter] Sleeps unless notify() was called since that now(). May return spuriously.
    void wait(std::uint32_t seen) {
        m_isAsleep.store(true);
        if (m_count.load() == seen)
            Platform::waitWhileEqual(m_count, seen);
        m_isAsleep.store(false);
    }

private:
    std::atomic<std::uint32_t> m_count{0};
    std::atomic<bool> m_isAsleep{false};
};

}
