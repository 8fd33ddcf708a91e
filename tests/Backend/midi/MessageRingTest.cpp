#include "Backend/midi/MessageRing.h"

#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

namespace Backend::MidiEngine {
namespace {

MirelMidiMessage numbered(int d1) {
    return {MidiMessage::ControllerChange, static_cast<char>(d1), 0};
}

TEST(MessageRingTest, MessagesLeaveInTheOrderInWhichTheyCame) {
    MessageRing ring(3);
    EXPECT_TRUE(ring.isEmpty());

    for (int round = 0; round < 10; ++round) {
        ring.pushBack(numbered(2 * round));
        ring.pushBack(numbered(2 * round + 1));
        for (int i = 0; i < 2; ++i) {
            ASSERT_FALSE(ring.isEmpty());
            EXPECT_EQ(ring.front().getD1(), 2 * round + i);
            ring.popFront();
        }
        EXPECT_TRUE(ring.isEmpty());
    }
}

TEST(MessageRingTest, AFullRingLosesTheOldestAndAllocatesNothing) {
    MessageRing ring(3);
    std::size_t taken = 0;
    {
        const TestSupport::AllocationCounter counter;
        for (int i = 0; i < 8; ++i)
            ring.pushBack(numbered(i));
        taken = counter.count();
    }

    EXPECT_EQ(taken, 0u);
    for (const int left : {5, 6, 7}) {
        EXPECT_EQ(ring.front().getD1(), left);
        ring.popFront();
    }
    EXPECT_TRUE(ring.isEmpty());
}

}
}
