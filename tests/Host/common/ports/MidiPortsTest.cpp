#include "Host/common/ports/MidiPorts.h"

#include "Host/common/ports/PortFiles.h"
#include "Platform/Files.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeMidiSystem.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <mutex>

namespace Host {
namespace {

using Backend::MidiEngine::MidiInputPort;
using Backend::MidiEngine::MidiOutputPort;
using Backend::MidiEngine::MirelMidiMessage;
using TestSupport::eventually;
using TestSupport::FakeMidiSystem;
using Sent = std::vector<FakeMidiSystem::Bytes>;

constexpr std::uint32_t NOTE_ON = 0x643c90;   // 90 3c 64
constexpr std::uint32_t NOTE_OFF = 0x003c80;  // 80 3c 00

class MidiPortsTest : public testing::Test {
protected:
    std::unique_ptr<MidiPorts> make(const std::string& virtualPort = {}, bool keepsSwitches = true) {
        return std::make_unique<MidiPorts>(system, MidiPorts::Options{folder.path(), virtualPort, keepsSwitches},
                                           [this](const MirelMidiMessage& event) {
                                               const std::lock_guard lock(m_mutex);
                                               m_events.push_back(event);
                                           });
    }

    // Updates, and waits until all ports are opened and closed.
    static void update(MidiPorts& ports) {
        ports.update();
        settle(ports);
    }

    static void settle(MidiPorts& ports) {
        ASSERT_TRUE(eventually([&ports] { return ports.isIdle(); }));
    }

    std::vector<MirelMidiMessage> takeEvents() {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_events, {});
    }

    static std::vector<std::string> names(const std::vector<PortRow>& rows) {
        std::vector<std::string> told;
        for (const PortRow& row : rows)
            told.push_back(row.id.name + (row.available ? "+" : "-"));
        return told;
    }

    using Names = std::vector<std::string>;

