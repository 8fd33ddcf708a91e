// Ports, tempo and the other musical settings of the desk.
#include "Backend/core/log/DisplayMessageManager.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

namespace Backend {
namespace {

using MidiEngine::MidiInputPort;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using TestSupport::RunningDesk;
using Strings = std::vector<std::string>;

constexpr const char* SYNTH = "Microsoft GS Wavetable Synth";
constexpr const char* OLD_SYNTH = "Microsoft GS Wavetable SW Synth";

// A port that is enabled and available unless marks after its name say otherwise: "-" disabled, "!" not available.
MidiOutputPort makePort(std::string text) {
    MidiOutputPort port;
    while (text.ends_with('-') || text.ends_with('!')) {
        (text.back() == '-' ? port.enabled : port.available) = false;
        text.pop_back();
    }
    port.name = text;
    return port;
}

std::vector<MidiOutputPort> makeOutputs(const Strings& texts) {
    std::vector<MidiOutputPort> ports;
    for (const std::string& text : texts)
        ports.push_back(makePort(text));
    return ports;
}

struct Choice {
    const char* what;
    int setting;
    Strings ports;
    int chosen;
};

TEST(DeskSettingsTest, TheDefaultOutputIsChosenAmongThePorts) {
    const Choice choices[] = {
        {"first run with the synthesizer", -1, {"A", SYNTH, "B"}, 1},
        {"first run with the older one", -1, {"A", "B", OLD_SYNTH}, 2},
        {"the first of both counts", -1, {"A", OLD_SYNTH, SYNTH}, 1},
        {"a name that is only like it", -1, {"A", "microsoft GS Wavetable Synth", "Microsoft GS Wavetable Synth 2"}, 0},
        {"first run with the synthesizer disabled", -1, {"A-", std::string(SYNTH) + "-", "B"}, 2},
        {"a second synthesizer does not stand in", -1, {"A", std::string(SYNTH) + "-", OLD_SYNTH}, 0},
        {"first run without it", -1, {"A", "B"}, 0},
        {"first run with the first port disabled", -1, {"A-", "B"}, 1},
        {"a port that is gone is still taken", -1, {"A!", "B"}, 0},
        {"all disabled", -1, {"A-", "B-"}, -1},
        {"no ports", -1, {}, -1},
        {"the chosen one stays", 1, {"A", "B", SYNTH}, 1},
        {"the chosen one is disabled", 1, {"A", "B-"}, 0},
        {"the chosen one and all others are disabled", 1, {"A-", "B-"}, -1},
        {"the chosen one is beyond the ports", 7, {"A", "B"}, 7},
        {"just beyond", 2, {"A", "B"}, 2},
        {"nonsense below none", -9, {"A"}, 0},
        {"nonsense below none, and no port to take", -9, {"A-"}, -9},
    };

    for (const Choice& choice : choices) {
        RunningDesk desk;
        desk.prepareSettings([&choice](RegistrySettings& settings) { settings.setDefaultMidiOutput(choice.setting); });
        desk.openWindow();
        desk.start({}, makeOutputs(choice.ports));
        EXPECT_EQ(desk.mirel().getRegistrySettings().getDefaultMidiOutput(), choice.chosen) << choice.what;
        EXPECT_EQ(desk.mirel().getMidiEngine().getDefaultMidiOutput(), choice.chosen) << choice.what;
        const Strings told = desk.takeTold();
        const bool isTold = std::find(told.begin(), told.end(), "33257 " + std::to_string(choice.chosen)) != told.end();
        EXPECT_EQ(isTold, choice.chosen != choice.setting) << choice.what;
    }
}

struct Step {
    SelectType type;
    int from;
    int to;
};

TEST(DeskSettingsTest, TheDefaultOutputMovesToOneThatIsEnabledAndAvailable) {
    RunningDesk desk;
    desk.start({}, makeOutputs({"A", "B-", "C!", "D", "E-!", "F"}));
    const SelectType up(SelectType::UP);
    const SelectType down(SelectType::DOWN);
    const auto specific = [](int index) { return SelectType(SelectType::SPECIFIC, index); };

    const Step steps[] = {
        {up, 0, 3},
        {up, 3, 5},
        {up, 5, 5},
        {up, -1, 0},
        {up, 99, 99},
        {up, INT_MAX, INT_MAX},
        {down, 5, 3},
        {down, 3, 0},
        {down, 0, 0},
        {down, -1, -1},
        {down, 99, 5},
        {specific(5), 0, 5},
        {specific(1), 0, 0},
        {specific(2), 0, 0},
        {specific(6), 0, 0},
        {specific(-1), 3, 3},
        {specific(INT_MAX), 3, 3},
        {specific(INT_MIN), 3, 3},
        {SelectType(SelectType::ALL, 3), 0, 3},
        {SelectType(SelectType::SELECTED, 3), 0, 3},
    };

    for (const Step& step : steps) {
        desk.run([&step](Mirel& mirel) {
            mirel.getRegistrySettings().setDefaultMidiOutput(step.from);
            mirel.getMidiEngineMessageManager().postSetDefaultMidiOutput(step.from);
        });
        desk.openWindow();
        desk.takeTold();
        desk.mirel().getMessageManager().postChangeDefaultMidiOutput(step.type);
        desk.settle();
        const std::string what = step.type.toXmlString() + " from " + std::to_string(step.from);
        EXPECT_EQ(desk.mirel().getRegistrySettings().getDefaultMidiOutput(), step.to) << what;
        EXPECT_EQ(desk.takeTold(), step.from == step.to ? Strings() : Strings{"33257 " + std::to_string(step.to)})
            << what;
    }
}

TEST(DeskSettingsTest, OnlyATempoOf20To250IsTaken) {
    RunningDesk desk;
    desk.start();
    desk.openWindow();
    desk.takeCalls();
    const struct {
        RelativeFixedValue value;
        int tempo;
    } changes[] = {
        {{false, 20}, 20},       {{false, 19}, 20},      {{true, -1}, 20},       {{false, 250}, 250},
        {{false, 251}, 250},     {{true, 1}, 250},       {{true, -50}, 200},     {{false, 0}, 200},
        {{false, INT_MIN}, 200}, {{true, INT_MAX}, 200}, {{true, INT_MIN}, 200}, {{true, 0}, 200},
    };

    int before = 120;
    for (const auto& change : changes) {
        desk.mirel().getMessageManager().postChangeTempo(change.value, true);
        desk.settle();
        const std::string what = change.value.toXmlString() + " at " + std::to_string(before);
        EXPECT_EQ(desk.mirel().getTempo(), change.tempo) << what;
        const std::string tempo = std::to_string(change.tempo);
        const bool taken = change.tempo != before || change.value == RelativeFixedValue();
        const bool same =
            change.value == RelativeFixedValue(false, 20) || change.value == RelativeFixedValue(false, 250);
        const bool isTaken = taken || same;
        EXPECT_EQ(desk.takeCalls(), isTaken ? Strings{"tempo " + tempo} : Strings()) << what;
        EXPECT_EQ(desk.takeTold(), isTaken ? Strings{"33222 \"\" index=0 tempo=" + tempo + " source=-1"} : Strings())
            << what;
        before = change.tempo;
    }
}

TEST(DeskSettingsTest, TheTempoSourceIsAnInputOrNone) {
    RunningDesk desk;
    desk.start();
    desk.takeCalls();
    const struct {
        int source;
        int result;
        bool taken;
    } changes[] = {{1, 1, true},    {2, 1, false},    {0, 0, true},  {-2, 0, false},
                   {127, 0, false}, {-128, 0, false}, {-1, -1, true}};

    for (const auto& change : changes) {
        desk.mirel().getMessageManager().postSetTempoSource(static_cast<char>(change.source), true);
        desk.settle();
        EXPECT_EQ(desk.mirel().getTempoSource(), change.result) << change.source;
        EXPECT_EQ(desk.takeCalls(), change.taken ? Strings{"source " + std::to_string(change.result)} : Strings())
            << change.source;
    }
}

// Whether a note comes through.
bool passesThru(RunningDesk& desk) {
    desk.mirel().playMidi(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {.output = 0, .channel = 0}, {.input = 0}));
    desk.settle();
    desk.playSlice(0, 0);
    desk.playSlice(0, 1);
    return !desk.takePlayed().empty();
}

TEST(DeskSettingsTest, ThruAndTheGlobalKeyboardAreSetClearedAndInverted) {
    RunningDesk desk;
    desk.start();
    EXPECT_TRUE(passesThru(desk));

    bool keyboard = false;

    bool thru = true;
    for (const auto state :
         {OnOffToggle::OFF, OnOffToggle::OFF, OnOffToggle::ON, OnOffToggle::ON, OnOffToggle::TOGGLE,
          OnOffToggle::TOGGLE, static_cast<OnOffToggle::State>(77), static_cast<OnOffToggle::State>(-1)}) {
        desk.mirel().getMessageManager().postChangeMidiThru(OnOffToggle(state), true);
        desk.mirel().getMessageManager().postChangeGlobalKeyboard(OnOffToggle(state), true);
        desk.settle();
        thru = state == OnOffToggle::ON || (state != OnOffToggle::OFF && !thru);
        keyboard = state == OnOffToggle::ON || (state != OnOffToggle::OFF && !keyboard);
        EXPECT_EQ(desk.mirel().getRegistrySettings().getMidiThru(), thru) << state;
        EXPECT_EQ(passesThru(desk), thru) << state;
        EXPECT_EQ(desk.mirel().getRegistrySettings().getGlobalKeyboard(), keyboard) << state;
    }
}

TEST(DeskSettingsTest, EnablingAnInputChangesTheListAndTheHost) {
    RunningDesk desk;
    desk.start();
    desk.takeCalls();
    MirelMessageManager& manager = desk.mirel().getMessageManager();
    manager.postEnableMidiInput(1, false);
    for (const int index : {2, -1, INT_MAX, INT_MIN})
        manager.postEnableMidiInput(index, false);
    desk.settle();

    EXPECT_EQ(desk.takeCalls(), Strings{"input 1 off"});
    EXPECT_TRUE(desk.mirel().getMidiInputPorts().at(0).enabled);
    EXPECT_FALSE(desk.mirel().getMidiInputPorts().at(1).enabled);
    EXPECT_EQ(desk.mirel().getRegistrySettings().getEnabledMidiInputs(), (std::vector<bool>{false, false}));

    manager.postEnableMidiInput(0, true);
    desk.settle();
    EXPECT_EQ(desk.mirel().getRegistrySettings().getEnabledMidiInputs(), std::vector<bool>{true});
}

TEST(DeskSettingsTest, EnablingAnOutputOnlyNotifiesTheHost) {
    RunningDesk desk;
    desk.start();
    desk.takeCalls();
    MirelMessageManager& manager = desk.mirel().getMessageManager();
    manager.postEnableMidiOutput(1, false);
    manager.postEnableMidiOutput(9, true);
    desk.settle();

    EXPECT_EQ(desk.takeCalls(), (Strings{"output 1 off", "output 9 on"}));
    EXPECT_TRUE(desk.mirel().getMidiOutputPorts().at(1).enabled);
    EXPECT_EQ(desk.mirel().getRegistrySettings().getEnabledMidiOutputs().size(), 10u);

    for (const int index : {INT_MAX, INT_MIN, 1 << 16})
        manager.postEnableMidiOutput(index, true);
    desk.settle();
    EXPECT_EQ(desk.mirel().getRegistrySettings().getEnabledMidiOutputs().size(), 10u);
}

TEST(DeskSettingsTest, TheLiteSettingsReachTheFirstLayerIfThereIsOne) {
    RunningDesk desk;
    desk.start();

    const auto set = [](Mirel& mirel) {
        mirel.setLiteVelocity(33);
        mirel.setLiteChannel(4);
        mirel.setLiteStackNotes(false);
    };

    desk.run(set);
    const Layers::Layer& layer = *desk.mirel().getLayers().getLayerList().begin();
    EXPECT_EQ(layer.velocity, RelativeFixedValue(false, 33));
    EXPECT_EQ(layer.channel, 4);
    EXPECT_FALSE(layer.useNoteStack);

    desk.mirel().playMidi(MirelMidiMessage(MidiMessage::NoteOn, 60, 100));
    desk.settle();
    desk.playSlice(0, 0);
    desk.playSlice(0, 1);

    EXPECT_EQ(desk.takePlayed(), Strings{"0x90 60 33 ch=4 out=0"});

    desk.run([&set](Mirel& mirel) {
        mirel.getLayers().clear();
        set(mirel);
        mirel.setLiteVelocity(INT_MAX);
    });
    EXPECT_EQ(desk.mirel().getLayers().getLayerList().size(), 0u);
    EXPECT_EQ(desk.mirel().getRegistrySettings().getLiteVelocity(), INT_MAX);
}

TEST(DeskSettingsTest, WhatIsPostedIsKept) {
    RunningDesk desk;
    desk.start();
    MirelMessageManager& manager = desk.mirel().getMessageManager();

    for (const bool flag : {true, false}) {
        manager.postSetDockToBottomEdge(flag);
        manager.postSetDisplayNumbers(flag);
        manager.postSetLargeDisplayFont(flag);
        manager.postSetDisplayMidiInputEvents(flag);
        manager.postSetDisplayMidiOutputEvents(flag);
        manager.postSetAlwaysOnTop(flag);
        manager.postSetUseSkinBorder(flag);
        manager.postSetLiteStackNotes(flag);
        manager.postSetClickZoneChannelTranspose(flag);
        manager.postSetMouseSensitivity(flag ? 7 : 1);
        manager.postSetDisplayHeight(flag ? 321 : 25);
        manager.postSetLiteChannel(flag ? 9 : 0);
        manager.postSetLiteVelocity(flag ? 77 : 1);
        manager.postSetDefaultBank(flag ? "some.bnk" : "");
        manager.postSetLastWindowPosition(flag ? Rect{1, 2, 3, 4} : Rect{});
        desk.settle();
        const RegistrySettings& settings = desk.mirel().getRegistrySettings();
        EXPECT_EQ(settings.getDockToBottomEdge(), flag);
        EXPECT_EQ(settings.getDisplayNumbers(), flag);
        EXPECT_EQ(settings.getLargeDisplayFont(), flag);
        EXPECT_EQ(settings.getDisplayMidiInputEvents(), flag);
        EXPECT_EQ(settings.getDisplayMidiOutputEvents(), flag);
        EXPECT_EQ(settings.getAlwaysOnTop(), flag);
        EXPECT_EQ(settings.getUseSkinBorder(), flag);
        EXPECT_EQ(settings.getLiteStackNotes(), flag);
        EXPECT_EQ(settings.getClickZoneChannelTranspose(), flag);
        EXPECT_EQ(settings.getMouseSensitivity(), flag ? 7 : 1);
        EXPECT_EQ(settings.getDisplayHeight(), flag ? 321 : 25);
        EXPECT_EQ(settings.getLiteChannel(), flag ? 9 : 0);
        EXPECT_EQ(settings.getLiteVelocity(), flag ? 77 : 1);
        EXPECT_EQ(settings.getDefaultBank(), flag ? "some.bnk" : "");
        EXPECT_EQ(settings.getLastWindowPosition(), flag ? (Rect{1, 2, 3, 4}) : Rect{});
    }
}

TEST(DeskSettingsTest, TheLogShowsWhatIsPlayedAccordingToItsSettings) {
    RunningDesk desk;
    desk.start();

    const auto play = [&desk] {
        desk.mirel().getDisplayMessageManager().postAddOutputEvent(
            MirelMidiMessage(MidiMessage::TimingTick, 0, 0, {.output = 1, .channel = 0}));
        desk.settle();
    };

    play();
    desk.mirel().getMessageManager().postSetDisplayNumbers(true);
    desk.settle();
    play();
    desk.mirel().getMessageManager().postSetDisplayMidiOutputEvents(false);
    desk.settle();

    play();
    EXPECT_EQ(desk.log(), "Mirel Console 3.2\r\nOut 1\t\tTiming Tick\r\n0  Out 1\t\tTiming Tick\r\n");
}

TEST(DeskSettingsTest, TempoAndThenItsSourceReachTheHostAfterALoad) {
    RunningDesk desk;
    desk.start();
    desk.takeCalls();
    desk.run([](Mirel& mirel) {
        mirel.loadProgramFromXml("<X><Program name=\"\" tempo=\"97\" tempoSource=\"1\"/></X>", 0);
    });
    EXPECT_EQ(desk.takeCalls(), (Strings{"tempo 97", "source 1"}));
    desk.run([](Mirel& mirel) { mirel.loadProgram("no such.prg"); });
    EXPECT_EQ(desk.takeCalls(), (Strings{"tempo 120", "source -1"}));
}

TEST(DeskSettingsTest, OnlyWhatComesFromAnEnabledInputIsLogged) {
    RunningDesk desk;
    desk.start();
    desk.run([](Mirel& mirel) {
        mirel.setDisplayMidiInputEvents(true);
        mirel.enableMidiInput(1, false);
    });
    for (const int input : {0, 1, 2, -1, 127, -128})
        desk.mirel().getMessageManager().postProcessMidiInputEvent(
            MirelMidiMessage(MidiMessage::TimingTick, 0, 0, {.channel = 0}, {.input = static_cast<char>(input)}));
    desk.settle();
    EXPECT_EQ(desk.log(), "Mirel Console 3.2\r\n> In 0\t\tTiming Tick\r\n");
    EXPECT_EQ(desk.takePlayed(), Strings());
}

}
}
