#include "Host/common/ports/OutputQueue.h"

#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

namespace Host {
namespace {

constexpr std::size_t FOR_NOTES = OutputQueue::CAPACITY - OutputQueue::RESERVED_FOR_ENDINGS;

OutputEvent event(unsigned status, unsigned d1, unsigned d2) {
    return {d2 << 16 | d1 << 8 | status, 0};
}

OutputEvent noteOn(unsigned note, unsigned channel = 0) {
    return event(0x90 | channel, note, 100);
}

OutputEvent noteOff(unsigned note, unsigned channel = 0) {
    return event(0x80 | channel, note, 0);
}

std::vector<OutputEvent> popAll(OutputQueue& queue) {
    std::vector<OutputEvent> events;
    OutputEvent next;
    while (queue.pop(next))
        events.push_back(next);
    return events;
}

TEST(OutputQueueTest, EventsComeOutInTheirOrder) {
    OutputQueue queue;
    EXPECT_TRUE(queue.isEmpty());
    for (unsigned round = 0; round < 5; ++round) {
        std::vector<OutputEvent> events;
        for (unsigned i = 0; i < 1000; ++i) {
            events.push_back({0x90 | i << 8, round * 1000 + i});
            ASSERT_TRUE(queue.push(events.back()));
        }
        EXPECT_FALSE(queue.isEmpty());
        EXPECT_EQ(popAll(queue), events);
        EXPECT_TRUE(queue.isEmpty());
    }
}

TEST(OutputQueueTest, LastPlacesAreKeptForEndings) {
    OutputQueue queue;
    for (std::size_t i = 0; i < FOR_NOTES; ++i)
        ASSERT_TRUE(queue.push(noteOn(1)));

    EXPECT_FALSE(queue.push(noteOn(2)));
    EXPECT_FALSE(queue.push(event(0xe0, 0, 64)));
    EXPECT_FALSE(queue.push(event(0xb0, 64, 127))) << "a pedal pressed";
    EXPECT_TRUE(queue.push(noteOff(1)));
    EXPECT_TRUE(queue.push(event(0x90, 2, 0)));
    EXPECT_TRUE(queue.push(event(0xb0, 64, 0))) << "a pedal let go";
    EXPECT_TRUE(queue.push(event(0xb5, 123, 0)));
    EXPECT_TRUE(queue.push(event(0xff, 0, 0)));
    EXPECT_EQ(queue.dropped(), 3u);
    EXPECT_EQ(popAll(queue).size(), FOR_NOTES + 5);
    EXPECT_TRUE(queue.push(noteOn(2))) << "with room again notes are taken again";
}

// Everything that ends something, of each kind and place.
std::vector<OutputEvent> allEndings() {
    std::vector<OutputEvent> endings;
    for (unsigned channel = 0; channel < 16; ++channel) {
        for (unsigned note = 0; note < 128; ++note)
            endings.push_back(event(0x80 | channel, note, 64));
        for (unsigned pedal = 64; pedal < 70; ++pedal)
            endings.push_back(event(0xb0 | channel, pedal, 0));
        for (unsigned mode = 120; mode < 128; ++mode)
            endings.push_back(event(0xb0 | channel, mode, 0));
    }
    endings.push_back(event(0xfc, 0, 0));
    endings.push_back(event(0xff, 0, 0));
    return endings;
}

TEST(OutputQueueTest, NoEndingIsLostHoweverFullTheQueueIs) {
    OutputQueue queue;
    std::size_t queued = 0;
    while (queue.push(noteOn(1)))
        ++queued;

    for (; queued < OutputQueue::CAPACITY; ++queued)
        ASSERT_TRUE(queue.push(noteOff(1)));

    const std::vector<OutputEvent> endings = allEndings();
    for (int times = 0; times < 3; ++times)
        for (const OutputEvent& ending : endings)
            ASSERT_TRUE(queue.push(ending));

    std::vector<OutputEvent> popped = popAll(queue);
    ASSERT_EQ(popped.size(), OutputQueue::CAPACITY + endings.size()) << "each of them once";

    popped.erase(popped.begin(), popped.begin() + OutputQueue::CAPACITY);
    EXPECT_EQ(popped, endings);
    EXPECT_TRUE(queue.isEmpty());
}

TEST(OutputQueueTest, OwedNoteOffNeverCutsOffALaterNote) {
    OutputQueue queue;
    while (queue.push(noteOn(1))) {
    }

    for (std::size_t i = 0; i < OutputQueue::RESERVED_FOR_ENDINGS; ++i)
        queue.push(noteOff(1));
    ASSERT_TRUE(queue.push(noteOff(60)));  // Owed from here on.

    OutputEvent next;
    for (std::size_t i = 0; i < OutputQueue::CAPACITY; ++i) {
        ASSERT_TRUE(queue.pop(next));
        ASSERT_FALSE(queue.push(noteOn(60))) << "would come before the note-off that is owed";
    }

    ASSERT_TRUE(queue.pop(next));
    EXPECT_EQ(next, event(0x80, 60, 64));
    EXPECT_FALSE(queue.push(noteOn(60))) << "that note-off is not sent yet";
    EXPECT_FALSE(queue.pop(next));
    EXPECT_TRUE(queue.push(noteOn(60)));
    EXPECT_TRUE(queue.pop(next));
    EXPECT_EQ(next, noteOn(60));
}

TEST(OutputQueueTest, AllocatesNothing) {
    OutputQueue queue;
    std::size_t count = 0;
    {
        const TestSupport::AllocationCounter counter;
        for (std::size_t i = 0; i < 2 * OutputQueue::CAPACITY; ++i)
            queue.push(i % 2 ? noteOn(1) : noteOff(1));
        OutputEvent next;
        while (queue.pop(next)) {
        }
        count = counter.count();
    }
    EXPECT_EQ(count, 0u);
}

// A fast player and a slow port: whatever is dropped, in the end nothing sounds that should not, and no note was ended
// after it began for the last time.
TEST(OutputQueueTest, NothingSoundsOnAfterAnOverflowBetweenTwoThreads) {
    OutputQueue queue;
    std::atomic<bool> isDone{false};
    std::array<bool, 128> sounds{};
    std::size_t popped = 0;
    std::thread port([&] {
        OutputEvent next;
        for (;;) {
            const bool wasDone = isDone;
            if (queue.pop(next)) {
                sounds[next.d1()] = next.isNoteOn();
                if (++popped % 64 == 0)
                    std::this_thread::yield();
            } else if (wasDone) {
                break;
            }
        }
    });

    for (unsigned i = 0; i < 400000; ++i) {
        queue.push(noteOn(i % 128));
        ASSERT_TRUE(queue.push(noteOff(i % 128)));
    }

    isDone = true;
    port.join();

    for (std::size_t note = 0; note < sounds.size(); ++note)
        EXPECT_FALSE(sounds[note]) << note;

    EXPECT_TRUE(queue.isEmpty());
}

}
}
