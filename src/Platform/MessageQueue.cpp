#include "Platform/MessageQueue.h"

#include "Platform/AddressWait.h"

#include <thread>

namespace Platform {

namespace {

thread_local MessageQueue* currentQueue = nullptr;

}

// All counting and marking happens in one order that every thread agrees on, because reader, posters and waiters each
// write one word and then read another's.
MessageQueue::MessageQueue(std::size_t capacity) : m_capacity(capacity), m_slots(std::make_unique<Slot[]>(capacity)) {}

void MessageQueue::open() {
    for (MSG old; tryGet(old);) {
    }
    m_readerAsleep.store(false);
    m_in.fetch_and(~CLOSED);
}

void MessageQueue::close() {
    m_in.fetch_or(CLOSED);
    tellIdleWaiters();
}

bool MessageQueue::isOpen() const {
    return (m_in.load() & CLOSED) == 0;
}

bool MessageQueue::post(UINT message, WPARAM wParam, LPARAM lParam) {
    std::uint64_t in = m_in.load();
    do {
        // The reader may have moved on since m_in was read; then the exchange fails.
        const auto waiting = static_cast<std::int64_t>(postsOf(in) - m_out.load());
        if ((in & CLOSED) != 0 || waiting >= static_cast<std::int64_t>(m_capacity))
            return false;
    } while (!m_in.compare_exchange_weak(in, in + 2));
    Slot& slot = slotOf(postsOf(in));
    slot.message = message;
    slot.wParam = wParam;
    slot.lParam = lParam;
    slot.filled.store(postsOf(in) + 1);
    wakeReader();
    return true;
}

void MessageQueue::wakeReader() {
    if (!m_readerAsleep.load() || !m_readerAsleep.exchange(false))
        return;
    m_posted.fetch_add(1);
    wakeOne(m_posted);
}

bool MessageQueue::get(MSG& message) {
    while (!takeOldest(message)) {
        const std::uint32_t seen = m_posted.load();
        m_readerAsleep.store(true);
        if (!isOldestFilled()) {
            tellIdleWaiters();
            waitWhileEqual(m_posted, seen);
        }
        m_readerAsleep.store(false);
    }
    return message.message != WM_QUIT;
}

bool MessageQueue::tryGet(MSG& message) {
    while (!takeOldest(message)) {
        if (m_out.load() == postsOf(m_in.load()))
            return false;
        std::this_thread::yield();  // A post is at work on the oldest message.
    }
    return true;
}

bool MessageQueue::isIdle() const {
    const std::uint64_t in = m_in.load();
    if ((in & CLOSED) != 0)
        return true;
    // With no post between the two looks at m_in, the queue was empty when the reader was seen asleep.
    return m_out.load() == postsOf(in) && m_readerAsleep.load() && m_in.load() == in;
}

void MessageQueue::waitUntilIdle() {
    m_idleWaiters.fetch_add(1);
    for (;;) {
        const std::uint32_t seen = m_idled.load();
        if (isIdle())
            break;
        waitWhileEqual(m_idled, seen);
    }
    m_idleWaiters.fetch_sub(1);
}

MessageQueue* MessageQueue::ofCurrentThread() {
    return currentQueue;
}

void MessageQueue::setOfCurrentThread(MessageQueue* queue) {
    currentQueue = queue;
}

bool MessageQueue::isOldestFilled() const {
    const std::uint64_t out = m_out.load();
    return slotOf(out).filled.load() == out + 1;
}

bool MessageQueue::takeOldest(MSG& message) {
    if (!isOldestFilled())
        return false;
    const std::uint64_t out = m_out.load();
    const Slot& slot = slotOf(out);
    message = MSG();
    message.message = slot.message;
    message.wParam = slot.wParam;
    message.lParam = slot.lParam;
    m_out.store(out + 1);
    return true;
}

void MessageQueue::tellIdleWaiters() {
    if (m_idleWaiters.load() == 0)
        return;
    m_idled.fetch_add(1);
    wakeAll(m_idled);
}

}
