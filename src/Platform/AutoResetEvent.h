#pragma once

#include <memory>

namespace Platform {

// An event that lets exactly one waiter through each time it is set and then unsets itself. Initially unset.
class AutoResetEvent {
public:
    AutoResetEvent();
    ~AutoResetEvent();
    AutoResetEvent(const AutoResetEvent&) = delete;
    AutoResetEvent& operator=(const AutoResetEvent&) = delete;

    // [any, rt] Lets one present or future waiter through. Setting a set event changes nothing.
    void set();

    // [any] Blocks without a time limit until the event is set, and unsets it.
    void wait();

    // [any] Like wait, for a thread that may have windows: it keeps answering what other threads send to them.
    void waitAnsweringWindows();

private:
    struct State;
    std::shared_ptr<State> m_state;
};

}
