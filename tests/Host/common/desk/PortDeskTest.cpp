#include "Host/common/desk/PortDesk.h"

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/functions/values/SelectType.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeMidiSystem.h"
#include "tests/support/LogText.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <thread>

namespace Host {
namespace {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;
using TestSupport::eventually;
using TestSupport::FakeMidiSystem;
using TestSupport::readLog;

class PortDeskTest : public testing::Test {
public:
    PortDeskTest() { Backend::MirelUtils::useDataFolder(m_folder.path()); }
    ~PortDeskTest() override { Backend::MirelUtils::useDataFolder(""); }

    std::unique_ptr<PortDesk> make(bool recordsAll = false, bool keepsSwitches = true) {
        return std::make_unique<PortDesk>(system, PortDesk::Options{.product = "Desk",
                                                                    .dataFolder = m_folder.path(),
                                                                    .virtualPort = "",
                                                                    .keepsSwitches = keepsSwitches,
                                                                    .recordsAll = recordsAll});
    }

    static int findOutput(PortDesk& desk, const std::string& name) {
        const auto outputs = desk.ports().outputs();
        const auto found =
            std::find_if(outputs.begin(), outputs.end(), [&](const PortRow& row) { return row.id.name == name; });
        return found == outputs.end() ? -1 : static_cast<int>(found - outputs.begin());
    }

    // Plays an event to an output, as the engine does.
    static void play(PortDesk& desk, int output, MidiMessage::MessageType status, char note) {
        MirelMidiMessage message;
        message.setMidiMessage(MidiMessage(status, note, 100, 0));
        message.setOutput(static_cast<char>(output));
        message.setChannel(0);
        desk.mirel().getMessageManager().postPlayMidi(message);
    }

    static int count(const std::string& text, const std::string& part) {
        int found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++found;
        return found;
    }

