#pragma once

#include <memory>

namespace Platform {

// Makes the calling thread one that keeps time, as far as the system lets it: raised priority and fine timers. Where
// the user may not have that, everything stays as it was, in silence.
class RaisedPriority {
public:
    RaisedPriority();
    // [the same thread] Gives it back.
    ~RaisedPriority();
    RaisedPriority(const RaisedPriority&) = delete;
    RaisedPriority& operator=(const RaisedPriority&) = delete;

    // [any] Whether the system agreed to the priority.
    bool isRaised() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}
