// What each operation of the MirelMessageManager posts, and what the backend thread does with it.
#include "Backend/core/Mirel.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/core/version2/Version2ImportRequest.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Host/cli/script/EventText.h"
#include "tests/support/DataTable.h"
#include "tests/support/FakeHost.h"
#include "tests/support/MessageWitness.h"
#include "tests/support/MessageWords.h"
#include "tests/support/ProjectFolder.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace Backend {
namespace {

using MidiEngine::MidiInputPort;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using TestSupport::makePorts;

class NoWindow : public Platform::WindowSink {
    void windowMessage(UINT, WPARAM, LPARAM) override {}
};

NoWindow& notifyWindow() {
    static NoWindow window;
    return window;
}

std::string onOff(bool on) {
    return on ? " on" : " off";
}

std::string quoted(const std::string& text) {
    return " \"" + text + "\"";
}

std::string describe(HWND window) {
    return window == notifyWindow().handle() ? " window" : " other window";
}

std::string describe(const MirelMidiMessage& message) {
    return " " +
           Host::Cli::describeEvent(
               message, message.isDefaultChannel() ? MirelMidiMessage::DEFAULT_CHANNEL : message.getChannel()) +
           " zone=" + std::to_string(message.getZone()) + " in=" + std::to_string(message.getInput()) +
           " cell=" + message.getFromControl().toXmlString() + " ppq=" + std::to_string(message.getPpq());
}

template <class Port>
std::string describe(const std::vector<Port>& ports) {
    std::string text;
    for (const Port& port : ports)
        text += (text.empty() ? " " : ",") + port.name;
    return text;
}

// A desk that records what it is asked to do instead of doing it.
class RecordingMirel : public Mirel {
public:
    explicit RecordingMirel(MidiEngine::MidiPlayer& player) : Mirel("Test", player) {}

    // [thread of the test, while the backend rests]
    std::vector<std::string> takeCalls() { return std::exchange(m_calls, {}); }

    // What createMirelGui returns; nobody dereferences it.
    static Gui::MirelGuiIF* gui() { return reinterpret_cast<Gui::MirelGuiIF*>(&s_gui); }

