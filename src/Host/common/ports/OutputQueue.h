#pragma once

#include "Host/common/ports/OutputEvent.h"
#include "Host/common/ports/OwedEndings.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace Host {

// What an output still has to send: a ring of events that one thread fills and another one empties. All of it is [rt].
//
// A port that is too slow loses notes, but never their ends. The last quarter of the ring is kept for events that end
// something; when even that is full they become owed, as a set that can't run full. From then on nothing else is
// accepted until everything in the ring and everything owed has been sent, so a note-off never overtakes its note-on
// and never cuts off a later one.
class OutputQueue {
public:
    static constexpr std::size_t CAPACITY = 4096;
    static constexpr std::size_t RESERVED_FOR_ENDINGS = CAPACITY / 4;

    OutputQueue();
    OutputQueue(const OutputQueue&) = delete;
    OutputQueue& operator=(const OutputQueue&) = delete;

    // [producer] False if the event was dropped. An ending never is.
    bool push(const OutputEvent& event);

    // [consumer] The oldest event; false if there is none.
    [[nodiscard]] bool pop(OutputEvent& event);

    // [any] Whether there is nothing to pop; may be out of date at once.
    [[nodiscard]] bool isEmpty() const;

    // [any] How many events have been dropped.
    std::uint64_t dropped() const { return m_dropped.load(std::memory_order_relaxed); }

private:
    bool isOwing() const;

    const std::unique_ptr<std::array<OutputEvent, CAPACITY>> m_ring;
    // Counts of all events ever put in and taken out; they wrap.
    alignas(64) std::atomic<std::uint32_t> m_in{0};
    alignas(64) std::atomic<std::uint32_t> m_out{0};
    OwedEndings m_owed;
    // The producer increments this with each ending that becomes owed; the consumer records up to which count it has
    // sent all.
    std::atomic<std::uint32_t> m_owedCount{0};
    std::atomic<std::uint32_t> m_paidCount{0};
    std::uint32_t m_countUnderWay = 0;  // Consumer only: the value of m_owedCount before it began to take.
    bool m_isPaying = false;            // Consumer only.
    std::atomic<std::uint64_t> m_dropped{0};
};

}
