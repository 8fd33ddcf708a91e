#pragma once

#include "Platform/WindowTypes.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace Platform {

// The queue of one thread: a ring of messages that is allocated once. It has no lock, so no post waits for another one
// or for the reader, and posting to a reader that is awake needs no system call.
//
// A post claims a place by incrementing m_in, writes its message there and marks the place as filled. The reader takes
// the oldest message once its place is filled, and frees the place by incrementing m_out.
class MessageQueue {
public:
    // A closed queue with room for this many messages.
    explicit MessageQueue(std::size_t capacity);

    MessageQueue(const MessageQueue&) = delete;
    MessageQueue& operator=(const MessageQueue&) = delete;

    // [any] Empties the queue and starts accepting posts.
    void open();

    // [any] Refuses posts from now on. What is in the queue stays. A closed queue is idle.
    void close();

    // [any, rt]
    [[nodiscard]] bool isOpen() const;

    // [any, rt] Appends. False, and nothing is kept, if the queue is closed or full.
    [[nodiscard]] bool post(UINT message, WPARAM wParam, LPARAM lParam);

    // [reader] Blocks until a message comes and takes it. False for WM_QUIT. Only one reader at a time.
    [[nodiscard]] bool get(MSG& message);

    // [reader, or whoever is left when it has gone] Takes the oldest message if there is one.
    [[nodiscard]] bool tryGet(MSG& message);

    // [any, rt] Whether the queue is closed, or empty with its reader asleep in get().
    [[nodiscard]] bool isIdle() const;

    // [any but the reader] Blocks until isIdle.
    void waitUntilIdle();

    // [any] The queue that the calling thread reads, or null.
    static MessageQueue* ofCurrentThread();

    // [any] Makes this the calling thread's queue; null removes it.
    static void setOfCurrentThread(MessageQueue* queue);

private:
    struct Slot {
        std::atomic<std::uint64_t> filled{0};  // The count of the post that filled it last, from 1.
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    // Twice the number of posts, plus this while the queue is closed, so that no post slips in past a close.
    static constexpr std::uint64_t CLOSED = 1;
    static std::uint64_t postsOf(std::uint64_t in) { return in / 2; }

    Slot& slotOf(std::uint64_t post) const { return m_slots[post % m_capacity]; }
    bool isOldestFilled() const;
    bool takeOldest(MSG& message);
    void wakeReader();
    void tellIdleWaiters();

    const std::size_t m_capacity;
    const std::unique_ptr<Slot[]> m_slots;
    alignas(64) std::atomic<std::uint64_t> m_in{CLOSED};
    alignas(64) std::atomic<std::uint64_t> m_out{0};  // How many messages were taken.

    // Set by the reader before it sleeps and cleared by whoever gives it a reason to wake, so that only the first post
    // of a burst pays for waking it. The reader clears it before it takes a message, so that one that it is at work on
    // never looks like an idle queue.
    std::atomic<bool> m_readerAsleep{false};
    std::atomic<unsigned> m_idleWaiters{0};

    // Words to sleep on, incremented before their sleepers are woken.
    std::atomic<std::uint32_t> m_posted{0};
    std::atomic<std::uint32_t> m_idled{0};
};

}