    const TestSupport::TemporaryFolder folder;
    const std::shared_ptr<FakeMidiSystem> system = std::make_shared<FakeMidiSystem>();

private:
    std::mutex m_mutex;
    std::vector<MirelMidiMessage> m_events;
};

TEST_F(MidiPortsTest, TheRecorderIsAlwaysThere) {
    const auto ports = make();
    EXPECT_EQ(names(ports->outputs()), (Names{"Recorder+"})) << "even before the first look";
    settle(*ports);
    EXPECT_TRUE(ports->play(0, NOTE_ON, 1));
    EXPECT_TRUE(eventually([&ports] { return ports->recorder().size() == 1; }));
    update(*ports);
    EXPECT_EQ(names(ports->outputs()), (Names{"Recorder+"}));
    EXPECT_TRUE(ports->inputs().empty());
}

TEST_F(MidiPortsTest, DeskGetsThePortsWithNamesAndFlags) {
    system->plugInputs({"Keys", "Keys"});
    system->plugOutputs({"Synth"});
    const auto ports = make();
    update(*ports);
    ports->enableInput(1, false);
    system->plugInputs({"Keys"});
    update(*ports);

    const std::vector<MidiInputPort> inputs = ports->inputPorts();
    ASSERT_EQ(inputs.size(), 2u);
    EXPECT_EQ(inputs[0].name, "Keys");
    EXPECT_TRUE(inputs[0].enabled && inputs[0].available);
    EXPECT_EQ(inputs[1].name, "Keys (2)");
    EXPECT_FALSE(inputs[1].enabled || inputs[1].available);

    const std::vector<MidiOutputPort> outputs = ports->outputPorts();
    ASSERT_EQ(outputs.size(), 2u);
    EXPECT_EQ(outputs[0].name, "Recorder");
    EXPECT_EQ(outputs[1].name, "Synth");
}

TEST_F(MidiPortsTest, PortsThatComeAndGoAreNoticedAndKeepTheirIndex) {
    const auto ports = make();
    int changes = 0;
    ports->setListener([&changes] { ++changes; });
    system->plugOutputs({"A", "B"});
    EXPECT_TRUE(ports->update());
    settle(*ports);
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(ports->update());
    EXPECT_EQ(changes, 1) << "nothing has changed";
    EXPECT_TRUE(system->isOutputOpen("A") && system->isOutputOpen("B"));

    system->plugOutputs({"B"});
    update(*ports);
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(system->isOutputOpen("A"));
    EXPECT_EQ(names(ports->outputs()), (Names{"Recorder+", "A-", "B+"}));
    EXPECT_FALSE(ports->play(1, NOTE_ON, 0));
    EXPECT_TRUE(ports->play(2, NOTE_ON, 0));

    system->plugOutputs({"A", "B"});
    update(*ports);
    EXPECT_TRUE(ports->play(1, NOTE_ON, 0));
    settle(*ports);
    EXPECT_EQ(system->sent("A"), (Sent{{0x90, 0x3c, 0x64}}));
    EXPECT_EQ(system->timesOpened("B"), 1) << "the other one has not been disturbed";
}

TEST_F(MidiPortsTest, NextProgramFindsItsRowsAndSettings) {
    system->plugInputs({"Keys", "Pads"});
    system->plugOutputs({"Synth"});
    {
        const auto ports = make();
        ports->update();
        ports->setInputSettings(1, {true, true, 0x0003});
        ports->enableOutput(1, false);
    }

    EXPECT_EQ(Platform::Files::read(folder.file("Midi Inputs.txt")),
              Platform::Files::withSystemLineEnds("1 0 ffff 1 Keys\n1 1 0003 1 Pads\n"));

    system->plugInputs({"New", "Pads"});
    const auto ports = make();
    EXPECT_EQ(names(ports->inputs()), (Names{"Keys-", "Pads-"}));

    update(*ports);
    EXPECT_EQ(names(ports->inputs()), (Names{"Keys-", "Pads+", "New+"}));
    EXPECT_EQ(ports->inputs()[1].settings, (PortSettings{true, true, 0x0003}));
    EXPECT_EQ(names(ports->outputs()), (Names{"Recorder+", "Synth+"}));
    EXPECT_FALSE(ports->outputs()[1].settings.enabled);
    EXPECT_FALSE(system->isOutputOpen("Synth"));
}

TEST_F(MidiPortsTest, SwitchesForNowAreForgottenByTheNextProgram) {
    system->plugInputs({"In"});
    system->plugOutputs({"Out A", "Out B"});
    {
        const auto first = make();
        update(*first);
        first->enableOutput(2, false);
        update(*first);
    }
    {
        const auto second = make({}, false);
        update(*second);
        second->enableInput(0, false);
        second->enableOutput(1, false);
        second->enableOutput(2, true);
        second->enableOutput(9, true);
        settle(*second);
        EXPECT_FALSE(system->isInputOpen("In"));
        EXPECT_FALSE(system->isOutputOpen("Out A"));
        EXPECT_TRUE(system->isOutputOpen("Out B"));
        system->plugOutputs({"Out A", "Out B", "Out C"});
        update(*second);
    }

    const auto third = make();
    update(*third);
    EXPECT_TRUE(third->inputs()[0].settings.enabled);
    EXPECT_TRUE(third->outputs()[1].settings.enabled);
    EXPECT_FALSE(third->outputs()[2].settings.enabled);
}

TEST_F(MidiPortsTest, FilesAreWrittenWithTheNextUpdateAndOnlyWhenSomethingChanged) {
    system->plugInputs({"Keys"});
    const auto ports = make();
    update(*ports);
    ports->enableInput(0, false);
    update(*ports);
    EXPECT_EQ(Platform::Files::read(folder.file("Midi Inputs.txt")),
              Platform::Files::withSystemLineEnds("0 0 ffff 1 Keys\n"));
    ASSERT_TRUE(Platform::Files::remove(folder.file("Midi Inputs.txt")));
    update(*ports);
    EXPECT_EQ(Platform::Files::read(folder.file("Midi Inputs.txt")), std::nullopt);
}

TEST_F(MidiPortsTest, NonsenseInTheFilesIsSurvived) {
    ASSERT_TRUE(
        Platform::Files::replace(folder.file("Midi Inputs.txt"), std::string(1000, '\xff') + "\n1 0 ffff 1 A\n"));
    ASSERT_TRUE(Platform::Files::createFolders(folder.file("Midi Outputs.txt")));
    system->plugInputs({"A"});
    const auto ports = make();
    update(*ports);
    EXPECT_EQ(names(ports->inputs()), (Names{"A+"}));
    EXPECT_EQ(names(ports->outputs()), (Names{"Recorder+"}));
}

TEST_F(MidiPortsTest, EnablingOpensAndDisablingCloses) {
    system->plugInputs({"Keys"});
    system->plugOutputs({"Synth"});
    const auto ports = make();

    update(*ports);
    EXPECT_TRUE(system->isInputOpen("Keys") && system->isOutputOpen("Synth"));

    ports->enableInput(0, false);
    ports->enableOutput(1, false);

    settle(*ports);
    EXPECT_FALSE(system->isInputOpen("Keys") || system->isOutputOpen("Synth"));

    ports->enableInput(0, true);
    ports->enableOutput(1, true);

    settle(*ports);
    EXPECT_TRUE(system->isInputOpen("Keys") && system->isOutputOpen("Synth"));

    for (const int port : {-1, 2, 127, 128, 100000}) {
        ports->enableInput(port, true);
        ports->enableOutput(port, true);
        ports->setInputSettings(port, PortSettings());
        EXPECT_FALSE(ports->play(port, NOTE_ON, 0)) << port;
    }
}

TEST_F(MidiPortsTest, PortThatCannotBeOpenedIsTriedAgain) {
    system->plugOutputs({"Synth"});
    system->refuse("Synth", true);
    const auto ports = make();
    update(*ports);
    EXPECT_FALSE(ports->play(0 + 1, NOTE_ON, 0));
    system->refuse("Synth", false);
    update(*ports);
    EXPECT_TRUE(ports->play(1, NOTE_ON, 0));
    const int times = system->timesOpened("Synth");
    update(*ports);
    EXPECT_EQ(system->timesOpened("Synth"), times) << "one that is open is left alone";
}

TEST_F(MidiPortsTest, PortThatFailsIsOpenedAgain) {
    system->plugOutputs({"Synth"});
    const auto ports = make();
    update(*ports);
    system->breakPort("Synth", true);
    ports->play(1, NOTE_ON, 0);
    settle(*ports);
    EXPECT_FALSE(system->isOutputOpen("Synth"));
    system->breakPort("Synth", false);
    update(*ports);
    EXPECT_TRUE(ports->play(1, NOTE_ON, 0));
    settle(*ports);
    EXPECT_EQ(system->sent("Synth").size(), 1u);
}

TEST_F(MidiPortsTest, IncomingEventsReachTheDeskWithTheirInput) {
    system->plugInputs({"Keys", "Pads"});
    const auto ports = make();

    update(*ports);
    ports->setInputSettings(1, {true, true, 0x0002});
    ASSERT_TRUE(system->receive("Keys", {0x93, 60, 100}));
    ASSERT_TRUE(system->receive("Pads", {0x90, 61, 100, 0x91, 62, 100}));

    const std::vector<MirelMidiMessage> events = takeEvents();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0].getInput(), 0);
    EXPECT_TRUE(events[0].isDefaultChannel());
    EXPECT_EQ(events[1].getInput(), 1);
    EXPECT_EQ(events[1].getD1(), 62);
    EXPECT_EQ(events[1].getChannel(), 1);
    EXPECT_FALSE(events[1].isDefaultChannel());
}

