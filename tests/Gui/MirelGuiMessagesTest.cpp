#include "Backend/core/WindowMessages.h"
#include "Backend/core/log/DisplayMessageManager.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/functions/Functions.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Gui/Rules/places/WindowMove.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "tests/support/LogText.h"
#include "tests/support/MessageWords.h"
#include "tests/support/RunningDesk.h"
#include "tests/support/win32/RecordedHook.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace Gui {
namespace {

using namespace Backend;
using namespace Backend::WindowMessages;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using TestSupport::makePorts;
using TestSupport::pumpUntil;
using TestSupport::releaseCopy;
using TestSupport::TestWindow;
using TestSupport::textOf;
using TestSupport::WindowDesk;

constexpr UINT FIRST = 33218;
constexpr UINT LAST = 33269;
constexpr int SYSTEM_OUTPUT = 1014;
constexpr int SYSTEM_PROGRAM = 1026;

class MirelGuiMessagesTest : public testing::Test {
protected:
    MirelGuiMessagesTest() {
        desk.start();
        desk.open();
        desk.host.forgetMessages();
    }

    MirelGui& gui() { return desk.gui(); }
    RegistrySettings& settings() { return gui().getRegistrySettings(); }

    template <class Payload>
    void tellObject(UINT message, const Payload& object) {
        desk.tell(message, 0, releaseCopy<LPARAM>(object));
    }

    HWND systemControl(int id) {
        const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
        return GetDlgItem(FindWindowExA(root, nullptr, nullptr, "Gui::System::SystemPanel"), id);
    }

    // Everything that a message could change, except what the host gets.
    std::string state() {
        std::string text;
        for (const auto& [name, value] : settings().describe())
            text += name + "=" + value + "\n";
        text += gui().getCurrentBankName() + "\n" + gui().getCurrentProgram().getName() + "\n";
        text += std::to_string(desk.size().cx) + " " + std::to_string(desk.size().cy) + "\n";
        for (const bool shows :
             {gui().isSystemPanelShowing(), gui().isHelpPanelShowing(), gui().isDisplayPanelShowing(),
              gui().isComputerInputPanelShowing(), gui().isControlPanelShowing(), gui().isOutputPanelShowing(),
              gui().isLayerPanelShowing(), gui().isCcPanelShowing(), gui().isZonePanelShowing()})
            text += shows ? "1" : "0";
        return text;
    }

