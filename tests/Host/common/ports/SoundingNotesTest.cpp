#include "Host/common/ports/SoundingNotes.h"

#include <gtest/gtest.h>

#include <vector>

namespace Host {
namespace {

OutputEvent event(unsigned status, unsigned d1, unsigned d2) {
    return {d2 << 16 | d1 << 8 | status, 0};
}

std::vector<OutputEvent> endOf(SoundingNotes& notes, std::int64_t microseconds = 0) {
    std::vector<OutputEvent> endings;
    notes.end(microseconds, [&endings](const OutputEvent& ending) { endings.push_back(ending); });
    return endings;
}

TEST(SoundingNotesTest, EachNoteEndsAsOftenAsItWasStarted) {
    SoundingNotes notes;
    for (const OutputEvent& sent : {event(0x90, 60, 1), event(0x90, 60, 2), event(0x95, 61, 3), event(0x90, 62, 4),
                                    event(0x80, 62, 0), event(0x90, 63, 5), event(0x90, 63, 0), event(0x80, 64, 0)})
        notes.sent(sent);
    EXPECT_EQ(endOf(notes), (std::vector{event(0x80, 60, 64), event(0x80, 60, 64), event(0x85, 61, 64)}));
    EXPECT_TRUE(endOf(notes).empty()) << "they are ended now";
}

TEST(SoundingNotesTest, PedalThatIsDownIsLetGo) {
    SoundingNotes notes;
    for (const OutputEvent& sent :
         {event(0xb1, 64, 127), event(0xb2, 64, 64), event(0xb2, 64, 63), event(0xb3, 65, 127)})
        notes.sent(sent);
    EXPECT_EQ(endOf(notes), (std::vector{event(0xb1, 64, 0)}));
    EXPECT_TRUE(endOf(notes).empty());
}

TEST(SoundingNotesTest, EndingsCarryTheirTime) {
    SoundingNotes notes;
    notes.sent(event(0x90, 60, 1));
    EXPECT_EQ(endOf(notes, 77).front().microseconds, 77);
}

}
}