TEST_F(MidiPortsTest, NotesOfAnInputThatGoesAwayEnd) {
    system->plugInputs({"Keys"});
    const auto ports = make();
    update(*ports);
    system->receive("Keys", {0x93, 60, 100});
    takeEvents();
    system->plugInputs({});
    update(*ports);
    const std::vector<MirelMidiMessage> events = takeEvents();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_TRUE(events[0].isNoteOff());
    EXPECT_EQ(events[0].getD1(), 60);
}

TEST_F(MidiPortsTest, NothingComesInWhenNobodyListensAnyMore) {
    system->plugInputs({"Keyboard"});
    const auto ports = make();
    update(*ports);
    ASSERT_TRUE(system->receive("Keyboard", {0x90, 60, 100}));
    EXPECT_EQ(takeEvents().size(), 1u);
    ports->stopListening();
    ASSERT_TRUE(system->receive("Keyboard", {0x90, 62, 100}));
    EXPECT_TRUE(ports->close());
    EXPECT_TRUE(takeEvents().empty()) << "not even the end of the note that is held";
}

TEST_F(MidiPortsTest, ClockInputIsFollowed) {
    system->plugInputs({"Keys", "Drums"});
    const auto ports = make();
    update(*ports);
    ports->setClockInput(1);
    ports->setClockInput(-1);
    system->receive("Keys", {0xf8}, 5);
    system->receive("Drums", {0xf8}, 7);
    ClockMessage message;
    ASSERT_TRUE(ports->clockInput().pop(message));
    EXPECT_EQ(message, (ClockMessage{ClockMessageKind::TICK, 7}));
    EXPECT_FALSE(ports->clockInput().pop(message));
}