    WindowDesk desk;
};

TEST_F(MirelGuiMessagesTest, EveryNumberOfTheFamilyIsClaimed) {
    const auto& master = gui().getGuiMessageManagerMaster();
    for (UINT message = FIRST; message <= LAST; ++message)
        EXPECT_TRUE(master.wantMessage(message)) << message;
    EXPECT_FALSE(master.wantMessage(FIRST - 1));
    EXPECT_FALSE(master.wantMessage(LAST + 1));
}

TEST_F(MirelGuiMessagesTest, NumbersWithoutAMeaningDoNothing) {
    const std::string before = state();
    for (const UINT message : {33218u, 33235u, 33236u, 33237u, 33238u, 33241u, 33242u, 33253u, 33269u}) {
        EXPECT_EQ(SendMessageA(desk.window(), message, 1, 0), 0) << message;
        EXPECT_EQ(state(), before) << message;
    }
}

struct FlagSetting {
    UINT message;
    bool (RegistrySettings::*get)() const;
    UINT toHost;  // 0: the host gets nothing.
};

TEST_F(MirelGuiMessagesTest, FlagsGoIntoTheWindowsSettingsAndToTheHost) {
    const FlagSetting rows[] = {
        {33219, &RegistrySettings::getDockToBottomEdge, UM_DOCK_CHANGED},
        {33224, &RegistrySettings::getDisplayNumbers, 0},
        {33225, &RegistrySettings::getLargeDisplayFont, 0},
        {33226, &RegistrySettings::getDisplayMidiInputEvents, 0},
        {33227, &RegistrySettings::getDisplayMidiOutputEvents, 0},
        {33261, &RegistrySettings::getAlwaysOnTop, UM_ALWAYS_ON_TOP_CHANGED},
        {33262, &RegistrySettings::getUseSkinBorder, UM_SKIN_BORDER_CHANGED},
        {33264, &RegistrySettings::isRetroRecordEnabled, 0},
        {33265, &RegistrySettings::getMidiThru, UM_MIDI_THRU_CHANGED},
        {33266, &RegistrySettings::getGlobalKeyboard, UM_GLOBAL_KEYBOARD_CHANGED},
        {33268, &RegistrySettings::getClickZoneChannelTranspose, 0},
    };
    for (const FlagSetting& row : rows)
        for (const bool value : {true, false, true}) {
            desk.host.forgetMessages();
            desk.tell(row.message, value);
            EXPECT_EQ((settings().*row.get)(), value) << row.message;
            for (UINT message = UM_DOCK_CHANGED; message <= UM_MOVE_WINDOW; ++message) {
                const std::vector<TestWindow::Message> expected = {{message, value, 0}};
                EXPECT_EQ(desk.host.received(message),
                          message == row.toHost ? expected : std::vector<TestWindow::Message>())
                    << row.message;
            }
        }
}

// Their next press requests the opposite of what they show.
TEST_F(MirelGuiMessagesTest, ThruIsShownByItsButtons) {
    for (const HWND button : {systemControl(1021), GetDlgItem(desk.window(), 118)})
        for (const bool thru : {false, true}) {
            desk.mirel().getMessageManager().postChangeMidiThru(OnOffToggle(OnOffToggle::TOGGLE), false);
            desk.tell(33265, thru);
            SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
            desk.settle();
            EXPECT_EQ(desk.mirel().getRegistrySettings().getMidiThru(), !thru);
        }
}

TEST_F(MirelGuiMessagesTest, TheLogsFontFollowsItsSetting) {
    const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
    const HWND edit = GetDlgItem(FindWindowExA(root, nullptr, nullptr, "Gui::Display::DisplayPanel"), 1074);
    const auto font = [edit] { return reinterpret_cast<HFONT>(SendMessageA(edit, WM_GETFONT, 0, 0)); };
    EXPECT_EQ(font(), gui().getGdiManager().getSmallFont().handle());
    desk.tell(33225, 1);
    EXPECT_EQ(font(), gui().getGdiManager().getLargeFont().handle());
    desk.tell(33225, 0);
    EXPECT_EQ(font(), gui().getGdiManager().getSmallFont().handle());
}

// A message's payload may be missing.
TEST_F(MirelGuiMessagesTest, MessagesWithoutTheirObjectsDoNothing) {
    const std::string before = state();
    for (const UINT message : {33220u, 33221u, 33222u, 33223u, 33228u, 33255u, 33256u})
        desk.tell(message);
    EXPECT_EQ(state(), before);
    EXPECT_EQ(gui().getMidiOutputPorts().size(), 3u);
    EXPECT_EQ(desk.host.count(UM_MOVE_WINDOW), 0u);
}

TEST_F(MirelGuiMessagesTest, NumbersGoIntoTheWindowsSettings) {
    desk.tell(33257, 2);
    EXPECT_EQ(gui().getDefaultMidiOutput(), 2);
    desk.tell(33257, static_cast<WPARAM>(-1));
    EXPECT_EQ(gui().getDefaultMidiOutput(), -1);
    desk.tell(33263, 4321);
    EXPECT_EQ(settings().getRetroRecordBufferSize(), 4321);
    desk.tell(33267, 7);
    EXPECT_EQ(settings().getMouseSensitivity(), 7);
}

TEST_F(MirelGuiMessagesTest, TheDefaultBankGoesIntoTheWindowsSettings) {
    tellObject(33220, std::string("C:\\banks\\live.bnk"));
    EXPECT_EQ(settings().getDefaultBank(), "C:\\banks\\live.bnk");
}

TEST_F(MirelGuiMessagesTest, ABankBringsItsNameAndPrograms) {
    tellObject(33221, Bank("C:\\banks\\live.bnk", {"Piano", "Lead"}));
    EXPECT_EQ(gui().getCurrentBankName(), "live");
    EXPECT_EQ(gui().getNumberOfPrograms(), 2);
    EXPECT_EQ(gui().getCurrentBank().getPath(), "C:\\banks\\live.bnk");
    const std::vector<TestWindow::Message> expected = {{UM_BANK_CHANGED, 0, 0}};
    EXPECT_EQ(desk.host.received(UM_BANK_CHANGED), expected);
}

TEST_F(MirelGuiMessagesTest, AProgramIsShownOnTheMainScreen) {
    tellObject(33221, Bank("live.bnk", {"Piano", "Lead"}));
    tellObject(33222, Program("Lead", 1, 96, 0));
    const Program& program = static_cast<const MirelGuiIF&>(gui()).getCurrentProgram();
    EXPECT_EQ(program.getName(), "Lead");
    EXPECT_EQ(program.getIndex(), 1);
    EXPECT_EQ(program.getTempo(), 96);
    EXPECT_EQ(program.getTempoSource(), 0);
    EXPECT_EQ(textOf(systemControl(SYSTEM_PROGRAM)), "2 - Lead");
}

TEST_F(MirelGuiMessagesTest, AProgramsNewNameIsShownToo) {
    tellObject(33221, Bank("live.bnk", {"Piano", "Lead"}));
    tellObject(33222, Program("Lead", 1, 96, 0));
    tellObject(33223, Program("Solo", 1, 96, 0));
    EXPECT_EQ(gui().getCurrentProgram().getName(), "Solo");
    EXPECT_EQ(textOf(systemControl(SYSTEM_PROGRAM)), "2 - Solo");
}

TEST_F(MirelGuiMessagesTest, AMoveGoesToTheHost) {
    PostMessageA(desk.window(), 33228, releaseCopy<WPARAM>(RelativeFixedValue(true, 12)),
                 releaseCopy<LPARAM>(RelativeFixedValue(false, 300)));
    desk.settle();
    const std::vector<TestWindow::Message> expected = {
        {UM_MOVE_WINDOW, packWindowMove({true, 12}), static_cast<LPARAM>(packWindowMove({false, 300}))}};
    EXPECT_EQ(desk.host.received(UM_MOVE_WINDOW), expected);
}

struct ScreenMessages {
    UINT show;
    bool (MirelGuiIF::*isShowing)();
};

TEST_F(MirelGuiMessagesTest, ScreensShowHideAndToggle) {
    // The message after each one toggles.
    const ScreenMessages rows[] = {
        {33229, &MirelGuiIF::isSystemPanelShowing},  {33231, &MirelGuiIF::isHelpPanelShowing},
        {33233, &MirelGuiIF::isDisplayPanelShowing}, {33239, &MirelGuiIF::isComputerInputPanelShowing},
        {33243, &MirelGuiIF::isControlPanelShowing}, {33245, &MirelGuiIF::isOutputPanelShowing},
        {33247, &MirelGuiIF::isCcPanelShowing},      {33249, &MirelGuiIF::isLayerPanelShowing},
        {33251, &MirelGuiIF::isZonePanelShowing},
    };
    for (const ScreenMessages& row : rows) {
        desk.tell(33245, 1);
        desk.tell(row.show, 1);
        EXPECT_TRUE((gui().*row.isShowing)()) << row.show;
        desk.tell(row.show, 0);
        EXPECT_FALSE((gui().*row.isShowing)()) << row.show;
        desk.tell(row.show + 1);
        EXPECT_TRUE((gui().*row.isShowing)()) << row.show;
        desk.tell(row.show + 1);
        EXPECT_FALSE((gui().*row.isShowing)()) << row.show;
    }
}

TEST_F(MirelGuiMessagesTest, EventsLightTheMusicKeyboard) {
    const auto tell = [this](MidiMessage::MessageType status, char d1) {
        MirelMidiMessage message;
        message.setMidiMessage(MidiMessage(status, d1, 100, 0));
        desk.tell(33254, message.getWparam(), message.getLparam());
    };
    const Note note(std::uint8_t{60});
    tell(MidiMessage::NoteOn, 60);
    tell(MidiMessage::NoteOn, 60);
    EXPECT_EQ(gui().getMainMusicKeyboardCtl().getCount(note), 2);
    tell(MidiMessage::ControllerChange, 60);
    tell(MidiMessage::NoteOff, 60);
    EXPECT_EQ(gui().getMainMusicKeyboardCtl().getCount(note), 1);
    tell(MidiMessage::NoteOff, 60);
    tell(MidiMessage::NoteOff, 60);
    EXPECT_EQ(gui().getMainMusicKeyboardCtl().getCount(note), 0);
}

TEST_F(MirelGuiMessagesTest, EventsReachTheLog) {
    gui().showDisplay(true);
    MirelMidiMessage message;
    message.setMidiMessage(MidiMessage(MidiMessage::NoteOn, 60, 100, 0));
    desk.tell(33254, message.getWparam(), message.getLparam());
    const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
    const HWND edit = GetDlgItem(FindWindowExA(root, nullptr, nullptr, "Gui::Display::DisplayPanel"), 1074);
    EXPECT_TRUE(pumpUntil([edit] { return textOf(edit).find("C4") != std::string::npos; })) << textOf(edit);
}

// The log's thread waits for this one to take a text, all others for the log, and this one for a place in its queue.
TEST_F(MirelGuiMessagesTest, AFullLogDoesNotHoldTheWindowUp) {
    constexpr int CAPACITY = Platform::MessageThread::CAPACITY;
    gui().showDisplay(true);
    desk.settle();
    auto& log = desk.mirel().getDisplayMessageManager();
    log.postAddText("first\r\n");
    log.postFlush();
    std::atomic<int> posted = 0;
    std::jthread flood([&] {
        while (posted < CAPACITY + 1) {
            log.postAddText("flood\r\n");
            ++posted;
        }
    });
    ASSERT_TRUE(TestSupport::eventually([&posted] { return posted >= CAPACITY; }));
    MirelMidiMessage message;
    message.setMidiMessage(MidiMessage(MidiMessage::NoteOn, 60, 100, 0));
    gui().displayMidiOutputEvent(message);
    EXPECT_TRUE(pumpUntil([&] { return posted > CAPACITY && log.isIdle(); }));
    flood.join();
}

// The same, with the desk waiting for the log too.
TEST_F(MirelGuiMessagesTest, AFullLogDoesNotHoldUpTheWindowThatWaitsForTheDesk) {
    constexpr int CAPACITY = Platform::MessageThread::CAPACITY;
    gui().showDisplay(true);
    desk.settle();
    auto& log = desk.mirel().getDisplayMessageManager();
    log.postAddText("first\r\n");
    log.postFlush();
    for (int i = 0; i < CAPACITY; ++i)
        log.postAddText("flood\r\n");
    desk.mirel().getMessageManager().postSetDisplayNumbers(true);
    gui().editSequencePreset("none", "other");
    gui().deleteSequencePreset("none");
    EXPECT_TRUE(desk.mirel().getMessageManagerMaster().isIdle());
}

TEST_F(MirelGuiMessagesTest, InputsReplaceTheOnesBefore) {
    tellObject(33255, makePorts<MidiInputPort>({"Keys"}));
    ASSERT_EQ(gui().getMidiInputPorts().size(), 1u);
    EXPECT_EQ(gui().getMidiInputPorts()[0].name, "Keys");
}

TEST_F(MirelGuiMessagesTest, OutputsReplaceTheOnesBeforeAndTheDefaultOneIsShown) {
    EXPECT_EQ(textOf(systemControl(SYSTEM_OUTPUT)), "Out 0");
    tellObject(33256, makePorts<MidiOutputPort>({"Synth", "Organ"}));
    ASSERT_EQ(gui().getMidiOutputPorts().size(), 2u);
    EXPECT_EQ(textOf(systemControl(SYSTEM_OUTPUT)), "Synth");
    desk.tell(33257, 1);
    EXPECT_EQ(textOf(systemControl(SYSTEM_OUTPUT)), "Organ");
}

TEST_F(MirelGuiMessagesTest, AResetEndsAllHighlights) {
    auto& panel = dynamic_cast<ComputerInput::ComputerInputPanel&>(gui().getComputerInputPanelAsPresetGuiOwner());
    auto& keyboard = panel.getMainPanel().getComputerKeyboardCtl();
    const Key key(65, false, false, false, false);
    keyboard.setPressed(key, true);
    gui().getMainMusicKeyboardCtl().noteOn(Note(std::uint8_t{60}));
    desk.tell(33258);
    EXPECT_FALSE(keyboard.isPressed(key));
    EXPECT_EQ(gui().getMainMusicKeyboardCtl().getCount(Note(std::uint8_t{60})), 0);
}

TEST_F(MirelGuiMessagesTest, MenusOpenForProgramsAndOutputs) {
    tellObject(33221, Bank("live.bnk", {"Piano", "Lead"}));
    for (const UINT message : {33259u, 33260u}) {
        bool opened = false;
        {
            const TestSupport::OtherThread user(
                [&opened, thread = GetCurrentThreadId()] { opened = TestSupport::endMenuOf(thread); });
            SendMessageA(desk.window(), message, 0, 0);
        }
        EXPECT_TRUE(opened) << message;
        TestSupport::pump();
    }
}

TEST_F(MirelGuiMessagesTest, AHoverShowsTheHelpOfWhatIsThere) {
    gui().showHelp(true);
    const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
    const HWND text = GetDlgItem(FindWindowExA(root, nullptr, nullptr, "Gui::Help::HelpPanel"), 1074);
    SendMessageA(desk.window(), UM_HOVER, 0, reinterpret_cast<LPARAM>(systemControl(102)));
    const std::string help = textOf(text);
    EXPECT_FALSE(help.empty());
    SendMessageA(desk.window(), UM_HOVER, 0, 0);
    EXPECT_EQ(textOf(text), help);
    gui().displayHelp(std::string("Own words."));
    EXPECT_EQ(textOf(text), "Own words.");
    gui().displayHelp(systemControl(102));
    EXPECT_EQ(textOf(text), help);
}

TEST_F(MirelGuiMessagesTest, ADockedWindowNotifiesTheDesk) {
    gui().setDockToBottomEdge(true);
    EXPECT_TRUE(gui().getDockToBottomEdge());
    desk.settle();
    EXPECT_TRUE(desk.mirel().getRegistrySettings().getDockToBottomEdge());
    EXPECT_EQ(desk.host.count(UM_DOCK_CHANGED), 1u);  // Through the desk.
}

TEST_F(MirelGuiMessagesTest, OutputsHaveNamesByTheirIndex) {
    EXPECT_EQ(gui().getMidiOutputName(-1), "Default");
    EXPECT_EQ(gui().getMidiOutputName(0), "Out 0");
    EXPECT_EQ(gui().getMidiOutputName(2), "Out 2");
    EXPECT_EQ(gui().getMidiOutputName(3), "???");
    EXPECT_EQ(gui().getMidiOutputName(-2), "???");
}

TEST_F(MirelGuiMessagesTest, SequencePresetsChangeInTheWindowAndOnTheDisk) {
    using Strings = std::vector<std::string>;
    EXPECT_EQ(gui().getSequencePresetList(), Strings());
    gui().addSequencePreset("Two", "0,12");
    gui().addSequencePreset("One", "0");
    gui().addSequencePreset("One", "5");
    EXPECT_EQ(gui().getSequencePresetList(), (Strings{"One", "Two"}));
    gui().editSequencePreset("Two", "Zwei");
    EXPECT_EQ(gui().getSequencePresetList(), (Strings{"One", "Zwei"}));
    gui().editSequencePreset("One", "Zwei");
    EXPECT_EQ(gui().getSequencePresetList(), (Strings{"One", "Zwei"}));
    gui().deleteSequencePreset("One");
    EXPECT_EQ(gui().getSequencePresetList(), Strings{"Zwei"});
    gui().deleteSequencePreset("One");
    EXPECT_EQ(gui().getSequencePresetList(), Strings{"Zwei"});
}

class MirelGuiHookTest : public testing::Test {
protected:
    void open(const std::string& folder, bool globalKeyboard = false) {
        desk.prepareProgramFolder(folder);
        desk.prepareSettings(
            [globalKeyboard](RegistrySettings& settings) { settings.setGlobalKeyboard(globalKeyboard); });
        desk.start();
        desk.open();
        desk.host.forgetMessages();
    }