    void initialize() override { note("initialize"); }
    void endInitialize() override { note("endInitialize"); }
    void end() override { note("end"); }
    void setMidiInputPorts(const std::vector<MidiInputPort>& p) override { note("setMidiInputPorts" + describe(p)); }
    void setMidiOutputPorts(const std::vector<MidiOutputPort>& p) override { note("setMidiOutputPorts" + describe(p)); }
    Gui::MirelGuiIF* createMirelGui(bool isVstPlugin) override {
        note("createMirelGui" + onOff(isVstPlugin));
        return gui();
    }
    void setLastWindowPosition(const Rect& rect) override {
        std::ostringstream text;
        text << "setLastWindowPosition " << rect.left << " " << rect.top << " " << rect.right << " " << rect.bottom;
        note(text.str());
    }
    void removeGuiWindowHandle() override { note("removeGuiWindowHandle"); }
    void setDockToBottomEdge(bool on) override { note("setDockToBottomEdge" + onOff(on)); }
    void setDefaultBank(const std::string& path) override { note("setDefaultBank" + quoted(path)); }
    void setDisplayHeight(int height) override { note("setDisplayHeight", height); }
    void setDisplayNumbers(bool on) override { note("setDisplayNumbers" + onOff(on)); }
    void setLargeDisplayFont(bool on) override { note("setLargeDisplayFont" + onOff(on)); }
    void setDisplayMidiInputEvents(bool on) override { note("setDisplayMidiInputEvents" + onOff(on)); }
    void setDisplayMidiOutputEvents(bool on) override { note("setDisplayMidiOutputEvents" + onOff(on)); }
    void setAlwaysOnTop(bool on) override { note("setAlwaysOnTop" + onOff(on)); }
    void loadProgram(const std::string& path) override { note("loadProgram" + quoted(path)); }
    void loadBank(const std::string& path) override { note("loadBank" + quoted(path)); }
    void importVersion2Bank(const std::string& from, const std::string& to, HWND notify) override {
        note("importVersion2Bank" + quoted(from) + quoted(to) + describe(notify));
    }
    void importVersion2Program(const std::string& from, const std::string& to, HWND notify) override {
        note("importVersion2Program" + quoted(from) + quoted(to) + describe(notify));
    }
    void importVersion2Preset(const std::string& from, const std::string& to, HWND notify) override {
        note("importVersion2Preset" + quoted(from) + quoted(to) + describe(notify));
    }
    void saveToCurrentBank(int index, HWND notify) override {
        note("saveToCurrentBank " + std::to_string(index) + describe(notify));
    }
    void saveToBank(const std::string& path, HWND notify) override {
        note("saveToBank" + quoted(path) + describe(notify));
    }
    void saveToProgram(const std::string& path, HWND notify) override {
        note("saveToProgram" + quoted(path) + describe(notify));
    }
    void playMidi(const MirelMidiMessage& message) override { note("playMidi" + describe(message)); }
    void enableMidiInput(int index, bool on) override { note("enableMidiInput " + std::to_string(index) + onOff(on)); }
    void enableMidiOutput(int index, bool on) override {
        note("enableMidiOutput " + std::to_string(index) + onOff(on));
    }
    void processMidiInputEvent(const MirelMidiMessage& message) override {
        note("processMidiInputEvent" + describe(message));
    }
    void resetMirel() override { note("resetMirel"); }
    void postKeyDown(const Key& key, bool isRepeat) override {
        note("postKeyDown " + key.toXmlString() + onOff(isRepeat));
    }
    void postKeyUp(const Key& key) override { note("postKeyUp " + key.toXmlString()); }
    void changeBankSize(int size, HWND notify) override {
        note("changeBankSize " + std::to_string(size) + describe(notify));
    }
    void changeProgramName(const std::string& name) override { note("changeProgramName" + quoted(name)); }
    void addSequencePreset(const std::string& name, const std::string& sequence) override {
        note("addSequencePreset" + quoted(name) + quoted(sequence));
    }
    void changeProgram(const SelectType& type) override { note("changeProgram " + type.toXmlString()); }
    void changeDefaultMidiOutput(const SelectType& type) override {
        note("changeDefaultMidiOutput " + type.toXmlString());
    }
    void setScreenState(const ScreenState& state) override {
        std::string text = "setScreenState ";
        for (const bool flag :
             {state.system, state.help, state.display, state.unused[0], state.unused[1], state.unused[2],
              state.computerInput, state.control, state.output, state.layer, state.cc, state.zone})
            text += flag ? '1' : '0';
        note(text);
    }
    void setUseSkinBorder(bool on) override { note("setUseSkinBorder" + onOff(on)); }
    void toggleSystemPanel() override { note("toggleSystemPanel"); }
    void changeTempo(const RelativeFixedValue& value, bool notifyGui) override {
        note("changeTempo " + value.toXmlString() + onOff(notifyGui));
    }
    void changeMidiThru(const OnOffToggle& state, bool notifyGui) override {
        note("changeMidiThru " + state.toXmlString() + onOff(notifyGui));
    }
    void changeGlobalKeyboard(const OnOffToggle& state, bool notifyGui) override {
        note("changeGlobalKeyboard " + state.toXmlString() + onOff(notifyGui));
    }
    void setTempoSource(char source, bool notifyGui) override {
        note("setTempoSource " + std::to_string(source) + onOff(notifyGui));
    }
    void setMouseSensitivity(int sensitivity) override { note("setMouseSensitivity", sensitivity); }
    void setLiteVelocity(int velocity) override { note("setLiteVelocity", velocity); }
    void setLiteChannel(int channel) override { note("setLiteChannel", channel); }
    void setLiteStackNotes(bool on) override { note("setLiteStackNotes" + onOff(on)); }
    void setClickZoneChannelTranspose(bool on) override { note("setClickZoneChannelTranspose" + onOff(on)); }

private:
    void note(const std::string& call) { m_calls.push_back(call); }
    void note(const std::string& name, int number) { note(name + " " + std::to_string(number)); }

    static inline char s_gui = 0;
    std::vector<std::string> m_calls;
};

MirelMidiMessage noteAt(std::int32_t ppq) {
    return MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {.output = 2, .channel = 3, .zone = 5},
                            {.input = 1, .ppq = ppq});
}

MirelMidiMessage eventOfControl() {
    return MirelMidiMessage(MidiMessage(MidiMessage::ControllerChange, 7, 99, 0),
                            {.output = 2, .channel = 3, .zone = 5}, Cell(4, 15));
}

ScreenState someScreens() {
    ScreenState state;
    state.system = false;
    state.help = true;
    state.output = false;
    state.zone = true;
    return state;
}

using Operation = std::function<void(MirelMessageManager&)>;

