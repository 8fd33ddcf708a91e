#pragma once

#include "Host/common/ports/AbandonableThread.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Host {

// Repeatedly looks at something that may hang, such as the ports of the system, on a thread of its own.
class PortWatcher {
public:
    static constexpr std::chrono::milliseconds INTERVAL{1000};
    static constexpr std::chrono::milliseconds STOP_LIMIT{1000};

    // Calls look() an interval after the last time, and for the first time one interval from now. A look that may hang
    // must own everything it touches afterwards.
    explicit PortWatcher(std::function<void()> look, std::chrono::milliseconds interval = INTERVAL);

    // Does what stop does.
    ~PortWatcher();
    PortWatcher(const PortWatcher&) = delete;
    PortWatcher& operator=(const PortWatcher&) = delete;

    // [any] Makes it look at once.
    void wake();

    // [one thread at a time] Ends the watch. A look that hangs is abandoned after the limit; returns false then.
    bool stop(std::chrono::milliseconds limit = STOP_LIMIT);

private:
    struct State;

    std::shared_ptr<State> m_state;
    AbandonableThread m_thread;
};

}
