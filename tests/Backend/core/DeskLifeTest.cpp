// The start and the end of a desk, and its threads.
#include "Backend/core/MirelFactory.h"
#include "Backend/core/log/DisplayListener.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "tests/support/FakeHost.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace Backend {
namespace {

using MidiEngine::MidiInputPort;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using TestSupport::makePorts;
using TestSupport::RunningDesk;
using Strings = std::vector<std::string>;

class ThreadOfTheLog : public Display::DisplayListener {
public:
    void append(const char*) override { thread = Platform::currentThreadId(); }
    void setText(const char*) override { thread = Platform::currentThreadId(); }

    DWORD thread = 0;
};

TEST(DeskLifeTest, FiveThreadsDoTheWork) {
    RunningDesk desk;
    desk.start();
    desk.openWindow();
    desk.mirel().getMessageManager().postChangeTempo(RelativeFixedValue(false, 100), true);
    desk.settle();

    const auto posted = desk.takePosted();
    ASSERT_EQ(posted.size(), 1u);

    ThreadOfTheLog log;
    desk.mirel().getDisplayMessageManager().postSetListener(&log);
    desk.mirel().getDisplayMessageManager().postSendAll();
    desk.mirel().getDisplayMessageManager().postSetListener(nullptr);
    desk.settle();
    std::thread player([&desk] {
        desk.mirel().playMidi(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {}, {.ppq = 5}));
        desk.mirel().getMidiEngineMessageManager().waitUntilIdle();
        desk.mirel().playTimeSlice(0, 10);
    });
    player.join();

    EXPECT_EQ(desk.takePlayed(), Strings{"0x90 60 100 ch=0 out=0"});

    const std::set<DWORD> threads = {Platform::currentThreadId(), posted[0].thread, desk.engineThread, log.thread,
                                     desk.playerThread};
    EXPECT_EQ(threads.size(), 5u);
    EXPECT_FALSE(threads.contains(0));
}

TEST(DeskLifeTest, TheStartReadsTheSettingsAndHandsThemOn) {
    RunningDesk desk;
    desk.prepareSettings([](RegistrySettings& settings) {
        settings.setDisplayNumbers(true);
        settings.setDisplayMidiInputEvents(true);
        settings.setDefaultMidiOutput(1);
        settings.setMidiThru(false);
        settings.setLiteChannel(9);
        settings.setLiteVelocity(77);
        settings.setLiteStackNotes(false);
    });
    desk.start();
    const Layers::LayerList layers = desk.mirel().getLayers().getLayerList();
    ASSERT_EQ(layers.size(), 1u);
    EXPECT_EQ(layers.begin()->channel, 9);
    EXPECT_EQ(layers.begin()->velocity, RelativeFixedValue(false, 77));
    EXPECT_FALSE(layers.begin()->useNoteStack);

    // What comes in is logged with a number, but not played; what the desk plays goes to the output of the settings.
    const MirelMidiMessage fromInput(MidiMessage::NoteOn, 60, 100, -1, -1, -1, 1, -1);
    desk.mirel().getMessageManager().postProcessMidiInputEvent(fromInput);
    desk.mirel().playMidi(fromInput);
    desk.mirel().playMidi(MirelMidiMessage(MidiMessage::NoteOn, 64, 100));
    desk.settle();
    desk.playSlice(0, 10);
    desk.playSlice(10, 20);
    EXPECT_EQ(desk.takePlayed(), Strings{"0x90 64 77 ch=9 out=1"});
    EXPECT_EQ(desk.log(), "Mirel Console 3.2\r\n0  > In 1\t1\tNote On\t60 (C4)\t100\r\n");
}

TEST(DeskLifeTest, TheStartEndsWithTheControlsThatSendOnTheirOwn) {
    RunningDesk desk;
    desk.start();
    desk.run([](Mirel& mirel) {
        const XmlDocument document(
            "<Controls merge='true'>"
            "<Control cell='9,0' type='edit' value='5' autoSend='true'>"
            "<Function midiEvent='Controller Change,20'/></Control>"
            "<Control cell='9,1' type='edit' value='6'>"
            "<Function midiEvent='Controller Change,21'/></Control></Controls>",
            false);
        mirel.getControls().readXml(document.getRootElement());
    });
    desk.playSlice(0, 0);
    desk.playSlice(0, 1);

    EXPECT_EQ(desk.takePlayed(), Strings{"0xb0 20 5 ch=0 out=0"});

    desk.mirel().getMessageManager().sendEndInitialize();
    desk.settle();
    desk.playSlice(1, 1);
    desk.playSlice(1, 2);

    EXPECT_EQ(desk.takePlayed(), Strings{"0xb0 20 5 ch=0 out=0"});
}