// The operations by their names in the table, with arguments.
std::map<std::string, Operation> operations() {
    using Manager = MirelMessageManager;
    const auto inputs = makePorts<MidiInputPort>({"Left", "Right"});
    const auto outputs = makePorts<MidiOutputPort>({"Up", "Down"});
    const HWND window = notifyWindow().handle();
    return {
        {"sendInitialize", [](Manager& m) { m.sendInitialize(); }},
        {"sendEnd", [](Manager& m) { m.sendEnd(); }},
        {"sendSetMidiInputPorts", [=](Manager& m) { m.sendSetMidiInputPorts(inputs); }},
        {"postSetMidiInputPorts", [=](Manager& m) { m.postSetMidiInputPorts(inputs); }},
        {"sendSetMidiOutputPorts", [=](Manager& m) { m.sendSetMidiOutputPorts(outputs); }},
        {"postSetMidiOutputPorts", [=](Manager& m) { m.postSetMidiOutputPorts(outputs); }},
        {"sendEndInitialize", [](Manager& m) { m.sendEndInitialize(); }},
        {"sendCreateMirelGui", [](Manager& m) { EXPECT_EQ(m.sendCreateMirelGui(true), RecordingMirel::gui()); }},
        {"postSetLastWindowPosition",
         [](Manager& m) {
             m.postSetLastWindowPosition({-1, 2, 3, 4});
         }},
        {"postRemoveGuiWindowHandle", [](Manager& m) { m.postRemoveGuiWindowHandle(); }},
        {"postSetDockToBottomEdge", [](Manager& m) { m.postSetDockToBottomEdge(true); }},
        {"postSetDefaultBank", [](Manager& m) { m.postSetDefaultBank("a bank"); }},
        {"postSetDisplayHeight", [](Manager& m) { m.postSetDisplayHeight(240); }},
        {"postSetDisplayNumbers", [](Manager& m) { m.postSetDisplayNumbers(true); }},
        {"postSetLargeDisplayFont", [](Manager& m) { m.postSetLargeDisplayFont(true); }},
        {"postSetDisplayMidiInputEvents", [](Manager& m) { m.postSetDisplayMidiInputEvents(true); }},
        {"postSetDisplayMidiOutputEvents", [](Manager& m) { m.postSetDisplayMidiOutputEvents(false); }},
        {"postSetAlwaysOnTop", [](Manager& m) { m.postSetAlwaysOnTop(true); }},
        {"postLoadProgram", [](Manager& m) { m.postLoadProgram("a program"); }},
        {"postLoadBank", [](Manager& m) { m.postLoadBank("a bank"); }},
        {"postImportVersion2Bank", [=](Manager& m) { m.postImportVersion2Bank("old", "new", window); }},
        {"postImportVersion2Program", [=](Manager& m) { m.postImportVersion2Program("old", "new", window); }},
        {"postImportVersion2Preset", [=](Manager& m) { m.postImportVersion2Preset("old", "new", window); }},
        {"postSaveToCurrentBank", [=](Manager& m) { m.postSaveToCurrentBank(7, window); }},
        {"postSaveToBank", [=](Manager& m) { m.postSaveToBank("a bank", window); }},
        {"postSaveToProgram", [=](Manager& m) { m.postSaveToProgram("a program", window); }},
        {"postPlayMidi of a control", [](Manager& m) { m.postPlayMidi(eventOfControl()); }},
        {"postPlayMidi at a time", [](Manager& m) { m.postPlayMidi(noteAt(5000)); }},
        {"postPlayMidi", [](Manager& m) { m.postPlayMidi(noteAt(-1)); }},
        {"postEnableMidiInput", [](Manager& m) { m.postEnableMidiInput(3, true); }},
        {"postEnableMidiOutput", [](Manager& m) { m.postEnableMidiOutput(3, false); }},
        {"postProcessMidiInputEvent", [](Manager& m) { m.postProcessMidiInputEvent(noteAt(-1)); }},
        {"postProcessMidiInputEvent timed", [](Manager& m) { m.postProcessMidiInputEvent(noteAt(5000)); }},
        {"postResetMirel", [](Manager& m) { m.postResetMirel(); }},
        {"postChangeBankSize", [=](Manager& m) { m.postChangeBankSize(12, window); }},
        {"postChangeProgramName", [](Manager& m) { m.postChangeProgramName("a name"); }},
        {"postAddSequencePreset", [](Manager& m) { m.postAddSequencePreset("a name", "0,12"); }},
        {"postChangeProgram", [](Manager& m) { m.postChangeProgram(SelectType(SelectType::SPECIFIC, 4)); }},
        {"postChangeDefaultMidiOutput",
         [](Manager& m) { m.postChangeDefaultMidiOutput(SelectType(SelectType::DOWN)); }},
        {"postSetScreenState", [](Manager& m) { m.postSetScreenState(someScreens()); }},
        {"postSetUseSkinBorder", [](Manager& m) { m.postSetUseSkinBorder(true); }},
        {"postToggleSystemPanel", [](Manager& m) { m.postToggleSystemPanel(); }},
        {"postChangeTempo", [](Manager& m) { m.postChangeTempo(RelativeFixedValue(true, 5), true); }},
        {"postChangeMidiThru", [](Manager& m) { m.postChangeMidiThru(OnOffToggle(OnOffToggle::TOGGLE), true); }},
        {"postChangeGlobalKeyboard",
         [](Manager& m) { m.postChangeGlobalKeyboard(OnOffToggle(OnOffToggle::OFF), false); }},
        {"postSetTempoSource", [](Manager& m) { m.postSetTempoSource(1, true); }},
        {"postSetTempoSource to none", [](Manager& m) { m.postSetTempoSource(-1, false); }},
        {"postSetMouseSensitivity", [](Manager& m) { m.postSetMouseSensitivity(5); }},
        {"postSetLiteVelocity", [](Manager& m) { m.postSetLiteVelocity(90); }},
        {"postSetLiteChannel", [](Manager& m) { m.postSetLiteChannel(9); }},
        {"postSetLiteStackNotes", [](Manager& m) { m.postSetLiteStackNotes(true); }},
        {"postSetClickZoneChannelTranspose", [](Manager& m) { m.postSetClickZoneChannelTranspose(true); }},
    };
}

