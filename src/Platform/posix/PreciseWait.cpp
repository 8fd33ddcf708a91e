#include "Platform/PreciseWait.h"

#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <ctime>

namespace Platform {

namespace {

constexpr std::uint32_t ASLEEP = 0;
constexpr std::uint32_t WOKEN = 1;

}

struct PreciseWait::State {
    std::atomic<std::uint32_t> word{ASLEEP};
};

static_assert(sizeof(std::atomic<std::uint32_t>) == sizeof(std::uint32_t));

PreciseWait::PreciseWait() : m_state(std::make_unique<State>()) {}

PreciseWait::~PreciseWait() = default;

void PreciseWait::waitUntil(std::int64_t microseconds) {
    // The only sleep that ends at an absolute time with the precision of the kernel's timers and that another thread
    // can end early.
    timespec deadline = {};
    deadline.tv_sec = static_cast<time_t>(microseconds / 1000000);
    deadline.tv_nsec = static_cast<long>(microseconds % 1000000 * 1000);
    while (microseconds > 0 && m_state->word.load() == ASLEEP) {
        const long result = syscall(SYS_futex, &m_state->word, FUTEX_WAIT_BITSET_PRIVATE, ASLEEP, &deadline, nullptr,
                                    FUTEX_BITSET_MATCH_ANY);
        if (result != 0 && errno != EINTR)
            break;
    }
    m_state->word.store(ASLEEP);
}

void PreciseWait::wake() {
    if (m_state->word.exchange(WOKEN) == ASLEEP)
        syscall(SYS_futex, &m_state->word, FUTEX_WAKE_PRIVATE, 1, nullptr, nullptr, 0);
}

}
