// Slices of the desk as it runs on real ports, and what scripts don't reach: the controls' queue and floods.
#include "Backend/core/Mirel.h"
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/midi/engine/HeldNotes.h"
#include "Host/common/desk/PortDesk.h"
#include "tests/realtime/SliceGuard.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeMidiSystem.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>

namespace Host {
namespace {

using namespace Backend;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using TestSupport::eventually;
using TestSupport::readLayers;
using TestSupport::SliceGuard;

using Breaches = std::vector<std::string>;

constexpr const char* ALL_KINDS_OF_LAYERS =
    "<Layers><Layer/><Layer mono=\"true\"/><Layer toggle=\"1\"/>"
    "<Layer><Arpeggio><ChordArpeggio beat=\"20\" length=\"10\"/></Arpeggio></Layer>"
    "<Layer><Arpeggio><UpArpeggio beat=\"20\" length=\"10\"/></Arpeggio></Layer>"
    "<Layer><Arpeggio><UpDownArpeggio beat=\"20\" length=\"10\"/></Arpeggio></Layer></Layers>";

class DataFolder {
public:
    DataFolder() { MirelUtils::useDataFolder(m_folder.path()); }
    ~DataFolder() { MirelUtils::useDataFolder(""); }

private:
    const TestSupport::TemporaryFolder m_folder;
};

class RealSlicesTest : public testing::Test {
public:
    RealSlicesTest() { SliceGuard::takeBreaches(); }

    const DataFolder folder;
};

// The whole way to the driver, on the player's own thread.
TEST_F(RealSlicesTest, DeskOnPorts) {
    const auto system = std::make_shared<TestSupport::FakeMidiSystem>();
    system->plugOutputs({"Synth"});
    PortDesk desk(system, {.product = "Desk", .dataFolder = MirelUtils::getMirelAppDataDir(), .virtualPort = ""});
    desk.start();
    ASSERT_TRUE(desk.ports().waitUntilIdle());
    auto& engine = desk.mirel().getMidiEngineMessageManager();
    constexpr char SYNTH = 1;  // Behind the recorder.
    const std::size_t slicesBefore = SliceGuard::count();

    engine.postSetDefaultMidiOutput(SYNTH);
    engine.postSetLayerList(readLayers(ALL_KINDS_OF_LAYERS));
    for (int i = 0; i < 500; ++i) {
        const auto note = static_cast<char>(36 + i % 48);
        engine.postPlayMidi(MirelMidiMessage(i % 3 == 2 ? MidiMessage::NoteOff : MidiMessage::NoteOn, note, 100));
        engine.postPlayMidi(MirelMidiMessage(MidiMessage::ControllerChange, 7, static_cast<char>(i % 128)));
        engine.postPlayMidi(MirelMidiMessage(MidiMessage::PitchBend, 0, 64, {.output = SYNTH, .channel = 3}));
    }
    engine.waitUntilIdle();
    engine.sendReset();
    engine.sendHardReset();
    EXPECT_TRUE(eventually([&] { return desk.ports().isIdle(); }));
    EXPECT_TRUE(eventually([&] { return SliceGuard::count() > slicesBefore + 1; }));
    EXPECT_TRUE(desk.stop());

    EXPECT_GT(system->sent("Synth").size(), 1000u);
    EXPECT_EQ(SliceGuard::takeBreaches(), Breaches());
}

// What a port's player does besides the desk's slice.
TEST_F(RealSlicesTest, PlayerOfPorts) {
    const auto system = std::make_shared<TestSupport::FakeMidiSystem>();
    system->plugInputs({"Clock"});
    system->plugOutputs({"Synth"});
    MidiPorts ports(system, {}, nullptr);
    PortPlayer player(ports);
    ports.update();
    player.enableMidiInput(0, true);
    player.enableMidiOutput(1, true);
    player.setTempoSource(0);
    ASSERT_TRUE(ports.waitUntilIdle());
    ASSERT_TRUE(system->receive("Clock", {0xf8}, 0));
    const MirelMidiMessage event(MidiMessage::NoteOn, 60, 100, {.output = 1, .channel = 0});
    const PortPlayer::PlayTimeSlice play = [&](std::int32_t, std::int32_t) { player.playMidi(event); };

    {
        const SliceGuard guard;
        for (int i = 0; i < 100; ++i)
            player.playSlice(i * PortPlayer::SLICE_MICROSECONDS, play);
    }
    ASSERT_TRUE(ports.waitUntilIdle());

    EXPECT_EQ(system->sent("Synth").size(), 100u);
    EXPECT_EQ(SliceGuard::takeBreaches(), Breaches());
}

// A host that allocates nothing itself.
class QuietHost : public MidiEngine::MidiPlayer {
public:
    void playMidi(const MirelMidiMessage&) override { ++played; }
    void enableMidiInput(int, bool) override {}
    void enableMidiOutput(int, bool) override {}
    DWORD getThreadId() override { return m_threadId; }
    void pulseSequencer() override {}
    void setTempo(int) override {}
    void setTempoSource(char) override {}
    char getTempoSource() override { return -1; }