void expectWord(const std::string& expected, std::int64_t word, const std::string& row) {
    if (expected == "heap")
        EXPECT_NE(word, 0) << row;
    else if (expected == "window")
        EXPECT_EQ(word, static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(notifyWindow().handle()))) << row;
    else
        EXPECT_EQ(word, std::stoll(expected)) << row;
}

class DeskMessagesTest : public testing::Test {
protected:
    DeskMessagesTest() {
        m_master.addMessageManager(&m_gate);
        m_master.addMessageManager(&m_witness);
    }

    void start() { m_master.start(); }

    TestSupport::FakeHost m_host;
    const std::unique_ptr<RecordingMirel> m_mirel = std::make_unique<RecordingMirel>(m_host);
    MessageManagerMaster m_master;
    MirelMessageManager m_manager{m_master, *m_mirel};
    TestSupport::MessageWitness m_witness{m_master, m_manager};
    TestSupport::WorkerGate m_gate{m_master};
};

TEST_F(DeskMessagesTest, EachOperationPostsItsNumberAndWordsAndIsCarriedOut) {
    const auto all = operations();
    std::set<std::string> seen;
    start();

    for (const auto& row : TestSupport::readTable("mirel-messages.txt")) {
        ASSERT_EQ(row.size(), 5u);
        const auto operation = all.find(row[1]);
        ASSERT_NE(operation, all.end()) << row[1];
        seen.insert(row[1]);
        operation->second(m_manager);
        m_master.waitUntilIdle();
        const std::vector<MSG> messages = m_witness.takeSeen();
        ASSERT_EQ(messages.size(), 1u) << row[1];
        EXPECT_EQ(messages[0].message, std::stoul(row[0])) << row[1];
        expectWord(row[2], static_cast<std::int64_t>(messages[0].wParam), row[1]);
        expectWord(row[3], static_cast<std::int64_t>(messages[0].lParam), row[1]);
        EXPECT_EQ(m_mirel->takeCalls(), std::vector<std::string>{row[4]}) << row[1];
    }

    m_master.stop();
    EXPECT_EQ(seen.size(), all.size());
}

TEST_F(DeskMessagesTest, NumbersWithoutAnOperationDoNothing) {
    std::set<UINT> used;
    for (const auto& row : TestSupport::readTable("mirel-messages.txt"))
        used.insert(static_cast<UINT>(std::stoul(row[0])));
    std::set<UINT> unused;
    start();

    for (UINT number = 33218; number <= 33273; ++number) {
        if (used.contains(number))
            continue;
        unused.insert(number);
        m_master.postMessage(number, ~WPARAM{0}, -1);
    }
    m_master.waitUntilIdle();
    EXPECT_EQ(unused, (std::set<UINT>{33218, 33237, 33238, 33262, 33263, 33273}));
    EXPECT_EQ(m_witness.takeSeen().size(), unused.size());
    EXPECT_EQ(m_mirel->takeCalls(), std::vector<std::string>());

    for (const UINT outside : {33217u, 33274u})
        m_master.postMessage(outside, 1, 1);
    m_master.waitUntilIdle();
    EXPECT_EQ(m_witness.takeSeen().size(), 0u);

    m_master.stop();
}

