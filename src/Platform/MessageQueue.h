#pragma once

#include "Platform/WindowTypes.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

namespace Platform {

// The queue of one thread: a ring of messages that is allocated once. Posting and taking allocate nothing, and a post
// to a reader that is not asleep costs no system call.
class MessageQueue {
public:
    // A closed queue for this many messages.
    explicit MessageQueue(std::size_t capacity);

    MessageQueue(const MessageQueue&) = delete;
    MessageQueue& operator=(const MessageQueue&) = delete;

    // [any] Empties the queue and lets posts in.
    void open();

    // [any] Refuses posts from now on. What is in the queue stays. A closed queue is idle.
    void close();

    // [any]
    bool isOpen() const;

    // [any] Appends. False, and nothing is kept, if the queue is closed or full.
    bool post(UINT message, WPARAM wParam, LPARAM lParam);

    // [reader] Blocks until a message comes and takes it. False for WM_QUIT. There is one reader at a time.
    bool get(MSG& message);

    // [any] Takes the oldest message if there is one.
    bool tryGet(MSG& message);

    // [any] Whether the queue is closed, or empty with its reader asleep in get().
    bool isIdle() const;

    // [any but the reader] Blocks until isIdle.
    void waitUntilIdle();

    // [any] The queue that the calling thread reads, or null.
    static MessageQueue* ofCurrentThread();

    // [any] Makes this the calling thread's queue; null when it has none any more.
    static void setOfCurrentThread(MessageQueue* queue);

private:
    struct Slot {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    bool takeOldest(MSG& message);
    bool isIdleLocked() const;
    void tellIdleWaiters();

    const std::size_t m_capacity;
    const std::unique_ptr<Slot[]> m_slots;
    mutable std::mutex m_mutex;
    std::size_t m_first = 0;
    std::size_t m_count = 0;
    bool m_open = false;

    // Set by the reader before it sleeps and cleared by whoever gives it a reason to wake, so that only the first post
    // of a burst pays for waking it, and so that a message on its way to the reader never looks like an idle queue.
    bool m_readerAsleep = false;
    unsigned m_idleWaiters = 0;

    // Words to sleep on. Each is changed under the mutex before its sleepers are woken.
    std::atomic<std::uint32_t> m_posted{0};
    std::atomic<std::uint32_t> m_idled{0};
};

}