    TestSupport::RecordedHook hook;
    WindowDesk desk;
};

TEST_F(MirelGuiHookTest, TheHookGetsTheWindowAndTheSetting) {
    open(TestSupport::RecordedHook::recordingFolder(), true);
    const std::string calls = hook.takeCalls();
    EXPECT_TRUE(calls.starts_with("setWindowHandle window\nsetEnabled on\n")) << calls;
    EXPECT_NE(calls.find("clearExclude\n"), std::string::npos);
    EXPECT_NE(calls.find("setExcludeKey "), std::string::npos);
    EXPECT_NE(calls.find("clearControlKeys\n"), std::string::npos);
}

TEST_F(MirelGuiHookTest, AChangeOfTheSettingReachesTheHook) {
    open(TestSupport::RecordedHook::recordingFolder());
    hook.takeCalls();
    desk.tell(33266, 1);
    EXPECT_EQ(hook.takeCalls(), "setWindowHandle window\nsetEnabled on\n");
    desk.tell(33266, 0);
    EXPECT_EQ(hook.takeCalls(), "setWindowHandle window\nsetEnabled off\n");
}

TEST_F(MirelGuiHookTest, TheHookIsOffWhenTheWindowIsGone) {
    open(TestSupport::RecordedHook::recordingFolder(), true);
    hook.takeCalls();
    desk.close();
    EXPECT_EQ(hook.takeCalls(), "setEnabled off\nsetWindowHandle none\n");
}

TEST_F(MirelGuiHookTest, AControlKeyOfTheHookChangesSettingButtonAndHost) {
    open(TestSupport::RecordedHook::recordingFolder());
    for (const bool state : {true, false}) {
        desk.host.forgetMessages();
        SendMessageA(desk.window(), KeyboardHookProxy::getStateMessage(), state ? 5 : 0, 0);
        desk.settle();
        EXPECT_EQ(desk.gui().getRegistrySettings().getGlobalKeyboard(), state);
        const std::vector<TestWindow::Message> expected = {{UM_GLOBAL_KEYBOARD_CHANGED, state, 0}};
        EXPECT_EQ(desk.host.received(UM_GLOBAL_KEYBOARD_CHANGED), expected);
        const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
        const HWND button = GetDlgItem(FindWindowExA(root, nullptr, nullptr, "Gui::System::SystemPanel"), 1022);
        const TestSupport::Picture picture(button);
        const auto& gdi = desk.gui().getGdiManager();
        EXPECT_EQ(picture.count(gdi.getSelectedButtonBrush().colour()) >
                      picture.count(gdi.getUnselectedButtonBrush().colour()),
                  state);
    }
}

TEST_F(MirelGuiHookTest, WithoutALibraryTheButtonStillChangesTheSetting) {
    open(TestSupport::RecordedHook::missingFolder());
    desk.gui().getMirelMessageManager().postChangeGlobalKeyboard(OnOffToggle(OnOffToggle::TOGGLE), true);
    desk.settle();
    EXPECT_TRUE(desk.gui().getRegistrySettings().getGlobalKeyboard());
    EXPECT_TRUE(desk.mirel().getRegistrySettings().getGlobalKeyboard());
    EXPECT_EQ(desk.host.count(UM_GLOBAL_KEYBOARD_CHANGED), 1u);
    EXPECT_EQ(hook.takeCalls(), "");
    const std::string log = TestSupport::readLog(desk.mirel().getDisplayMessageManager());
    EXPECT_EQ(log.find("Hook"), std::string::npos) << log;
}

TEST_F(MirelGuiHookTest, KeysThatSwitchTheHookAreHandedToIt) {
    open(TestSupport::RecordedHook::recordingFolder());
    using FunctionManagement::Functions::ChangeGlobalKeyboard;
    Backend::ComputerInput::KeyConfiguration key(Key(112, true, false, false, false));
    key.setGlobal(false);
    auto toggle = std::make_unique<ChangeGlobalKeyboard>(desk.mirel());
    auto off = std::make_unique<ChangeGlobalKeyboard>(desk.mirel());
    off->setOnOffToggle(OnOffToggle(OnOffToggle::OFF));
    key.setDownFunction(std::move(toggle), 0);
    key.setUpFunction(std::move(off), 0);
    hook.takeCalls();
    desk.mirel().getComputerInputMessageManager().postUpdateKeyConfigurations({key}, true);
    desk.settle();
    const std::string calls = hook.takeCalls();
    EXPECT_TRUE(calls.starts_with("setExcludeKey 112 shift excluded\nclearControlKeys\n")) << calls;
    EXPECT_NE(calls.find("addControlKey 112 shift down -1\n"), std::string::npos) << calls;
    EXPECT_NE(calls.find("addControlKey 112 shift up 0\n"), std::string::npos) << calls;
}

}
}
