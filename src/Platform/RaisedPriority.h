#pragma once

#include <memory>

namespace Platform {

// Gives the calling thread what it needs to keep time, as far as the system allows: raised priority and fine timers. If
// the user lacks the rights, everything silently stays as it was.
class RaisedPriority {
public:
    RaisedPriority();
    // [the same thread] Restores the old priority.
    ~RaisedPriority();
    RaisedPriority(const RaisedPriority&) = delete;
    RaisedPriority& operator=(const RaisedPriority&) = delete;

    // [any] Whether the system granted the priority.
    bool isRaised() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}