    const std::shared_ptr<FakeMidiSystem> system = std::make_shared<FakeMidiSystem>();

private:
    const TestSupport::TemporaryFolder m_folder;
};

constexpr const char* SYNTH_FAILS = "MIDI output \"Synth\" does not work. It will be tried again.\r\n";

TEST_F(PortDeskTest, LogSaysWhichPortsDoNotWork) {
    system->plugInputs({"Keys", "Broken"});
    system->plugOutputs({"Synth", "Module"});
    system->refuse("Broken", true);
    system->refuse("Synth", true);
    const auto desk = make();
    desk->start();
    const std::string log = readLog(desk->mirel().getDisplayMessageManager());
    EXPECT_EQ(count(log, "MIDI input \"Broken\" does not work. It will be tried again.\r\n"), 1) << log;
    EXPECT_EQ(count(log, SYNTH_FAILS), 1) << log;
    EXPECT_EQ(count(log, "does not work"), 2) << log;
    EXPECT_TRUE(desk->stop());
}

TEST_F(PortDeskTest, PortThatFailsAgainIsReportedAgain) {
    system->plugOutputs({"Synth"});
    system->refuse("Synth", true);
    const auto desk = make();
    desk->start();
    // It is tried again and again, but reported once.
    const int times = system->timesOpened("Synth");

    system->refuse("Synth", false);
    ASSERT_TRUE(eventually([&] { return system->timesOpened("Synth") > times && system->isOutputOpen("Synth"); }));
    EXPECT_EQ(count(readLog(desk->mirel().getDisplayMessageManager()), SYNTH_FAILS), 1);

    const int looks = system->timesListed();
    ASSERT_TRUE(eventually([&] { return system->timesListed() > looks + 1; })) << "the desk sees that it works";

    system->refuse("Synth", true);
    system->breakPort("Synth", true);
    ASSERT_TRUE(eventually([&] {
        desk->ports().play(1, 0x643c90, 0);
        return count(readLog(desk->mirel().getDisplayMessageManager()), SYNTH_FAILS) == 2;
    }));
    EXPECT_TRUE(desk->stop());
}

TEST_F(PortDeskTest, RecordsWhatGoesToAnotherOutput) {
    for (const bool records : {false, true}) {
        system->plugOutputs({"Synth"});
        const auto desk = make(records);
        desk->start();
        const int synth = findOutput(*desk, "Synth");
        ASSERT_GE(synth, 0);
        const std::size_t sent = system->sent("Synth").size();
        desk->mirel().getMessageManager().postChangeDefaultMidiOutput(SelectType(SelectType::SPECIFIC, synth));
        desk->waitUntilIdle();
        play(*desk, synth, MidiMessage::NoteOn, 60);
        play(*desk, synth, MidiMessage::NoteOff, 60);
        ASSERT_TRUE(eventually([&] { return system->sent("Synth").size() >= sent + 2; }));
        EXPECT_TRUE(desk->stop());
        const std::string content = desk->ports().recorder().content().value_or("");
        EXPECT_EQ(content.find("\x90\x3c\x64") != std::string::npos, records);
    }
}

TEST_F(PortDeskTest, NotesOfAnOutputThatIsSwitchedOffEndInTheTake) {
    system->plugOutputs({"Synth"});
    const auto desk = make(true);
    desk->start();
    const int synth = findOutput(*desk, "Synth");

    play(*desk, synth, MidiMessage::NoteOn, 60);
    ASSERT_TRUE(eventually([&] { return desk->ports().recorder().size() == 1; }));

    desk->mirel().getMessageManager().postEnableMidiOutput(synth, false);
    EXPECT_TRUE(eventually([&] { return desk->ports().recorder().size() == 2; }));

    desk->mirel().getMessageManager().postEnableMidiOutput(synth, true);
    desk->waitUntilIdle();

    play(*desk, synth, MidiMessage::NoteOn, 61);
    EXPECT_TRUE(eventually([&] { return desk->ports().recorder().size() == 3; }));
    EXPECT_TRUE(desk->stop());
    EXPECT_NE(desk->ports().recorder().content().value_or("").find("\x80\x3c\x40"), std::string::npos);
}

TEST_F(PortDeskTest, RecordsAlsoWhenTheRecorderIsSwitchedOff) {
    system->plugOutputs({"Synth"});
    const auto desk = make(true);
    desk->start();
    desk->mirel().getMessageManager().postEnableMidiOutput(findOutput(*desk, Recorder::NAME), false);
    desk->waitUntilIdle();
    play(*desk, findOutput(*desk, "Synth"), MidiMessage::NoteOn, 60);
    EXPECT_TRUE(eventually([&] { return desk->ports().recorder().size() > 0; }));
    EXPECT_TRUE(desk->stop());
}

TEST_F(PortDeskTest, SwitchedOutputStaysSoInTheNextRun) {
    system->plugOutputs({"Synth", "Module"});
    for (const bool keeps : {false, true}) {
        const auto desk = make(false, keeps);
        desk->start();
        const int module = findOutput(*desk, "Module");
        EXPECT_TRUE(desk->ports().outputs().at(static_cast<std::size_t>(module)).settings.enabled);
        desk->mirel().getMessageManager().postEnableMidiOutput(module, false);
        desk->waitUntilIdle();
        EXPECT_TRUE(eventually([&] { return !system->isOutputOpen("Module"); }));
        EXPECT_TRUE(desk->stop());
    }

    const auto desk = make();
    desk->start();
    EXPECT_FALSE(desk->ports().outputs().at(static_cast<std::size_t>(findOutput(*desk, "Module"))).settings.enabled);
    EXPECT_TRUE(desk->stop());
}

TEST_F(PortDeskTest, NoticesPortsThatAppearWhileItStarts) {
    system->plugOutputs({"Synth"});
    const auto desk = make();
    std::jthread user([&] {
        eventually([&] { return system->timesListed() > 0; });
        system->plugOutputs({"Synth", "Late"});
    });
    desk->start();

    user.join();
    // The desk plays only to outputs that it has been informed of.
    EXPECT_TRUE(eventually([&] {
        play(*desk, findOutput(*desk, "Late"), MidiMessage::NoteOn, 60);
        return !system->sent("Late").empty();
    }));
    EXPECT_TRUE(desk->stop());
}

}
}