TEST_F(DeskMessagesTest, WordsBeyondWhatTheyMeanAreTakenByTheirLowPartOrAsTrue) {
    start();
    constexpr WPARAM HUGE_WORD = 0x7fffffff80000005;
    m_master.postMessage(33249, HUGE_WORD, 7);
    m_master.postMessage(33229, HUGE_WORD, 0);
    m_master.postMessage(33265, HUGE_WORD, -1);
    m_master.postMessage(33267, 0x1ff, 1);
    m_master.postMessage(33268, ~WPARAM{0}, 0);
    m_master.waitUntilIdle();
    EXPECT_EQ(m_mirel->takeCalls(),
              (std::vector<std::string>{"enableMidiInput -2147483643 on", "setDockToBottomEdge on",
                                        "changeMidiThru toggle on", "setTempoSource -1 on", "setMouseSensitivity -1"}));
    m_master.stop();
}

TEST_F(DeskMessagesTest, APackedEventLosesTheChannelInItsStatusUnlessItIsASystemEvent) {
    start();
    m_master.postMessage(33248, 0x05643c93, 0xffff01ff);
    m_master.postMessage(33248, 0x000000f8, 0xffff00ff);
    m_master.postMessage(33251, 0x7fffffff05ffff81, 0x7fffffff03020501);
    m_master.waitUntilIdle();
    EXPECT_EQ(
        m_mirel->takeCalls(),
        (std::vector<std::string>{"playMidi 0x90 60 100 ch=-1 out=-1 zone=-1 in=-1 cell=-1,-1 ppq=-1",
                                  "playMidi 0xf8 0 0 ch=0 out=-1 zone=-1 in=-1 cell=-1,-1 ppq=-1",
                                  "processMidiInputEvent 0x80 255 255 ch=-1 out=1 zone=3 in=2 cell=-1,-1 ppq=-1"}));
    m_master.stop();
}

// The payload of a message that comes too late is destroyed; the address sanitizer finds what is not.
TEST_F(DeskMessagesTest, WhatComesAfterTheEndIsDisposedOfAndNotCarriedOut) {
    start();
    m_master.postMessage(TestSupport::WorkerGate::NUMBER, 0, 0);
    m_master.postMessage(QUIT_BACKEND_WORKER, 0, 0);
    std::vector<UINT> expected;
    const auto all = operations();

    for (const auto& row : TestSupport::readTable("mirel-messages.txt")) {
        expected.push_back(static_cast<UINT>(std::stoul(row[0])));
        if (row[1].starts_with("post"))
            all.at(row[1])(m_manager);
        else if (expected.back() == 33221)
            m_master.postMessage(33221, TestSupport::releaseCopy<WPARAM>(makePorts<MidiInputPort>({"Left"})), 0);
        else if (expected.back() == 33223)
            m_master.postMessage(33223, TestSupport::releaseCopy<WPARAM>(makePorts<MidiOutputPort>({"Up"})), 0);
        else
            m_master.postMessage(expected.back(), 0, 0);
    }
    m_gate.open();
    m_master.stop();
    EXPECT_EQ(m_witness.getDisposed(), expected);
    EXPECT_EQ(m_mirel->takeCalls(), std::vector<std::string>());
}

TEST_F(DeskMessagesTest, KeysAreForwardedOnTheCallersThread) {
    // There is no worker: a post of this manager's own would wait.
    m_manager.postKeyDown(Key("Q"), true);
    m_manager.postKeyUp(Key("Shift F1"));
    EXPECT_EQ(m_mirel->takeCalls(), (std::vector<std::string>{"postKeyDown Q on", "postKeyUp Shift F1"}));
}

TEST(MirelOperationsTest, TheInterfaceHasAllOperationsInOrder) {
    std::ifstream header(TestSupport::projectFile("src/Backend/core/MirelIF.h"));
    std::vector<std::string> declared;
    for (std::string line; std::getline(header, line);) {
        if (line.find("virtual ") == std::string::npos)
            continue;
        const std::string head = line.substr(0, line.find('('));
        declared.push_back(head.substr(head.find_last_of(" &*") + 1));
    }

    std::vector<std::string> expected;
    for (const auto& row : TestSupport::readTable("mirel-operations.txt"))
        expected.push_back(row[0]);
    EXPECT_EQ(expected.size(), 115u);
    EXPECT_EQ(declared, expected);
}

}
}
