#include "Backend/midi/engine/HeldNotes.h"

#include <gtest/gtest.h>

namespace Backend::MidiEngine {
namespace {

TEST(HeldNotesTest, RemovingReturnsWhetherTheNewestWent) {
    HeldNotes held;
    EXPECT_TRUE(held.remove(60));  // Nothing is held.
    held.add(60, 1);
    held.add(64, 2);
    held.add(60, 3);
    EXPECT_FALSE(held.remove(67));  // Not held.
    EXPECT_FALSE(held.remove(64));  // Older than the newest.
    EXPECT_TRUE(held.remove(60));   // The newer of two.
    EXPECT_EQ(held.last().note, 60);
    EXPECT_EQ(held.last().velocity, 1);
    EXPECT_TRUE(held.remove(60));
    EXPECT_TRUE(held.isEmpty());
}

TEST(HeldNotesTest, ClearForgetsAll) {
    HeldNotes held;
    held.add(60, 1);
    held.clear();
    EXPECT_TRUE(held.isEmpty());
    held.add(61, 1);
    EXPECT_FALSE(held.remove(60));
}

TEST(HeldNotesTest, BeyondTheLimitTheOldestIsForgotten) {
    HeldNotes held;
    held.add(10, 1);
    for (std::size_t i = 0; i < HeldNotes::MAX_NOTES; ++i)
        held.add(60, 1);
    EXPECT_FALSE(held.remove(10));
    for (std::size_t i = 0; i < HeldNotes::MAX_NOTES; ++i)
        ASSERT_TRUE(held.remove(60));
    EXPECT_TRUE(held.isEmpty());
}

}
}
