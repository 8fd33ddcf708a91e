#include "Backend/midi/engine/NoteVelocities.h"

#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

namespace Backend::MidiEngine {
namespace {

MirelMidiMessage note(int d1, int velocity, int channel = 0, int zone = -1, int input = -1) {
    return {MidiMessage::NoteOn,
            static_cast<char>(d1),
            static_cast<char>(velocity),
            {.channel = static_cast<char>(channel), .zone = static_cast<char>(zone)},
            {.input = static_cast<char>(input)}};
}

TEST(NoteVelocitiesTest, TheLastVelocityOfEachNoteIsKept) {
    NoteVelocities velocities;
    EXPECT_EQ(velocities.find(note(60, 0)), 0);
    velocities.store(note(60, 100));
    velocities.store(note(60, 50));
    EXPECT_EQ(velocities.find(note(60, 0)), 50);
    EXPECT_EQ(velocities.find(note(61, 0)), 0);
    EXPECT_EQ(velocities.find(note(60, 0, 1)), 0);
    EXPECT_EQ(velocities.find(note(60, 0, 0, 2)), 0);
    EXPECT_EQ(velocities.find(note(60, 0, 0, -1, 1)), 0);
    EXPECT_EQ(velocities.find(note(60, 0, -1)), 50);  // The default channel counts as channel 0.
}

TEST(NoteVelocitiesTest, ItGrowsWithItsNotesAndForgetsThemAll) {
    NoteVelocities velocities;
    for (int round = 0; round < 3; ++round) {
        for (int input = 0; input < 8; ++input)
            for (int channel = 0; channel < 16; ++channel)
                for (int d1 = 0; d1 < 128; ++d1)
                    velocities.store(note(d1, (input + channel + d1) % 127 + 1, channel, round, input));
        for (int input = 0; input < 8; ++input)
            for (int channel = 0; channel < 16; ++channel)
                for (int d1 = 0; d1 < 128; ++d1)
                    ASSERT_EQ(velocities.find(note(d1, 0, channel, round, input)), (input + channel + d1) % 127 + 1);
        velocities.clear();
        EXPECT_EQ(velocities.find(note(5, 0, 3, round, 2)), 0);
    }
}

TEST(NoteVelocitiesTest, WithRoomMadeForThemNotesAreStoredWithoutTheHeap) {
    NoteVelocities velocities;
    velocities.store(note(60, 7, 0, 5));
    velocities.makeRoomForMore(16 * 128);
    EXPECT_EQ(velocities.find(note(60, 0, 0, 5)), 7) << "what is stored moves along";
    std::size_t taken = 0;
    {
        const TestSupport::AllocationCounter counter;
        for (int channel = 0; channel < 16; ++channel)
            for (int d1 = 0; d1 < 128; ++d1)
                velocities.store(note(d1, 1, channel));
        taken = counter.count();
    }

    EXPECT_EQ(taken, 0u);
}

}
}