TEST_F(MidiPortsTest, VirtualPortsAreBuiltInAndConnectable) {
    const auto ports = make("Mirel");
    update(*ports);
    EXPECT_EQ(names(ports->inputs()), (Names{"Mirel+"}));
    EXPECT_EQ(names(ports->outputs()), (Names{"Recorder+", "Mirel+"}));
    EXPECT_TRUE(ports->play(1, NOTE_ON, 0));
    ASSERT_TRUE(system->receive("Mirel", {0x90, 60, 100}, 0, 0));
    EXPECT_EQ(takeEvents().size(), 1u);
    settle(*ports);
    EXPECT_EQ(system->sent("Mirel", 0), (Sent{{0x90, 0x3c, 0x64}}));
}

TEST_F(MidiPortsTest, HungPortStopsNeitherTheOthersNorTheEnd) {
    system->plugOutputs({"Hung", "Fine"});
    auto ports = make();

    update(*ports);
    system->hang("Hung", true);
    ports->play(1, NOTE_ON, 0);
    ASSERT_TRUE(eventually([this] { return system->hanging() == 1; }));

    for (int i = 0; i < 10000; ++i)
        ports->play(1, NOTE_ON, 0);
    EXPECT_GT(ports->droppedEvents(), 0u);
    EXPECT_TRUE(ports->play(2, NOTE_ON, 0));
    EXPECT_TRUE(eventually([this] { return system->sent("Fine").size() == 1; }));

    ports->update();
    EXPECT_FALSE(ports->close(std::chrono::milliseconds(50)));

    ports = nullptr;
    EXPECT_EQ(system->sent("Fine"), (Sent{{0x90, 0x3c, 0x64}, {0x80, 0x3c, 0x40}}));

    system->hang("Hung", false);
    EXPECT_TRUE(eventually([this] { return !system->isOutputOpen("Hung"); }));
}

TEST_F(MidiPortsTest, CloseEndsEverythingForGood) {
    system->plugInputs({"Keys"});
    system->plugOutputs({"Synth"});
    const auto ports = make();

    update(*ports);
    ports->play(1, NOTE_ON, 0);
    settle(*ports);
    EXPECT_TRUE(ports->close());
    EXPECT_TRUE(ports->close()) << "again does nothing";
    EXPECT_EQ(system->sent("Synth"), (Sent{{0x90, 0x3c, 0x64}, {0x80, 0x3c, 0x40}}));
    EXPECT_FALSE(system->isInputOpen("Keys") || system->isOutputOpen("Synth"));
    EXPECT_FALSE(ports->play(1, NOTE_OFF, 0));
    EXPECT_FALSE(ports->update());

    ports->enableOutput(1, true);
    EXPECT_FALSE(system->isOutputOpen("Synth"));
}

TEST_F(MidiPortsTest, EndNotesReachesAllOutputs) {
    system->plugOutputs({"A", "B"});
    const auto ports = make();
    update(*ports);
    ports->play(1, NOTE_ON, 0);
    ports->play(2, NOTE_ON, 0);
    ports->endNotes();
    settle(*ports);
    for (const char* name : {"A", "B"})
        EXPECT_EQ(system->sent(name), (Sent{{0x90, 0x3c, 0x64}, {0x80, 0x3c, 0x40}})) << name;
    EXPECT_TRUE(ports->play(1, NOTE_ON, 0)) << "and they go on";
}

}
}
