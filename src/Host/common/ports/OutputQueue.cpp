#include "Host/common/ports/OutputQueue.h"

namespace Host {

static_assert(OutputQueue::CAPACITY > 0 && (OutputQueue::CAPACITY & (OutputQueue::CAPACITY - 1)) == 0,
              "so that counts that wrap still name the slots");

OutputQueue::OutputQueue() : m_ring(std::make_unique<std::array<OutputEvent, CAPACITY>>()) {}

bool OutputQueue::isOwing() const {
    return m_owedCount.load(std::memory_order_acquire) != m_paidCount.load(std::memory_order_acquire);
}

bool OutputQueue::push(const OutputEvent& event) {
    const bool isEnding = OwedEndings::isEnding(event);
    const std::uint32_t in = m_in.load(std::memory_order_relaxed);
    const std::size_t used = in - m_out.load(std::memory_order_acquire);
    const std::size_t limit = isEnding ? CAPACITY : CAPACITY - RESERVED_FOR_ENDINGS;
    if (used < limit && !isOwing()) {
        (*m_ring)[in % CAPACITY] = event;
        m_in.store(in + 1, std::memory_order_release);
        return true;
    }
    if (isEnding) {
        // Count after adding: whoever sees the count will find the ending.
        m_owed.add(event);
        m_owedCount.fetch_add(1, std::memory_order_release);
        return true;
    }
    m_dropped.fetch_add(1, std::memory_order_relaxed);
    return false;
}

bool OutputQueue::pop(OutputEvent& event) {
    const std::uint32_t out = m_out.load(std::memory_order_relaxed);
    if (m_in.load(std::memory_order_acquire) != out) {
        event = (*m_ring)[out % CAPACITY];
        m_out.store(out + 1, std::memory_order_release);
        return true;
    }
    while (isOwing()) {
        if (!m_isPaying)
            m_countUnderWay = m_owedCount.load(std::memory_order_acquire);
        m_isPaying = m_owed.take(event);
        if (m_isPaying)
            return true;
        // Everything owed when the count was read has been taken. While anything is owed nothing enters the ring, so
        // nothing newer was overtaken.
        m_paidCount.store(m_countUnderWay, std::memory_order_release);
    }
    return false;
}

bool OutputQueue::isEmpty() const {
    return m_in.load(std::memory_order_acquire) == m_out.load(std::memory_order_acquire) && !isOwing();
}

}
