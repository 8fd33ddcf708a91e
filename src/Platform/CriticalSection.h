#pragma once

#include <memory>

// The one lock class. The owner may enter again, and must leave as often as it entered.
class CriticalSection {
public:
    CriticalSection();

    // Leaves the section if the calling thread is inside, then destroys it.
    ~CriticalSection();

    CriticalSection(const CriticalSection&) = delete;
    CriticalSection& operator=(const CriticalSection&) = delete;

    // [any] Blocks until the calling thread is inside.
    void enter();

    // [owner] Leaves once. Does nothing if the calling thread is not inside.
    void leave();

    // [any, made for window threads] Enters, dispatching the thread's own messages while it waits. False, and not
    // inside, if WM_QUIT arrived meanwhile.
    bool waitWithMessageLoop();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

// Holds a section for the length of a block.
class CriticalSectionLock {
public:
    explicit CriticalSectionLock(CriticalSection& section) : m_section(section) { m_section.enter(); }
    ~CriticalSectionLock() { m_section.leave(); }
    CriticalSectionLock(const CriticalSectionLock&) = delete;
    CriticalSectionLock& operator=(const CriticalSectionLock&) = delete;

private:
    CriticalSection& m_section;
};
