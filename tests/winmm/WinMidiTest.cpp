// The desk's ports on the real multimedia calls, with the devices of the tests' own driver.
#include "Host/common/desk/PortPlayer.h"
#include "Host/common/ports/MidiPorts.h"
#include "tests/support/Eventually.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>

namespace Host {
namespace {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;
using TestSupport::eventually;

const std::string FIRST_OUTPUT = "Loop Zo\xC3\xAB \xE3\x83\x94\xE3\x82\xA2\xE3\x83\x8E";
const std::string SECOND_OUTPUT = "Loop 2";
const std::string INPUT = "Loop In";

class WinMidiTest : public testing::Test {
protected:
    WinMidiTest() {
        ports.update();
        EXPECT_TRUE(eventually([this] { return ports.isIdle(); }));
    }

    ~WinMidiTest() override { ports.close(std::chrono::milliseconds(200)); }

    int findOutput(const std::string& name) const {
        const std::vector<PortRow> rows = ports.outputs();
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (rows[i].id.name == name)
                return static_cast<int>(i);
        return -1;
    }

    std::vector<MirelMidiMessage> takeEvents() {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_events, {});
    }

    // Everything that came in, once there are this many.
    std::vector<MirelMidiMessage> waitForEvents(std::size_t count) {
        EXPECT_TRUE(eventually([&] {
            const std::lock_guard lock(m_mutex);
            return m_events.size() >= count;
        }));
        return takeEvents();
    }

private:
    std::mutex m_mutex;
    std::vector<MirelMidiMessage> m_events;

protected:
    MidiPorts ports{createMidiSystem("Mirel"), MidiPorts::Options{}, [this](const MirelMidiMessage& event) {
                        const std::lock_guard lock(m_mutex);
                        m_events.push_back(event);
                    }};
};

TEST_F(WinMidiTest, DevicesAreListedByName) {
    const std::vector<PortRow> inputs = ports.inputs();
    ASSERT_EQ(inputs.size(), 2u);
    EXPECT_EQ(inputs[0].id, (MidiPortId{INPUT, 1}));
    EXPECT_EQ(inputs[1].id, (MidiPortId{INPUT, 2})) << "twins are told apart";
    EXPECT_GE(findOutput(FIRST_OUTPUT), 0);
    EXPECT_GE(findOutput(SECOND_OUTPUT), 0);
    for (const PortRow& row : ports.outputs())
        EXPECT_TRUE(row.available) << row.id.name;
}

TEST_F(WinMidiTest, EventsGoOutAndComeIn) {
    ASSERT_TRUE(ports.play(findOutput(FIRST_OUTPUT), 0x643c92, 0));
    ASSERT_TRUE(ports.play(findOutput(FIRST_OUTPUT), 0x05c3, 0));
    ASSERT_TRUE(ports.play(findOutput(FIRST_OUTPUT), 0xf8, 0));
    ASSERT_TRUE(ports.play(findOutput(FIRST_OUTPUT), 0x003c92, 0));
    const std::vector<MirelMidiMessage> events = waitForEvents(4);
    ASSERT_EQ(events.size(), 4u);
    EXPECT_TRUE(events[0].isNoteOn());
    EXPECT_EQ(events[0].getD1(), 60);
    EXPECT_EQ(events[0].getD2(), 100);
    EXPECT_EQ(events[0].getInput(), 0);
    EXPECT_TRUE(events[0].isDefaultChannel());
    EXPECT_TRUE(events[1].isProgramChange());
    EXPECT_EQ(events[1].getD1(), 5);
    EXPECT_TRUE(events[2].isTimingTick());
    EXPECT_TRUE(events[3].isNoteOff());
}

TEST_F(WinMidiTest, TwinInputsAreDistinguished) {
    ASSERT_TRUE(ports.play(findOutput(SECOND_OUTPUT), 0x643c90, 0));
    const std::vector<MirelMidiMessage> events = waitForEvents(1);
    EXPECT_EQ(events[0].getInput(), 1);
}

TEST_F(WinMidiTest, NotesEndWhenAnOutputIsDisabledAndItOpensAgain) {
    const int output = findOutput(FIRST_OUTPUT);
    ASSERT_TRUE(ports.play(output, 0x643c90, 0));
    waitForEvents(1);
    ports.enableOutput(output, false);
    const std::vector<MirelMidiMessage> events = waitForEvents(1);
    EXPECT_TRUE(events[0].isNoteOff());
    ports.enableOutput(output, true);
    ASSERT_TRUE(eventually([&] { return ports.play(output, 0x643c90, 0); }));
    EXPECT_TRUE(waitForEvents(1)[0].isNoteOn());
}

TEST_F(WinMidiTest, DisabledInputIsSilent) {
    ports.enableInput(0, false);
    ASSERT_TRUE(eventually([this] { return ports.isIdle(); }));
    ASSERT_TRUE(ports.play(findOutput(FIRST_OUTPUT), 0x643c90, 0));
    ASSERT_TRUE(ports.play(findOutput(SECOND_OUTPUT), 0x643d90, 0));
    const std::vector<MirelMidiMessage> events = waitForEvents(1);
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].getInput(), 1);
}

TEST_F(WinMidiTest, PortThatIsInUseElsewhereIsTriedAgain) {
    const auto other = createMidiSystem("Other");
    const int output = findOutput(FIRST_OUTPUT);
    ports.enableOutput(output, false);
    ASSERT_TRUE(eventually([this] { return ports.isIdle(); }));
    auto taken = other->openOutput({FIRST_OUTPUT, 1});
    ASSERT_NE(taken, nullptr);
    ports.enableOutput(output, true);
    ASSERT_TRUE(eventually([this] { return ports.isIdle(); }));
    EXPECT_FALSE(ports.play(output, 0x643c90, 0));
    taken = nullptr;
    ports.update();
    EXPECT_TRUE(eventually([&] { return ports.play(output, 0x643c90, 0); }));
    EXPECT_EQ(other->openOutput({"No such port", 1}), nullptr);
    EXPECT_EQ(other->openInput({INPUT, 3}, [](const std::uint8_t*, std::size_t, std::int64_t) {}), nullptr);
    EXPECT_FALSE(other->hasVirtualPorts());
}

TEST_F(WinMidiTest, PlayerPlaysToThePorts) {
    const int output = findOutput(FIRST_OUTPUT);
    PortPlayer player(ports);
    std::atomic<int> slices{0};
    player.start([&](std::int32_t, std::int32_t) {
        if (slices++ == 0)
            player.playMidi({MidiMessage::NoteOn, 60, 100, {.output = static_cast<char>(output), .channel = 0}});
    });
    EXPECT_TRUE(waitForEvents(1)[0].isNoteOn());
    EXPECT_TRUE(eventually([&slices] { return slices >= 100; }));
    player.stop();
    EXPECT_TRUE(waitForEvents(1)[0].isNoteOff());
}

// Runs last, because this process loses the device.
TEST_F(WinMidiTest, ZHungDeviceDelaysNeitherTheOthersNorTheEnd) {
    const int hung = findOutput(SECOND_OUTPUT);
    ASSERT_TRUE(ports.play(hung, 0x0077b0, 0));
    for (int i = 0; i < 10000; ++i)
        ports.play(hung, 0x643c90, 0);
    EXPECT_TRUE(eventually([this] { return ports.droppedEvents() > 0; }));
    ASSERT_TRUE(ports.play(findOutput(FIRST_OUTPUT), 0x643c90, 0));
    EXPECT_TRUE(waitForEvents(1)[0].isNoteOn());
    EXPECT_FALSE(ports.close(std::chrono::milliseconds(50)));
}

}
}
