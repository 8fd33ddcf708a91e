#include "Backend/midi/engine/MidiEngine.h"

#include "Platform/WindowSink.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/EngineFixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

namespace Backend::MidiEngine {
namespace {

class MidiEngineTest : public testing::Test, public TestSupport::EngineFixture {};

TEST_F(MidiEngineTest, MillisecondsBecomePpqFarAboveZero) {
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(0, 120), 50000000);
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(500, 120), 50000480);
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(1, 120), 50000001);    // 0.96
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(0.5, 120), 50000000);  // 0.48
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(60000, 20), 50009600);
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(60000, 250), 50120000);
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(-1000, 120), 49999040);
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(1e15, 120), INT32_MAX);
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(-1e15, 120), 0);
    EXPECT_EQ(MidiEngine::milliseconds2Ppq(std::nan(""), 120), 0);
}

TEST_F(MidiEngineTest, FirstStartTimeWins) {
    EXPECT_EQ(engine->getStartTime(), -1);
    engine->setStartTime(50);
    engine->setStartTime(100);
    EXPECT_EQ(engine->getStartTime(), 50);
    engine->updateStartTime();
    EXPECT_EQ(engine->getStartTime(), -1);
}

TEST_F(MidiEngineTest, AResetClearsTheStartTime) {
    engine->setStartTime(50);
    engine->sendReset();
    EXPECT_EQ(engine->getStartTime(), -1);
}

TEST_F(MidiEngineTest, ThruIsWhatItWasStartedWith) {
    for (const bool thru : {true, false}) {
        engine->end();
        engine->initialize(0, thru);
        host.played.clear();
        post(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {.output = 0, .channel = 3}, {.input = 0}));
        engine->playTimeSlice(0, 1);
        engine->playTimeSlice(1, 2);
        EXPECT_EQ(host.played.size(), thru ? 1u : 0u);
    }
}

TEST_F(MidiEngineTest, ChannelsBeyondTheLastPlayNothingButTheByteOfNone) {
    setLayers("<Layers><Layer/></Layers>");
    constexpr std::int64_t NO_ROUTING = 0xFFFF00FF;       // No output, zone or input, yet a channel of its own.
    constexpr std::int64_t DEFAULT_ROUTING = 0xFFFF01FF;  // Not even that, so it goes through the layers.
    for (const std::int64_t routing : {NO_ROUTING, DEFAULT_ROUTING}) {
        for (std::uint64_t channel = 0; channel < 256; ++channel) {
            host.played.clear();
            post(MirelMidiMessage(channel << 24 | 0x643C90, routing));
            engine->playTimeSlice(0, 1);
            engine->playTimeSlice(1, 2);
            EXPECT_EQ(host.played.size(), channel < 16 || channel == 255 ? 1u : 0u) << channel;
        }
    }
}

TEST_F(MidiEngineTest, StartTimeStaysWhileAnArpeggioPlays) {
    setLayers("<Layers><Layer><Arpeggio><UpArpeggio/></Arpeggio></Layer></Layers>");
    post(MidiMessage::NoteOn, 60, 100);
    engine->playTimeSlice(0, 10);
    engine->playTimeSlice(10, 20);
    EXPECT_EQ(engine->getStartTime(), 10);
    engine->updateStartTime();
    EXPECT_EQ(engine->getStartTime(), 10);
}

TEST_F(MidiEngineTest, PlayerThreadIsKnownFromTheFirstSliceOn) {
    host.threadId = Platform::currentThreadId() + 1;
    EXPECT_TRUE(engine->isMidiPlayerThread());
    engine->playTimeSlice(0, 1);
    EXPECT_FALSE(engine->isMidiPlayerThread());
    host.threadId = Platform::currentThreadId();
    EXPECT_TRUE(engine->isMidiPlayerThread());
}

TEST_F(MidiEngineTest, OutputIsEnabledOnlyIfItExists) {
    EXPECT_TRUE(engine->isOutputEnabled(0));
    EXPECT_TRUE(engine->isOutputEnabled(1));
    EXPECT_FALSE(engine->isOutputEnabled(2));
    EXPECT_FALSE(engine->isOutputEnabled(-1));
}

TEST_F(MidiEngineTest, RequestsToTheHostPassStraightThrough) {
    engine->enableMidiInput(1, true);
    engine->enableMidiOutput(2, false);
    engine->pulseSequencer();
    engine->setTempo(19);
    EXPECT_EQ(host.calls, (std::vector<std::string>{"input 1 on", "output 2 off", "pulse", "tempo 19"}));
    engine->setTempoSource(3);
    EXPECT_EQ(engine->getTempoSource(), 3);
}

// Plays slices on its own thread while it exists, as a host does.
class Player {
public:
    explicit Player(MidiEngine& engine)
        : m_thread([this, &engine] {
              while (!m_isDone) {
                  engine.playTimeSlice(m_ppq, m_ppq + 1);
                  ++m_ppq;
              }
          }) {}

    ~Player() {
        m_isDone = true;
        m_thread.join();
    }

