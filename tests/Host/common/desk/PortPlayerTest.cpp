#include "Host/common/desk/PortPlayer.h"

#include "Platform/MessageThread.h"
#include "Platform/MonotonicClock.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeMidiSystem.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <stdexcept>

namespace Host {
namespace {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;
using TestSupport::eventually;
using TestSupport::FakeMidiSystem;
using Sent = std::vector<FakeMidiSystem::Bytes>;
using Slice = DeskClock::Slice;

constexpr std::int64_t SECOND = 1000000;

MirelMidiMessage event(MidiMessage::MessageType status, int d1, int d2, int channel, int output) {
    return {status,
            static_cast<char>(d1),
            static_cast<char>(d2),
            {.output = static_cast<char>(output), .channel = static_cast<char>(channel)}};
}

class PortPlayerTest : public testing::Test {
protected:
    PortPlayerTest() {
        system->plugInputs({"Clock"});
        system->plugOutputs({"A", "B"});
        ports.update();
        EXPECT_TRUE(eventually([this] { return ports.isIdle(); }));
        now = Platform::monotonicMicroseconds();
        play([](std::int32_t, std::int32_t) {});
        before = last;
    }

    Slice play(const PortPlayer::PlayTimeSlice& target) {
        player.playSlice(now, [&](std::int32_t from, std::int32_t to) {
            last = {from, to};
            target(from, to);
        });
        return last;
    }

    Slice playAfter(std::int64_t microseconds) {
        now += microseconds;
        return play([](std::int32_t, std::int32_t) {});
    }

    bool settles() {
        return eventually([this] { return ports.isIdle(); });
    }