TEST(DeskLifeTest, TheFactoryMakesADeskThatRestsUntilItIsStarted) {
    TestSupport::FakeHost host;
    const std::unique_ptr<MirelIF> mirel(MirelFactory::createMirel("Test", host, true));
    EXPECT_EQ(mirel->getGuiWindowHandle(), nullptr);
    EXPECT_EQ(mirel->getTempo(), 120);
    EXPECT_EQ(mirel->getTempoSource(), -1);
    EXPECT_EQ(mirel->getCurrentBank().getPath(), "");
    EXPECT_TRUE(mirel->getMessageManagerMaster().isIdle());
    mirel->playTimeSlice(0, 1);
    EXPECT_TRUE(host.played.empty());
}

TEST(DeskLifeTest, TheEndSavesTheSettings) {
    RunningDesk desk;
    desk.start();
    MirelMessageManager& manager = desk.mirel().getMessageManager();
    manager.postSetDisplayHeight(321);
    manager.postSetAlwaysOnTop(true);
    manager.postSetLastWindowPosition({1, 2, 3, 4});
    manager.postRemoveGuiWindowHandle();
    desk.end();
    desk.prepareSettings([](RegistrySettings& settings) {
        settings.loadFromRegistry("Software\\Tamsel Software\\Test\\3.2");
        EXPECT_EQ(settings.getDisplayHeight(), 321);
        EXPECT_TRUE(settings.getAlwaysOnTop());
        EXPECT_EQ(settings.getLastWindowPosition(), (Rect{1, 2, 3, 4}));
    });
}

TEST(DeskLifeTest, SendsReturnWhenTheWorkIsDone) {
    RunningDesk desk;
    Mirel& mirel = desk.mirel();
    MirelMessageManager& manager = mirel.getMessageManager();
    mirel.start();

    manager.sendInitialize();
    EXPECT_EQ(mirel.getLayers().getLayerList().size(), 1u);
    EXPECT_EQ(mirel.getControls().getControlMap().size(), 13u);

    manager.sendSetMidiInputPorts(makePorts<MidiInputPort>({"A"}));
    EXPECT_EQ(mirel.getMidiInputPorts().at(0).name, "A");

    manager.sendSetMidiOutputPorts(makePorts<MidiOutputPort>({"B", "C"}));
    EXPECT_EQ(mirel.getMidiOutputPorts().size(), 2u);
    EXPECT_EQ(mirel.getRegistrySettings().getDefaultMidiOutput(), 0);

    manager.sendEndInitialize();
    manager.sendEnd();
    EXPECT_TRUE(mirel.getMidiEngineMessageManager().isIdle());
    EXPECT_TRUE(mirel.getDisplayMessageManager().isIdle());

    mirel.stop();
}

TEST(DeskLifeTest, WhatIsPostedWhileTheDeskEndsIsDisposedOf) {
    RunningDesk desk;
    desk.start();
    desk.run([](Mirel& mirel) {
        MirelMessageManager& manager = mirel.getMessageManager();
        for (int i = 0; i < 100; ++i) {
            manager.postChangeProgramName("late");
            manager.postPlayMidi(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {}, {.ppq = 5}));
            mirel.displayString("late");
        }
    });
    desk.mirel().getMessageManager().postChangeProgramName("last");
    desk.end();

    EXPECT_EQ(desk.mirel().getCurrentProgram().getName(), "last");
}

// The screens of an editor that comes and goes live as long as the desk.
TEST(DeskLifeTest, TheScreensOutliveTheWindow) {
    RunningDesk desk;
    desk.start();

    const ScreenState first = desk.mirel().getScreenState();
    EXPECT_TRUE(first.system && first.output);
    EXPECT_FALSE(first.help || first.display || first.computerInput || first.control || first.layer || first.cc ||
                 first.zone);

    ScreenState changed;
    changed.system = false;
    changed.zone = true;
    desk.mirel().getMessageManager().postSetScreenState(changed);
    desk.mirel().getMessageManager().postRemoveGuiWindowHandle();
    desk.settle();

    EXPECT_FALSE(desk.mirel().getScreenState().system);
    EXPECT_TRUE(desk.mirel().getScreenState().zone);
}

}
}
