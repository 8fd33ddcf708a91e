#include "Backend/midi/engine/MidiEngineMessageManager.h"

#include "Backend/midi/engine/MidiEngineMessages.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "tests/support/EngineFixture.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>

namespace Backend::MidiEngine {
namespace {

class MidiEngineMessageManagerTest : public testing::Test, public TestSupport::EngineFixture {
protected:
    // What the host gets for an event that goes through the queue and two slices.
    MirelMidiMessage passThrough(const MirelMidiMessage& message) {
        post(message);
        engine->playTimeSlice(900, 1001);
        engine->playTimeSlice(1001, 1002);
        return host.played.empty() ? MirelMidiMessage() : host.played.back();
    }

    static MirelMidiMessage event(const Cell& control, std::int32_t ppq) {
        MirelMidiMessage message(MidiMessage::NoteOn, 60, 100, {.output = 0, .channel = 3, .zone = 2}, {.ppq = ppq});
        message.setFromControl(control);
        return message;
    }
};

TEST_F(MidiEngineMessageManagerTest, RequestsHaveTheirNumbers) {
    using namespace EngineMessages;
    UINT expected = 32870;
    for (const UINT number :
         {PLAY_MIDI_VIA_PARAM.NUMBER, PLAY_MIDI_VIA_ALLOC.NUMBER, SET_MIDI_INPUT_PORTS.NUMBER,
          SET_MIDI_OUTPUT_PORTS.NUMBER, ENABLE_MIDI_INPUT.NUMBER, ENABLE_MIDI_OUTPUT.NUMBER,
          SET_DEFAULT_MIDI_OUTPUT.NUMBER, SET_LAYER_LIST.NUMBER, RESET_ONLY.NUMBER, SET_ZONE_MAP.NUMBER,
          SET_ZONE.NUMBER, SET_TEMPO.NUMBER, SET_TEMPO_SOURCE.NUMBER, SET_MIDI_THRU.NUMBER})
        EXPECT_EQ(number, expected++);
}

TEST_F(MidiEngineMessageManagerTest, AnEventOfAControlKeepsItsControl) {
    EXPECT_EQ(passThrough(event(Cell(0, 0), -1)).getFromControl(), Cell(0, 0));
    EXPECT_EQ(passThrough(event(Cell(15, 15), -1)).getFromControl(), Cell(15, 15));
}

TEST_F(MidiEngineMessageManagerTest, AnUntimedEventBeyondTheGridLosesItsControl) {
    EXPECT_EQ(passThrough(event(Cell(20, 0), -1)).getFromControl(), Cell(-1, -1));
    EXPECT_EQ(passThrough(event(Cell(0, 16), -1)).getFromControl(), Cell(-1, -1));
}

TEST_F(MidiEngineMessageManagerTest, ATimedEventKeepsItsTime) {
    EXPECT_EQ(passThrough(event(Cell(), 1000)).getPpq(), 1000);
    EXPECT_EQ(passThrough(event(Cell(20, 0), 1000)).getFromControl(), Cell(20, 0));
}

TEST_F(MidiEngineMessageManagerTest, TheTwoWordsKeepTheRouting) {
    const MirelMidiMessage played = passThrough(event(Cell(), -1));
    EXPECT_EQ(played.getMidiMessage(), MidiMessage(MidiMessage::NoteOn, 60, 100, 3));
    EXPECT_EQ(played.getOutput(), 0);
    EXPECT_EQ(played.getZone(), 2);
    EXPECT_FALSE(played.isDefaultChannel());
}

TEST_F(MidiEngineMessageManagerTest, RequestsForTheHostReachIt) {
    manager().postEnableMidiInput(1, true);
    manager().postEnableMidiInput(0, false);
    manager().postEnableMidiOutput(2, true);
    manager().postEnableMidiOutput(3, false);
    manager().postSetTempo(19);
    manager().postSetTempo(251);
    manager().postSetTempoSource(-1);
    manager().postSetTempoSource(3);
    manager().waitUntilIdle();

    EXPECT_EQ(host.calls, (std::vector<std::string>{"input 1 on", "input 0 off", "output 2 on", "output 3 off",
                                                    "tempo 19", "tempo 251"}));
    EXPECT_EQ(host.tempoSource, 3);
    EXPECT_EQ(host.tempoSourceChanges, 2);
}

TEST_F(MidiEngineMessageManagerTest, TheDefaultOutputKeepsItsLowByte) {
    manager().postSetDefaultMidiOutput(257);
    manager().waitUntilIdle();
    EXPECT_EQ(engine->getDefaultMidiOutput(), 1);
    manager().postSetDefaultMidiOutput(-1);
    manager().waitUntilIdle();
    EXPECT_EQ(engine->getDefaultMidiOutput(), -1);
}

TEST_F(MidiEngineMessageManagerTest, ZonesReachTheEngine) {
    Zones::Zone zone;
    zone.id = 2;
    zone.transpose = 5;
    Zones::ZoneMap zones;
    zones.set(zone);
    manager().postSetZoneMap(zones);
    EXPECT_EQ(passThrough(event(Cell(), -1)).getD1(), 65);
    zone.transpose = -5;
    manager().postSetZone(zone);
    EXPECT_EQ(passThrough(event(Cell(), -1)).getD1(), 55);
}

TEST_F(MidiEngineMessageManagerTest, AnUnknownNumberIsIgnored) {
    for (const UINT number : {0u, 32868u, 32869u, 32884u, 33254u}) {
        MSG message{};
        message.message = number;
        message.wParam = 12345;
        manager().handleMessage(message);
    }
    EXPECT_TRUE(host.calls.empty());
    EXPECT_TRUE(host.played.empty());
}

TEST_F(MidiEngineMessageManagerTest, TheReservedNumberIsAResetAndNothingElse) {
    post(event(Cell(), -1));
    engine->playTimeSlice(0, 1);
    engine->playTimeSlice(1, 2);
    ASSERT_EQ(host.played.size(), 1u);
    MSG message{};
    message.message = EngineMessages::RESET_ONLY.NUMBER;
    std::thread sender([&] { manager().handleMessage(message); });
    while (host.internalClockRequests == 0 || host.tempoSourceChanges < 2)
        engine->playTimeSlice(2, 2);
    sender.join();
    ASSERT_EQ(host.played.size(), 2u);
    EXPECT_TRUE(host.played[1].isNoteOff());
}

TEST_F(MidiEngineMessageManagerTest, OnlyItsThreadIsTheManagersThread) {
    EXPECT_FALSE(manager().currentThreadIsManagerThread());

    struct AskingHost : TestSupport::FakeHost {
        void setTempo(int) override { answer = asked->currentThreadIsManagerThread(); }
        MidiEngineMessageManager* asked = nullptr;
        std::optional<bool> answer;
    } otherHost;

    const auto other = std::make_unique<MidiEngine>(otherHost.mirel(), otherHost);
    otherHost.asked = &other->getMessageManager();
    other->initialize(0, false);
    other->getMessageManager().postSetTempo(100);
    other->end();

    EXPECT_EQ(otherHost.answer, true);
    EXPECT_FALSE(other->getMessageManager().currentThreadIsManagerThread());
}

TEST_F(MidiEngineMessageManagerTest, PostsBeforeTheStartAreCarriedOutAfterIt) {
    TestSupport::FakeHost otherHost;
    const auto other = std::make_unique<MidiEngine>(otherHost.mirel(), otherHost);
    std::thread poster([&] { other->getMessageManager().postSetTempo(99); });
    other->initialize(0, false);
    poster.join();
    other->getMessageManager().waitUntilIdle();
    EXPECT_EQ(otherHost.calls, std::vector<std::string>{"tempo 99"});
    other->end();
}

TEST_F(MidiEngineMessageManagerTest, EndingTwiceAndStartingAgainWork) {
    engine->end();
    engine->end();
    engine->initialize(1, true);
    EXPECT_EQ(engine->getDefaultMidiOutput(), 1);
    manager().postSetTempo(100);
    manager().waitUntilIdle();
    EXPECT_EQ(host.calls, std::vector<std::string>{"tempo 100"});
}

}
}