    const std::shared_ptr<FakeMidiSystem> system = std::make_shared<FakeMidiSystem>();
    MidiPorts ports{system, {}, [](const MirelMidiMessage&) {}};
    PortPlayer player{ports};
    std::int64_t now = 0;
    Slice last{};
    Slice before{};
};

TEST_F(PortPlayerTest, EventsGoToTheirOutputs) {
    play([this](std::int32_t, std::int32_t) {
        player.playMidi(event(MidiMessage::NoteOn, 60, 100, 3, 1));
        player.playMidi(event(MidiMessage::ProgramChange, 5, 0, 0, 2));
        player.playMidi(event(MidiMessage::NoteOn, 61, 100, 0, 7));
        player.playMidi(event(MidiMessage::NoteOn, 61, 100, 0, -1));
        player.playMidi(event(MidiMessage::SystemReset, 0, 0, 0, 1));
        player.playMidi(event(MidiMessage::SongPosition, 1, 2, 0, 1));
    });
    ASSERT_TRUE(settles());
    EXPECT_EQ(system->sent("A"), (Sent{{0x93, 60, 100}, {0xff}, {0xf2, 1, 2}}));
    EXPECT_EQ(system->sent("B"), (Sent{{0xc0, 5}}));
}

TEST_F(PortPlayerTest, OnlyWholeMessagesAreSent) {
    for (const auto status : {MidiMessage::SystemExclusive, MidiMessage::EndOfSysex, MidiMessage::Empty,
                              static_cast<MidiMessage::MessageType>(0xf4), static_cast<MidiMessage::MessageType>(0x70)})
        player.playMidi(event(status, 1, 2, 0, 1));
    player.playMidi(event(MidiMessage::NoteOn, 200, 100, 0, 1));
    player.playMidi(event(MidiMessage::NoteOn, 60, 128, 0, 1));
    ASSERT_TRUE(settles());
    EXPECT_TRUE(system->sent("A").empty());
}

TEST_F(PortPlayerTest, SlicesFollowTheTempo) {
    EXPECT_EQ(playAfter(SECOND), (Slice{before.to, before.to + 960}));
    player.setTempo(60);
    EXPECT_EQ(playAfter(SECOND), (Slice{before.to + 960, before.to + 1440}));
    player.setTempo(1000);
    EXPECT_EQ(playAfter(SECOND), (Slice{before.to + 1440, before.to + 1920})) << "out of range is ignored";
}

TEST_F(PortPlayerTest, TempoSourceDrivesTheSlices) {
    player.setTempoSource(0);
    EXPECT_EQ(player.getTempoSource(), 0);
    EXPECT_EQ(playAfter(SECOND).to, before.to) << "a clock that stands";
    for (int i = 0; i <= 24; ++i) {
        ASSERT_TRUE(system->receive("Clock", {0xf8}, now + i * SECOND / 24));
        playAfter(i == 24 ? 0 : SECOND / 24);
    }
    EXPECT_NEAR(last.to, before.to + 480, 21);
    player.setTempoSource(-1);
    const std::int32_t to = last.to;
    playAfter(1);
    EXPECT_NEAR(playAfter(SECOND).to, to + 960, 1);
}

TEST_F(PortPlayerTest, PulseLetsEventsPlayWhileTheClockIsStopped) {
    player.setTempoSource(0);
    player.pulseSequencer();
    EXPECT_EQ(playAfter(1000), (Slice{before.to, before.to + 1}));
    EXPECT_EQ(playAfter(1000), (Slice{before.to + 1, before.to + 2}));
    EXPECT_EQ(playAfter(1000), (Slice{before.to + 2, before.to + 2}));
}

TEST_F(PortPlayerTest, EnableReachesThePorts) {
    player.enableMidiOutput(1, false);
    player.enableMidiInput(0, false);
    ASSERT_TRUE(settles());
    EXPECT_FALSE(system->isOutputOpen("A") || system->isInputOpen("Clock"));
    player.enableMidiOutput(1, true);
    ASSERT_TRUE(settles());
    EXPECT_TRUE(system->isOutputOpen("A"));
}

TEST_F(PortPlayerTest, PlayingAllocatesNothing) {
    player.setTempoSource(0);
    system->receive("Clock", {0xf8}, now);
    const MirelMidiMessage on = event(MidiMessage::NoteOn, 60, 100, 0, 1);
    const PortPlayer::PlayTimeSlice target = [this, &on](std::int32_t, std::int32_t) { player.playMidi(on); };
    std::size_t count = 0;
    {
        const TestSupport::AllocationCounter counter;
        for (int i = 0; i < 100; ++i)
            player.playSlice(now += 1000, target);
        count = counter.count();
    }
    EXPECT_EQ(count, 0u);
}

TEST_F(PortPlayerTest, ThreadPlaysSlicesThatJoin) {
    std::atomic<int> slices{0};
    std::atomic<DWORD> thread{0};
    std::atomic<bool> joins{true};
    std::int32_t end = -1;  // Used by the thread only.
    std::int32_t start = -1;

    player.start([&](std::int32_t from, std::int32_t to) {
        joins = joins && to >= from && (end < 0 || from == end);
        if (start < 0)
            start = from;
        end = to;
        thread = Platform::currentThreadId();
        ++slices;
    });
    player.start([](std::int32_t, std::int32_t) { FAIL() << "there is one already"; });
    EXPECT_TRUE(eventually([&slices] { return slices >= 200; }));
    EXPECT_EQ(player.getThreadId(), thread);
    EXPECT_NE(player.getThreadId(), Platform::currentThreadId());
    EXPECT_FALSE(player.hasEnded());

    player.stop();
    EXPECT_TRUE(player.hasEnded());
    EXPECT_TRUE(joins);
    EXPECT_GT(end, start);
    EXPECT_EQ(player.failure(), nullptr);

    const int count = slices;
    player.start([&](std::int32_t, std::int32_t) { ++slices; });
    EXPECT_TRUE(eventually([&] { return slices > count; })) << "it may be started again";
}

TEST_F(PortPlayerTest, WhatSoundsEndsWithTheThread) {
    std::atomic<bool> isPlayed{false};
    player.start([&](std::int32_t, std::int32_t) {
        if (!isPlayed.exchange(true))
            player.playMidi(event(MidiMessage::NoteOn, 60, 100, 0, 2));
    });
    ASSERT_TRUE(eventually([&isPlayed] { return isPlayed.load(); }));
    player.stop();
    ASSERT_TRUE(settles());
    EXPECT_EQ(system->sent("B"), (Sent{{0x90, 60, 100}, {0x80, 60, 64}}));
}

TEST_F(PortPlayerTest, WhatSoundsEndsAlsoWithAnException) {
    player.start([this](std::int32_t, std::int32_t) {
        player.playMidi(event(MidiMessage::NoteOn, 60, 100, 0, 2));
        throw std::runtime_error("a slice that fails");
    });
    ASSERT_TRUE(eventually([this] { return player.hasEnded(); }));
    ASSERT_TRUE(settles());
    EXPECT_EQ(system->sent("B"), (Sent{{0x90, 60, 100}, {0x80, 60, 64}}));
    player.stop();
    ASSERT_NE(player.failure(), nullptr);
    EXPECT_THROW(std::rethrow_exception(player.failure()), std::runtime_error);
}

TEST_F(PortPlayerTest, RecorderKeepsTheMomentsOfTheSlices) {
    play([this](std::int32_t, std::int32_t) { player.playMidi(event(MidiMessage::NoteOn, 60, 100, 0, 0)); });
    now += SECOND;
    play([this](std::int32_t, std::int32_t) { player.playMidi(event(MidiMessage::NoteOff, 60, 100, 0, 0)); });
    ASSERT_TRUE(settles());
    ASSERT_EQ(ports.recorder().size(), 2u);
    const std::string content = ports.recorder().content().value_or("");
    // One second at 120: 960 ppq, 87 40 in a file.
    EXPECT_NE(content.find(std::string("\x87\x40\x80\x3c", 4)), std::string::npos);
}

TEST_F(PortPlayerTest, HungOutputDoesNotDelaySlices) {
    system->hang("A", true);
    for (int i = 0; i < 20000; ++i) {
        now += 1000;
        play([this](std::int32_t, std::int32_t) { player.playMidi(event(MidiMessage::NoteOn, 60, 100, 0, 1)); });
    }
    EXPECT_EQ(last.to, before.to + 20 * 960);
    system->hang("A", false);
}

}
}