    std::size_t played = 0;  // Of the slices' thread.

private:
    const DWORD m_threadId = Platform::currentThreadId();
};

class QuietDesk {
public:
    QuietDesk() {
        mirel.start();
        mirel.getMessageManager().sendInitialize();
        mirel.getMessageManager().sendSetMidiOutputPorts({1, MidiOutputPort()});
        mirel.getMessageManager().sendEndInitialize();
        settle();
    }

    ~QuietDesk() {
        settle();
        mirel.getMessageManager().sendEnd();
        mirel.stop();
    }

    MidiEngine::MidiEngineMessageManager& engine() { return mirel.getMidiEngineMessageManager(); }

    void post(const MirelMidiMessage& event) { engine().postPlayMidi(event); }

    // Waits for backend and engine, playing slices for those who wait for one.
    void settle() {
        while (!mirel.getMessageManagerMaster().isIdle() || !engine().isIdle()) {
            if (mirel.getMidiEngine().isSliceAwaited())
                playSlice(0);
            std::this_thread::yield();
        }
    }

    void playSlice(std::int32_t length) {
        mirel.playTimeSlice(m_now, m_now + length);
        m_now += length;
    }

    QuietHost host;
    Mirel mirel{"Desk", host};

private:
    std::int32_t m_now = 50000000;
};

TEST_F(RealSlicesTest, ControlsFollowWithoutTheHeap) {
    QuietDesk desk;
    const auto volume = [&desk] {
        auto controls = desk.mirel.getControls().getControlMap();
        return controls.find(Cell(0, 2))->value;
    };
    constexpr int EVENTS = 3000;  // More than there are spare messages, and than the controls take in a slice.

    for (int i = 0; i <= EVENTS; ++i)
        desk.post(MirelMidiMessage(MidiMessage::ControllerChange, 7, static_cast<char>(i % 100)));
    desk.settle();
    desk.playSlice(1);

    // What didn't fit into the first slice follows in later ones.
    EXPECT_TRUE(eventually([&] {
        desk.playSlice(1);
        desk.settle();
        return volume() == EVENTS % 100;
    }));
    EXPECT_GT(desk.host.played, static_cast<std::size_t>(EVENTS));
    EXPECT_EQ(SliceGuard::takeBreaches(), Breaches());
}

TEST_F(RealSlicesTest, FloodsOfHeldNotes) {
    QuietDesk desk;
    desk.engine().postSetLayerList(readLayers(ALL_KINDS_OF_LAYERS));
    desk.settle();

    for (std::size_t i = 0; i < 2 * MidiEngine::HeldNotes::MAX_NOTES; ++i)
        desk.post(MirelMidiMessage(MidiMessage::NoteOn, static_cast<char>(i % 128), 100));
    desk.settle();
    for (int i = 0; i < 50; ++i)
        desk.playSlice(10);

    EXPECT_GT(desk.host.played, 2 * MidiEngine::HeldNotes::MAX_NOTES);
    EXPECT_EQ(SliceGuard::takeBreaches(), Breaches());
}

TEST_F(RealSlicesTest, FloodsOfEventsForLater) {
    QuietDesk desk;
    constexpr int EVENTS = 20000;

    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < EVENTS; ++i)
            desk.post(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {}, {.ppq = 50001000 + i % 7}));
        desk.settle();
        desk.playSlice(10);
    }
    desk.playSlice(2000);

    EXPECT_EQ(desk.host.played, static_cast<std::size_t>(3 * EVENTS));
    EXPECT_EQ(SliceGuard::takeBreaches(), Breaches());
}

}
}
