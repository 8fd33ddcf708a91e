// Many threads at the desk at once, mainly for the thread sanitizer.
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "tests/support/Eventually.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace Backend {
namespace {

using Controls::Control;
using Controls::ControlType;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using TestSupport::makePorts;
using TestSupport::RunningDesk;

constexpr int ROUNDS = 60;

void postFiles(Mirel& mirel, int round) {
    MirelMessageManager& manager = mirel.getMessageManager();
    manager.postLoadProgram(round % 2 ? "no such file.prg" : "");
    manager.postLoadBank("no such bank.bnk");
    manager.postChangeProgram(SelectType(SelectType::UP));
    manager.postChangeProgramName("name " + std::to_string(round));
}

void postSettings(Mirel& mirel, int round) {
    MirelMessageManager& manager = mirel.getMessageManager();
    manager.postChangeTempo(RelativeFixedValue(false, 20 + round), true);
    manager.postSetTempoSource(static_cast<char>(round % 2), true);
    manager.postChangeMidiThru(OnOffToggle(), true);
    manager.postChangeDefaultMidiOutput(SelectType(round % 2 ? SelectType::UP : SelectType::DOWN));
    manager.postSetDisplayNumbers(round % 2 == 0);
    manager.postSetLiteVelocity(round);
    manager.postSetMidiInputPorts(makePorts<MidiInputPort>({"A", "B", "C"}));
    manager.postSetMidiOutputPorts(makePorts<MidiOutputPort>({"D", "E"}));
    manager.postResetMirel();
}

void postEvents(Mirel& mirel, int round) {
    MirelMessageManager& manager = mirel.getMessageManager();
    const auto d1 = static_cast<char>(round);
    manager.postPlayMidi(MirelMidiMessage(MidiMessage::NoteOn, d1, 100));
    manager.postPlayMidi(MirelMidiMessage(MidiMessage::ControllerChange, 7, d1, {}, {.input = 0, .ppq = round}));
    manager.postProcessMidiInputEvent(MirelMidiMessage(MidiMessage::NoteOn, d1, 100, {.channel = 3}, {.input = 0}));
    mirel.getMidiEngineMessageManager().postPlayMidi(
        MirelMidiMessage(MidiMessage::PitchBend, d1, d1, {}, {.input = 0}));
    manager.postKeyDown(Key("Q"), false);
    manager.postKeyUp(Key("Q"));
    mirel.displayString("a line\r\n");
}

void postComponents(Mirel& mirel, int round) {
    Control control;
    control.cell = Cell(9, round % 16);
    control.type = ControlType(ControlType::EDIT);
    control.events.emplace_back(MidiMessage(MidiMessage::ControllerChange, 7));
    auto& controls = mirel.getControlMessageManager();
    controls.postUpdateControls({control}, true, false);
    controls.postSelectControls({control.cell, Cell(0, 2)});
    controls.postChangeControl({control.cell, round, true});
    controls.postSendAll(false);
    Layers::Layer layer;
    layer.id = round % 3;
    mirel.getLayerMessageManager().postUpdateLayers({layer}, true);
    mirel.getLayerMessageManager().postSelectLayers({{0}, {1}});
    mirel.getZoneMessageManager().postSetTranspose(0, round);
    mirel.getZoneMessageManager().postSelectZones({0, 1});
}

TEST(DeskThreadsTest, PostsFromManyThreadsAllArrive) {
    RunningDesk desk;
    desk.openWindow();
    desk.start();
    // From the first slice on, resets wait for this thread.
    desk.playSlice(0, 1);

    std::vector<std::thread> threads;
    std::atomic<int> running = 0;
    for (const auto& work : {postFiles, postSettings, postEvents, postComponents, postEvents}) {
        ++running;
        threads.emplace_back([&desk, &running, work] {
            for (int round = 0; round < ROUNDS; ++round)
                work(desk.mirel(), round);
            --running;
        });
    }
    std::int32_t clock = 1;
    while (running > 0) {
        desk.mirel().playTimeSlice(clock, clock + 2);
        clock += 2;
        std::this_thread::yield();
    }

    for (std::thread& thread : threads)
        thread.join();
    desk.playSlice(clock, clock + 2);
    desk.playSlice(clock + 2, clock + 4);

    EXPECT_EQ(desk.mirel().getCurrentBank().getPath(), "no such bank.bnk");
    EXPECT_EQ(desk.mirel().getRegistrySettings().getLiteVelocity(), ROUNDS - 1);
    EXPECT_EQ(desk.mirel().getLayers().getLayerList().size(), 3u);
    EXPECT_EQ(desk.mirel().getMidiInputPorts().size(), 3u);
    EXPECT_NE(desk.takeTold(), std::vector<std::string>());
    EXPECT_NE(desk.takePlayed(), std::vector<std::string>());
}

// More controllers in one slice than the backend's queue holds, while the backend does something else.
TEST(DeskThreadsTest, AFloodOfControllersBlocksNobody) {
    constexpr char CHANNEL = 3;
    constexpr int COUNT = 100000;
    constexpr int LAST = (COUNT - 1) % 128;
    RunningDesk desk;
    desk.start();
    desk.playSlice(0, 1);
    Control control;
    control.cell = Cell(9, 9);
    control.type = ControlType(ControlType::EDIT);
    control.events.emplace_back(MidiMessage(MidiMessage::ControllerChange, 7));
    control.events.back().channel = CHANNEL;
    desk.mirel().getControlMessageManager().postUpdateControls({control}, false, false);
    desk.settle();
    std::atomic<bool> isBusy = true;
    desk.post([&isBusy](Mirel&) {
        while (isBusy)
            std::this_thread::yield();
    });
    auto& engine = desk.mirel().getMidiEngineMessageManager();

    for (int i = 0; i < COUNT; ++i)
        engine.postPlayMidi(
            MirelMidiMessage(MidiMessage::ControllerChange, 7, static_cast<char>(i % 128), {.channel = CHANNEL}));
    engine.waitUntilIdle();
    desk.mirel().playTimeSlice(1, 2);
    desk.mirel().playTimeSlice(2, 3);

    EXPECT_EQ(desk.takePlayed().size(), static_cast<std::size_t>(COUNT));

    isBusy = false;
    std::int32_t clock = 3;
    EXPECT_TRUE(TestSupport::eventually([&] {
        int value = -1;
        desk.playSlice(clock, clock + 1);
        ++clock;
        desk.run([&value](Mirel& mirel) {
            Controls::ControlMap controls = mirel.getControls().getControlMap();
            value = controls.find(Cell(9, 9))->value;
        });
        return value == LAST;
    }));
}

// Each thread sees its own posts carried out in order.
TEST(DeskThreadsTest, PostsOfOneThreadKeepTheirOrder) {
    RunningDesk desk;
    desk.openWindow();
    desk.start();
    desk.takeTold();
    constexpr int COUNT = 300;

    const auto rename = [&desk](const std::string& who) {
        for (int i = 0; i < COUNT; ++i)
            desk.mirel().getMessageManager().postChangeProgramName(who + std::to_string(i));
    };

    std::thread other(rename, "b");
    rename("a");
    other.join();
    desk.settle();

    std::vector<std::string> expected[2];
    std::vector<std::string> got[2];
    for (int i = 0; i < COUNT; ++i)
        for (const int who : {0, 1})
            expected[who].push_back("33223 \"" + std::string(who ? "b" : "a") + std::to_string(i) +
                                    "\" index=0 tempo=120 source=-1");

    for (const std::string& told : desk.takeTold())
        got[told.find("\"b") != std::string::npos].push_back(told);
    EXPECT_EQ(got[0], expected[0]);
    EXPECT_EQ(got[1], expected[1]);
}

// A window that comes and goes while the desk works.
TEST(DeskThreadsTest, TheWindowComesAndGoes) {
    RunningDesk desk;
    desk.start();
    std::thread other([&desk] {
        for (int i = 0; i < ROUNDS; ++i) {
            desk.mirel().getMessageManager().postChangeTempo(RelativeFixedValue(false, 100), true);
            postEvents(desk.mirel(), i);
        }
    });

    for (int i = 0; i < ROUNDS; ++i) {
        desk.openWindow();
        desk.mirel().playTimeSlice(i, i + 1);
        desk.mirel().setGuiWindowHandle(nullptr);
    }
    other.join();
    desk.settle();
    desk.takeTold();
    desk.mirel().getMessageManager().postChangeTempo(RelativeFixedValue(false, 90), true);
    desk.settle();

    EXPECT_EQ(desk.takeTold(), std::vector<std::string>());
}

}
}
