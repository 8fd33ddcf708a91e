#include "Platform/MessageQueue.h"

#include "Platform/AddressWait.h"

namespace Platform {

namespace {

thread_local MessageQueue* currentQueue = nullptr;

}

MessageQueue::MessageQueue(std::size_t capacity)
    : m_capacity(capacity), m_slots(std::make_unique_for_overwrite<Slot[]>(capacity)) {}

void MessageQueue::open() {
    const std::lock_guard lock(m_mutex);
    m_first = 0;
    m_count = 0;
    m_readerAsleep = false;
    m_open = true;
}

void MessageQueue::close() {
    const std::lock_guard lock(m_mutex);
    m_open = false;
    m_readerAsleep = false;
    tellIdleWaiters();
}

bool MessageQueue::isOpen() const {
    const std::lock_guard lock(m_mutex);
    return m_open;
}

bool MessageQueue::post(UINT message, WPARAM wParam, LPARAM lParam) {
    {
        const std::lock_guard lock(m_mutex);
        if (!m_open || m_count == m_capacity)
            return false;
        m_slots[(m_first + m_count) % m_capacity] = {message, wParam, lParam};
        ++m_count;
        if (!m_readerAsleep)
            return true;
        m_readerAsleep = false;
        m_posted.fetch_add(1);
    }
    wakeOne(m_posted);
    return true;
}

bool MessageQueue::get(MSG& message) {
    std::unique_lock lock(m_mutex);
    while (!takeOldest(message)) {
        m_readerAsleep = true;
        tellIdleWaiters();
        const std::uint32_t seen = m_posted.load();
        lock.unlock();
        waitWhileEqual(m_posted, seen);
        lock.lock();
    }
    m_readerAsleep = false;
    return message.message != WM_QUIT;
}

bool MessageQueue::tryGet(MSG& message) {
    const std::lock_guard lock(m_mutex);
    return takeOldest(message);
}

bool MessageQueue::isIdle() const {
    const std::lock_guard lock(m_mutex);
    return isIdleLocked();
}

void MessageQueue::waitUntilIdle() {
    std::unique_lock lock(m_mutex);
    ++m_idleWaiters;
    while (!isIdleLocked()) {
        const std::uint32_t seen = m_idled.load();
        lock.unlock();
        waitWhileEqual(m_idled, seen);
        lock.lock();
    }
    --m_idleWaiters;
}

MessageQueue* MessageQueue::ofCurrentThread() {
    return currentQueue;
}

void MessageQueue::setOfCurrentThread(MessageQueue* queue) {
    currentQueue = queue;
}

bool MessageQueue::takeOldest(MSG& message) {
    if (m_count == 0)
        return false;
    const Slot& slot = m_slots[m_first];
    message = MSG();
    message.message = slot.message;
    message.wParam = slot.wParam;
    message.lParam = slot.lParam;
    m_first = (m_first + 1) % m_capacity;
    --m_count;
    return true;
}

bool MessageQueue::isIdleLocked() const {
    return !m_open || (m_count == 0 && m_readerAsleep);
}

void MessageQueue::tellIdleWaiters() {
    if (m_idleWaiters == 0)
        return;
    m_idled.fetch_add(1);
    wakeAll(m_idled);
}

}
