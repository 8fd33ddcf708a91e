#include "Backend/midi/MirelMidiMessage.h"

#include <gtest/gtest.h>

#include <iterator>

namespace Backend::MidiEngine {
namespace {

TEST(MirelMidiMessageTest, DefaultsMeanNoneAndAtOnce) {
    const MirelMidiMessage message;
    EXPECT_EQ(message.getZone(), -1);
    EXPECT_EQ(message.getOutput(), -1);
    EXPECT_EQ(message.getInput(), -1);
    EXPECT_TRUE(message.isDefaultChannel());
    EXPECT_TRUE(message.isDefaultOutput());
    EXPECT_EQ(message.getChannel(), 0);
    EXPECT_EQ(message.getStatus(), 0u);
    EXPECT_EQ(message.getFromControl(), Cell(-1, -1));
    EXPECT_FALSE(message.isMirelReset());
    EXPECT_FALSE(message.isMirelHardReset());
    EXPECT_EQ(message.getPpq(), -1);

    for (const char constant : {MirelMidiMessage::DEFAULT_CHANNEL, MirelMidiMessage::DEFAULT_INPUT,
                                MirelMidiMessage::DEFAULT_OUTPUT, MirelMidiMessage::DEFAULT_ZONE})
        EXPECT_EQ(constant, -1);
}

TEST(MirelMidiMessageTest, FullConstructorTakesEverything) {
    const MirelMidiMessage message(MidiMessage::NoteOn, 60, 100, 3, 4, 5, 6, 700);
    EXPECT_EQ(message.getMidiMessage(), MidiMessage(MidiMessage::NoteOn, 60, 100, 3));
    EXPECT_EQ(message.getOutput(), 4);
    EXPECT_EQ(message.getZone(), 5);
    EXPECT_EQ(message.getInput(), 6);
    EXPECT_EQ(message.getPpq(), 700);
    EXPECT_FALSE(message.isDefaultChannel());
    EXPECT_EQ(message.getFromControl(), Cell(-1, -1));
}

TEST(MirelMidiMessageTest, NamesSayTheSameAsTheirPlaces) {
    const MirelMidiMessage message(MidiMessage::NoteOn, 60, 100, {.output = 4, .channel = 3, .zone = 5},
                                   {.input = 6, .ppq = 700});
    EXPECT_EQ(message.getMidiMessage(), MidiMessage(MidiMessage::NoteOn, 60, 100, 3));
    EXPECT_EQ(message.getOutput(), 4);
    EXPECT_EQ(message.getZone(), 5);
    EXPECT_EQ(message.getInput(), 6);
    EXPECT_EQ(message.getPpq(), 700);
    EXPECT_FALSE(message.isDefaultChannel());

    const MirelMidiMessage ofControl(MidiMessage(MidiMessage::ControllerChange, 7, 99, 0),
                                     {.output = 1, .channel = 99, .zone = 2}, Cell(4, 5));
    EXPECT_EQ(ofControl.getOutput(), 1);
    EXPECT_EQ(ofControl.getChannel(), 99) << "unchecked";
    EXPECT_EQ(ofControl.getZone(), 2);
    EXPECT_EQ(ofControl.getFromControl(), Cell(4, 5));
}

TEST(MirelMidiMessageTest, WithoutNamesEverythingIsTheDefault) {
    const MirelMidiMessage message(MidiMessage::NoteOn, 60, 100);
    EXPECT_TRUE(message.isDefaultOutput());
    EXPECT_TRUE(message.isDefaultChannel());
    EXPECT_EQ(message.getZone(), MirelMidiMessage::DEFAULT_ZONE);
    EXPECT_EQ(message.getInput(), MirelMidiMessage::DEFAULT_INPUT);
    EXPECT_FALSE(message.isTimedEvent());
}

TEST(MirelMidiMessageTest, NegativeChannelIsTheDefaultChannelStoredAsZero) {
    const MirelMidiMessage message(MidiMessage::NoteOn, 60, 100, -1, -1, -1, -1, -1);
    EXPECT_TRUE(message.isDefaultChannel());
    EXPECT_EQ(message.getChannel(), 0);
    EXPECT_EQ(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, 99, -1, -1, -1, -1).getChannel(), 15);
}

TEST(MirelMidiMessageTest, SetChannelKeepsAnyChannelAndFollowsItsSign) {
    MirelMidiMessage message;
    message.setChannel(99);
    EXPECT_EQ(message.getChannel(), 99);
    EXPECT_FALSE(message.isDefaultChannel());
    message.setChannel(-5);
    EXPECT_EQ(message.getChannel(), 0);
    EXPECT_TRUE(message.isDefaultChannel());
    message.setChannel(0);
    EXPECT_FALSE(message.isDefaultChannel());
}

TEST(MirelMidiMessageTest, SetDefaultChannelChangesOnlyTheFlag) {
    MirelMidiMessage message(MidiMessage::NoteOn, 60, 100, 3, 4, 5, 6, 700);
    message.setDefaultChannel(true);
    EXPECT_TRUE(message.isDefaultChannel());
    EXPECT_EQ(message.getChannel(), 3);
    message.setDefaultChannel(false);
    EXPECT_FALSE(message.isDefaultChannel());
    EXPECT_EQ(message.getMidiMessage(), MidiMessage(MidiMessage::NoteOn, 60, 100, 3));
    EXPECT_EQ(message.getLparam(), 0x05060004);
}

TEST(MirelMidiMessageTest, OutputIsDefaultAtMinusOneOnly) {
    MirelMidiMessage message;
    for (int output = -128; output < 128; ++output) {
        message.setOutput(static_cast<char>(output));
        EXPECT_EQ(message.isDefaultOutput(), output == -1) << output;
    }
}

TEST(MirelMidiMessageTest, QuestionsAboutTheEventAreAnsweredByIt) {
    using Outer = bool (MirelMidiMessage::*)() const;
    using Inner = bool (MidiMessage::*)() const;

    struct Row {
        Outer outer;
        Inner inner;
    };

    const Row rows[] = {
        {&MirelMidiMessage::hasParameters, &MidiMessage::hasParameters},
        {&MirelMidiMessage::isNote, &MidiMessage::isNote},
        {&MirelMidiMessage::isNoteOn, &MidiMessage::isNoteOn},
        {&MirelMidiMessage::isNoteOff, &MidiMessage::isNoteOff},
        {&MirelMidiMessage::isControllerChange, &MidiMessage::isControllerChange},
        {&MirelMidiMessage::isProgramChange, &MidiMessage::isProgramChange},
        {&MirelMidiMessage::isChannelPressure, &MidiMessage::isChannelPressure},
        {&MirelMidiMessage::isPitchBend, &MidiMessage::isPitchBend},
        {&MirelMidiMessage::isSongSelect, &MidiMessage::isSongSelect},
        {&MirelMidiMessage::isUnofficialBusSelect, &MidiMessage::isUnofficialBusSelect},
        {&MirelMidiMessage::isTimingTick, &MidiMessage::isTimingTick},
    };

    for (std::uint32_t status = 0x80; status <= 0xFF; ++status) {
        const MidiMessage event(static_cast<MidiMessage::MessageType>(status), 60, 100, 0);
        MirelMidiMessage message;
        message.setMidiMessage(event);
        for (std::size_t i = 0; i < std::size(rows); ++i)
            EXPECT_EQ((message.*rows[i].outer)(), (event.*rows[i].inner)()) << i << ' ' << status;
        EXPECT_EQ(message.getMessageType(), event.getStatus());
        EXPECT_EQ(message.getStatus(), event.getStatus());
        EXPECT_EQ(message.getEventName(), event.getEventName());
        EXPECT_EQ(message.getStatusWithChannel(), event.getStatusWithChannel());
        EXPECT_EQ(message.getMidiOutShortMsg(), event.getMidiOutShortMsg());
        EXPECT_EQ(message.getWparam(), event.getWparam());
    }
}

TEST(MirelMidiMessageTest, SetStatusStoresItsArgumentUnchanged) {
    MirelMidiMessage message;
    message.setStatus(static_cast<MidiMessage::MessageType>(0x93));
    EXPECT_EQ(message.getStatus(), 0x93u);
}

TEST(MirelMidiMessageTest, ControlConstructorReplacesTheChannelUnlessItIsNegative) {
    const MidiMessage event(MidiMessage::ControllerChange, 7, 100, 3);
    const MirelMidiMessage own(event, 1, 99, 2, Cell(4, 5));
    EXPECT_EQ(own.getChannel(), 99);
    EXPECT_FALSE(own.isDefaultChannel());
    EXPECT_EQ(own.getOutput(), 1);
    EXPECT_EQ(own.getZone(), 2);
    EXPECT_EQ(own.getInput(), -1);
    EXPECT_EQ(own.getPpq(), -1);
    EXPECT_EQ(own.getFromControl(), Cell(4, 5));
    const MirelMidiMessage defaulted(event, 1, -1, 2, Cell());
    EXPECT_EQ(defaulted.getChannel(), 0);
    EXPECT_TRUE(defaulted.isDefaultChannel());
}

TEST(MirelMidiMessageTest, WordsOfADefaultMessageRestoreIt) {
    const MirelMidiMessage message;
    EXPECT_EQ(message.getLparam(), 0xFFFF01FF);
    const MirelMidiMessage restored(message.getWparam(), message.getLparam());
    EXPECT_EQ(restored.getZone(), -1);
    EXPECT_EQ(restored.getOutput(), -1);
    EXPECT_EQ(restored.getInput(), -1);
    EXPECT_TRUE(restored.isDefaultChannel());
}

TEST(MirelMidiMessageTest, WordsCarryTheRoutingAndNeitherTimeNorControl) {
    MirelMidiMessage message(MidiMessage::NoteOn, 60, 100, 3, 4, 5, 6, 700);
    message.setFromControl(Cell(1, 2));
    EXPECT_EQ(message.getLparam(), 0x05060004);
    const MirelMidiMessage restored(message.getWparam(), message.getLparam());
    EXPECT_EQ(restored.getMidiMessage(), message.getMidiMessage());
    EXPECT_EQ(restored.getOutput(), 4);
    EXPECT_EQ(restored.getZone(), 5);
    EXPECT_EQ(restored.getInput(), 6);
    EXPECT_FALSE(restored.isDefaultChannel());
    EXPECT_EQ(restored.getPpq(), -1);
    EXPECT_EQ(restored.getFromControl(), Cell(-1, -1));
}

TEST(MirelMidiMessageTest, AnyNonZeroChannelFlagMeansDefault) {
    EXPECT_TRUE(MirelMidiMessage(0x90, 0x0200).isDefaultChannel());
    EXPECT_FALSE(MirelMidiMessage(0x90, 0xFF0000FF).isDefaultChannel());
}

TEST(MirelMidiMessageTest, OneWordGivesTheEventAndDefaults) {
    const MirelMidiMessage message(std::uint64_t{0x03643C93});
    EXPECT_EQ(message.getStatus(), 0x90u);
    EXPECT_EQ(message.getChannel(), 3);
    EXPECT_TRUE(message.isDefaultChannel());
    EXPECT_EQ(message.getMidiOutShortMsg(), 0x00643C93u);
}

TEST(MirelMidiMessageTest, FactoriesMakeWhatSilences) {
    const auto sound = MirelMidiMessage::createAllSoundOffCC(2, 5);
    EXPECT_EQ(sound.getMidiMessage(), MidiMessage(MidiMessage::ControllerChange, 120, 0, 5));
    EXPECT_EQ(sound.getOutput(), 2);
    EXPECT_EQ(sound.getZone(), -1);
    EXPECT_EQ(sound.getInput(), -1);
    EXPECT_FALSE(sound.isDefaultChannel());
    EXPECT_EQ(MirelMidiMessage::createAllControllersOffCC(2, 99).getMidiMessage(),
              MidiMessage(MidiMessage::ControllerChange, 121, 0, 15));

    const auto defaulted = MirelMidiMessage::createAllSoundOffCC(2, -1);
    EXPECT_TRUE(defaulted.isDefaultChannel());
    EXPECT_EQ(defaulted.getChannel(), 0);

    const auto reset = MirelMidiMessage::createSystemReset(3);
    EXPECT_EQ(reset.getStatus(), 255u);
    EXPECT_EQ(reset.getOutput(), 3);
    EXPECT_FALSE(reset.isDefaultChannel());
}

TEST(MirelMidiMessageTest, ResetRequestsAreMarked) {
    EXPECT_TRUE(MirelMidiMessage::createMirelReset().isMirelReset());
    EXPECT_FALSE(MirelMidiMessage::createMirelReset().isMirelHardReset());
    EXPECT_TRUE(MirelMidiMessage::createMirelHardReset().isMirelHardReset());
    EXPECT_FALSE(MirelMidiMessage::createMirelHardReset().isMirelReset());
}

TEST(MirelMidiMessageTest, TimedFromZeroOn) {
    MirelMidiMessage message;
    EXPECT_FALSE(message.isTimedEvent());
    message.setPpq(0);
    EXPECT_TRUE(message.isTimedEvent());
}

}
}