    // Returns when at least one whole slice has been played.
    void waitForSlices() const {
        const std::int32_t target = m_ppq + 2;
        while (m_ppq < target)
            std::this_thread::yield();
    }

private:
    std::atomic<bool> m_isDone = false;
    std::atomic<std::int32_t> m_ppq = 1000;
    std::thread m_thread;
};

TEST_F(MidiEngineTest, ResetsRunOnTheInternalClockAndRestoreTheSource) {
    host.tempoSource = 2;
    {
        Player player(*engine);
        player.waitForSlices();
        engine->sendReset();
        EXPECT_EQ(host.tempoSource, 2);
        EXPECT_EQ(host.internalClockRequests, 1);
        engine->sendHardReset();
    }

    EXPECT_EQ(host.tempoSource, 2);
    EXPECT_EQ(host.internalClockRequests, 2);
    EXPECT_EQ(host.tempoSourceChanges, 4);
    EXPECT_EQ(host.played.size(), 33u);
}

TEST_F(MidiEngineTest, ResetBeforeTheFirstSliceLeavesTheClockAlone) {
    engine->sendReset();
    engine->sendHardReset();
    EXPECT_EQ(host.tempoSourceChanges, 0);
    EXPECT_EQ(host.played.size(), 33u);
}

TEST_F(MidiEngineTest, SeveralThreadsMayAskForResetsAtOnce) {
    host.tempoSource = 5;
    {
        Player player(*engine);
        player.waitForSlices();
        std::vector<std::thread> senders;
        for (int i = 0; i < 4; ++i)
            senders.emplace_back([this, i] {
                for (int round = 0; round < 50; ++round)
                    i % 2 == 0 ? engine->sendReset() : engine->sendHardReset();
            });
        for (std::thread& sender : senders)
            sender.join();
    }
    EXPECT_EQ(host.tempoSource, 5);
    EXPECT_EQ(host.played.size(), 100u * 33);
}

TEST_F(MidiEngineTest, ANewLayerListEndsAllNotesWhileTheHostPlays) {
    setLayers("<Layers><Layer/></Layers>");
    {
        Player player(*engine);
        post(MidiMessage::NoteOn, 60, 100);
        player.waitForSlices();
        player.waitForSlices();
        manager().postSetLayerList(TestSupport::readLayers("<Layers><Layer channel='1'/></Layers>"));
        manager().waitUntilIdle();
        post(MidiMessage::NoteOn, 61, 100);
        player.waitForSlices();
        player.waitForSlices();
    }
    ASSERT_EQ(host.played.size(), 3u);
    EXPECT_TRUE(host.played[1].isNoteOff());
    EXPECT_EQ(host.played[1].getD1(), 60);
    EXPECT_EQ(host.played[2].getChannel(), 1);
}

TEST_F(MidiEngineTest, EventsOfManyThreadsAllArriveInTheOrderOfEach) {
    constexpr int THREADS = 4;
    constexpr int EVENTS = 2000;
    {
        Player player(*engine);
        std::vector<std::thread> posters;
        for (int thread = 0; thread < THREADS; ++thread)
            posters.emplace_back([this, thread] {
                for (int i = 0; i < EVENTS; ++i) {
                    MirelMidiMessage event(MidiMessage::ControllerChange, static_cast<char>(i >> 7),
                                           static_cast<char>(i & 127),
                                           {.output = 0, .channel = static_cast<char>(thread)});
                    if (i % 3 == 0)
                        event.setFromControl(Cell(1, 1));
                    manager().postPlayMidi(event);
                }
            });
        for (std::thread& poster : posters)
            poster.join();
        manager().waitUntilIdle();
        player.waitForSlices();
        player.waitForSlices();
    }
    int next[THREADS] = {};
    for (const MirelMidiMessage& message : host.played)
        EXPECT_EQ(message.getD1() * 128 + message.getD2(), next[static_cast<int>(message.getChannel())]++);

    EXPECT_EQ(host.played.size(), std::size_t{THREADS} * EVENTS);
}

// A window that records what it is shown.
struct Window : Platform::WindowSink {
    void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        EXPECT_EQ(message, 33254u);
        shown.emplace_back(std::uint64_t{wParam}, std::int64_t{lParam});
    }
    std::vector<MirelMidiMessage> shown;
};

TEST_F(MidiEngineTest, OnlyALayerWithoutAChannelPlaysOnTheDefaultChannel) {
    Window window;
    host.setWindow(window.handle());
    setLayers("<Layers><Layer channel='-1'/><Layer channel='0'/></Layers>");
    post(MidiMessage::NoteOn, 60, 100);                                    // Through the layers.
    post(MirelMidiMessage(MidiMessage::NoteOn, 61, 100, {.output = 1}));   // Past them by its output.
    post(MirelMidiMessage(MidiMessage::NoteOn, 62, 100, {.channel = 0}));  // By its channel.
    post(MirelMidiMessage(MidiMessage::ControllerChange, 7, 100));         // Once for both layers.
    engine->playTimeSlice(0, 1);
    engine->playTimeSlice(1, 2);
    const bool expected[] = {true, false, false, false, true};

    ASSERT_EQ(host.played.size(), std::size(expected));
    ASSERT_EQ(window.shown.size(), std::size(expected));

    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(host.played[i].isDefaultChannel(), expected[i]) << i;
        EXPECT_EQ(host.played[i].getChannel(), 0) << i;
        EXPECT_EQ(window.shown[i].isDefaultChannel(), expected[i]) << i;
    }

    host.setWindow(nullptr);
}

