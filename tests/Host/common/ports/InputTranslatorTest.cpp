#include "Host/common/ports/InputTranslator.h"

#include <gtest/gtest.h>

#include <vector>

namespace Host {
namespace {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;

constexpr char INPUT = 3;

class InputTranslatorTest : public testing::Test {
protected:
    void receive(const std::vector<std::uint8_t>& bytes, std::int64_t microseconds = 0) {
        translator.receive(bytes.data(), bytes.size(), microseconds);
    }

    // "90 60 100 ch -" per event: status, data, channel or - for the default one; then forgets them.
    std::vector<std::string> entered() {
        std::vector<std::string> lines;
        for (const MirelMidiMessage& event : events) {
            char line[64];
            std::snprintf(line, sizeof(line), "%02x %d %d %s", static_cast<unsigned>(event.getStatus()), event.getD1(),
                          event.getD2(), event.isDefaultChannel() ? "-" : std::to_string(event.getChannel()).c_str());
            lines.emplace_back(line);
        }
        events.clear();
        return lines;
    }

    std::vector<ClockMessage> clockMessages() {
        std::vector<ClockMessage> messages;
        ClockMessage message;
        while (clock->pop(message))
            messages.push_back(message);
        return messages;
    }

    using Lines = std::vector<std::string>;

    std::vector<MirelMidiMessage> events;
    std::shared_ptr<ClockInput> clock = std::make_shared<ClockInput>();
    InputTranslator translator{INPUT, [this](const MirelMidiMessage& event) { events.push_back(event); }, clock};
};

TEST_F(InputTranslatorTest, EventsEnterWithTheDefaultOutputAndChannel) {
    receive({0x95, 60, 100});
    ASSERT_EQ(events.size(), 1u);
    const MirelMidiMessage& event = events.front();
    EXPECT_EQ(event.getStatus(), MidiMessage::NoteOn);
    EXPECT_EQ(event.getD1(), 60);
    EXPECT_EQ(event.getD2(), 100);
    EXPECT_TRUE(event.isDefaultChannel());
    EXPECT_TRUE(event.isDefaultOutput());
    EXPECT_EQ(event.getZone(), MirelMidiMessage::DEFAULT_ZONE);
    EXPECT_EQ(event.getInput(), INPUT);
    EXPECT_FALSE(event.isTimedEvent());
}

TEST_F(InputTranslatorTest, InputMayKeepItsChannels) {
    translator.setSettings({true, true, PortSettings::ALL_CHANNELS});
    receive({0x90, 60, 100, 0xbf, 7, 8});
    EXPECT_EQ(entered(), (Lines{"90 60 100 0", "b0 7 8 15"}));
}

TEST_F(InputTranslatorTest, NoteOnWithoutVelocityBecomesANoteOff) {
    receive({0x90, 60, 100, 60, 0, 0x91, 61, 0});
    EXPECT_EQ(entered(), (Lines{"90 60 100 -", "80 60 0 -", "80 61 0 -"}));
}

TEST_F(InputTranslatorTest, OtherChannelsThanThoseListenedToDoNotEnter) {
    translator.setSettings({true, false, 1 << 2 | 1 << 15});
    receive({0x92, 60, 1, 0x93, 61, 2, 0xbf, 7, 3, 0xe0, 0, 4, 0xf6});
    EXPECT_EQ(entered(), (Lines{"90 60 1 -", "b0 7 3 -", "f6 0 0 -"})) << "what has no channel enters";
}

TEST_F(InputTranslatorTest, NoteEndsAsItBeganWhateverWasSetInBetween) {
    receive({0x92, 60, 1, 0x92, 61, 1});
    translator.setSettings({true, true, 0});
    receive({0x82, 60, 9, 0x82, 60, 9, 0x82, 62, 9});
    EXPECT_EQ(entered(), (Lines{"90 60 1 -", "90 61 1 -", "80 60 9 -"})) << "once, and no note that did not enter";
    translator.setSettings({true, true, PortSettings::ALL_CHANNELS});
    receive({0x82, 61, 9, 0x82, 61, 9});
    EXPECT_EQ(entered(), (Lines{"80 61 9 -", "80 61 9 2"}));
}

TEST_F(InputTranslatorTest, HeldNotesEndWhenTheirPortGoes) {
    receive({0x92, 60, 1, 0x93, 61, 1, 0x92, 62, 1, 0x82, 62, 0});
    translator.setSettings({true, true, PortSettings::ALL_CHANNELS});
    receive({0x94, 63, 1, 0x90});
    entered();
    translator.endHeldNotes();
    EXPECT_EQ(entered(), (Lines{"80 60 64 -", "80 61 64 -", "80 63 64 4"}));
    receive({60, 100});
    translator.endHeldNotes();
    EXPECT_TRUE(entered().empty()) << "nor is a message half read completed by another port";
}

TEST_F(InputTranslatorTest, SysexAndWhatOnlyConcernsTheCableDoNotEnter) {
    receive({0xf0, 1, 2, 3, 0xf7, 0xfe, 0xff, 0xf1, 5, 0xf4, 0xf9, 0xfd, 0x90, 60, 100});
    EXPECT_EQ(entered(), (Lines{"90 60 100 -"}));
}

TEST_F(InputTranslatorTest, TimingMessagesEnterAndReachTheClockOfTheirInput) {
    receive({0xf8}, 1);
    EXPECT_TRUE(clockMessages().empty()) << "it is not the tempo source";

    clock->listenTo(INPUT + 1);
    receive({0xf8}, 2);
    EXPECT_TRUE(clockMessages().empty());

    clock->listenTo(INPUT);
    entered();
    receive({0xfa}, 3);
    receive({0x90, 0xf8, 60, 100}, 4);
    receive({0xfc}, 5);
    receive({0xfb}, 6);

    EXPECT_EQ(clockMessages(), (std::vector<ClockMessage>{{ClockMessageKind::START, 3},
                                                          {ClockMessageKind::TICK, 4},
                                                          {ClockMessageKind::STOP, 5},
                                                          {ClockMessageKind::RESUME, 6}}));
    EXPECT_EQ(entered(), (Lines{"fa 0 0 -", "f8 0 0 -", "90 60 100 -", "fc 0 0 -", "fb 0 0 -"}));
}

TEST_F(InputTranslatorTest, FullClockQueueDropsAndGoesOn) {
    clock->listenTo(INPUT);
    for (std::size_t i = 0; i < 2 * ClockInput::CAPACITY; ++i)
        receive({0xf8}, static_cast<std::int64_t>(i));
    EXPECT_EQ(clockMessages().size(), ClockInput::CAPACITY);
    receive({0xf8}, 7);
    EXPECT_EQ(clockMessages(), (std::vector<ClockMessage>{{ClockMessageKind::TICK, 7}}));
}

TEST_F(InputTranslatorTest, NothingEntersAfterTheClose) {
    clock->listenTo(INPUT);
    receive({0x90, 60, 100});
    translator.close();
    entered();
    receive({0x80, 60, 0, 0xf8, 0xb0, 7, 7});
    translator.endHeldNotes();
    EXPECT_TRUE(entered().empty());
    EXPECT_TRUE(clockMessages().empty());
}

}
}