TEST_F(MidiEngineTest, ShownEventsGoToTheWindowAsTheyGoTo) {
    Window window;
    host.setWindow(window.handle());
    setLayers("<Layers><Layer channel='4' output='1'/></Layers>");
    post(MidiMessage::NoteOn, 60, 100);
    engine->playTimeSlice(0, 1);
    engine->playTimeSlice(1, 2);
    ASSERT_EQ(window.shown.size(), 1u);
    EXPECT_EQ(window.shown[0].getChannel(), 4);
    EXPECT_EQ(window.shown[0].getOutput(), 1);
    host.setWindow(nullptr);
}

TEST_F(MidiEngineTest, NothingIsShownWithoutAWindow) {
    Window window;
    host.setWindow(window.handle());
    setLayers("<Layers><Layer/></Layers>");
    post(MidiMessage::NoteOn, 60, 100);
    host.setWindow(nullptr);
    engine->playTimeSlice(0, 1);
    engine->playTimeSlice(1, 2);
    EXPECT_EQ(host.played.size(), 1u);
    EXPECT_TRUE(window.shown.empty());
}

TEST_F(MidiEngineTest, KeysThatNeverGoUpDoNotFillTheMemory) {
    setLayers(
        "<Layers><Layer/><Layer><Arpeggio><ChordArpeggio/></Arpeggio></Layer>"
        "<Layer><Arpeggio><UpDownArpeggio/></Arpeggio></Layer></Layers>");
    for (int i = 0; i < 20000; ++i)
        manager().postPlayMidi(MirelMidiMessage(MidiMessage::NoteOn, 60, 100));
    manager().waitUntilIdle();
    engine->playTimeSlice(0, 1);
    engine->playTimeSlice(1, 2);
    // The plain layer's own notes, and what the two arpeggios hold and may play.
    EXPECT_EQ(host.played.size(), 20000 + ArpeggioManagement::Arpeggio::MAX_NOTES + 1);
}

TEST_F(MidiEngineTest, EventsThatNoSliceTakesAreDroppedAtTheLimitAndResetsAreNot) {
    {
        CriticalSectionLock lock(engine->getCriticalSection());
        const MirelMidiMessage event(MidiMessage::NoteOn, 60, 100, {.output = 0, .channel = 0});
        for (std::size_t i = 0; i < MidiEngine::MAX_PENDING_MESSAGES + 10; ++i)
            engine->postPlayMidi(event);
        engine->postPlayMidi(MirelMidiMessage::createMirelHardReset());
    }
    engine->playTimeSlice(0, 1);
    EXPECT_EQ(host.played.size(), 33u);
    engine->playTimeSlice(1, 2);
    EXPECT_EQ(host.played.size(), 33 + MidiEngine::MAX_PENDING_MESSAGES);
}

TEST_F(MidiEngineTest, ASliceInSteadyStateAllocatesNothing) {
    const std::string layer =
        "<Layer/><Layer mono='true' channel='1'/><Layer toggle='type2' channel='2'/><Layer minVelocity='10'/>"
        "<Layer channel='3'><Arpeggio><ChordArpeggio beat='20' length='10'/></Arpeggio></Layer>"
        "<Layer channel='4'><Arpeggio><UpArpeggio beat='20' length='10'/></Arpeggio>"
        "<SequenceSetting><Sequence>0,12|7</Sequence></SequenceSetting></Layer>"
        "<Layer channel='5'><Arpeggio><DownArpeggio beat='20' length='20'/></Arpeggio></Layer>"
        "<Layer channel='6'><Arpeggio><UpDownArpeggio beat='20' length='10'/></Arpeggio></Layer>";
    setLayers(TestSupport::repeatLayer(layer, 2));
    host.played.reserve(1 << 20);
    std::int32_t ppq = 1000;

    const auto playSome = [&] {
        CriticalSectionLock lock(engine->getCriticalSection());
        for (int round = 0; round < 50; ++round) {
            const auto status = round % 2 == 0 ? MidiMessage::NoteOn : MidiMessage::NoteOff;
            for (int note = 60; note < 68; ++note)
                engine->postPlayMidi(
                    MirelMidiMessage(status, static_cast<char>(note), 100, {.zone = static_cast<char>(round / 2 % 3)}));
            engine->playTimeSlice(ppq, ppq + 15);
            ppq += 15;
        }
    };

    playSome();
    std::size_t taken = 0;
    {
        const TestSupport::AllocationCounter counter;
        playSome();
        taken = counter.count();
    }

    EXPECT_EQ(taken, 0u);
    EXPECT_GT(host.played.size(), 1000u);
}

}
}
