#include "Backend/core/settings/ScreenState.h"
#include "Backend/core/trace/Trace.h"
#include "Gui/ResourceIds.h"
#include "Gui/Rules/places/WindowMove.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "tests/support/CapturedDebugText.h"
#include "tests/support/MessageWords.h"
#include "tests/support/win32/OwnedHandles.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

#include <objbase.h>

#include <limits>

namespace Gui {
namespace {

using TestSupport::OwnedHandles;
using TestSupport::rectInParent;
using TestSupport::textOf;
using TestSupport::WindowDesk;

std::string classOf(HWND window) {
    char name[256];
    return {name, static_cast<std::size_t>(GetClassNameA(window, name, sizeof name))};
}

HWND childWithId(HWND parent, int id) {
    return GetDlgItem(parent, id);
}

// The titles of a window's children, starting with the first one created.
std::vector<std::string> childTitles(HWND parent) {
    std::vector<std::string> titles;
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        titles.push_back(textOf(child));
    return titles;
}

HWND findRoot(HWND window) {
    return FindWindowExA(window, nullptr, "TamselPanel2008", nullptr);
}

bool isVisible(HWND window) {
    return (GetWindowLongPtrA(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

class MirelGuiLifeTest : public testing::Test {
protected:
    MirelGuiLifeTest() { desk.start(); }

    WindowDesk desk;
};

TEST_F(MirelGuiLifeTest, ItsWindowIsAChildOfTheHosts) {
    desk.open();
    EXPECT_EQ(classOf(desk.window()), "MirelGuiWindow2008LE");
    EXPECT_EQ(textOf(desk.window()), "MirelGui");
    EXPECT_EQ(GetParent(desk.window()), desk.host.handle());
    EXPECT_TRUE(isVisible(desk.window()));
    EXPECT_EQ(GetPropA(desk.window(), "MirelGui"), &desk.gui());
    EXPECT_EQ(desk.mirel().getGuiWindowHandle(), desk.window());
    EXPECT_TRUE(desk.gui().getGuiMessageManagerMaster().currentThreadIsManagerThread());
    const RECT rect = rectInParent(desk.window());
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
}

TEST_F(MirelGuiLifeTest, HasAHiddenControlThatTakesTheFocus) {
    desk.open();
    const HWND focus = childWithId(desk.window(), 116);
    EXPECT_EQ(classOf(focus), "Edit");
    EXPECT_EQ(textOf(focus), "FocusControl");
    EXPECT_FALSE(isVisible(focus));
    EXPECT_TRUE(GetWindowLongPtrA(focus, GWL_STYLE) & ES_READONLY);
    EXPECT_TRUE(getFlag(focus, "NOWHEEL"));
    EXPECT_TRUE(getFlag(focus, "ORIG_PROC"));
    const RECT rect = rectInParent(focus);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.right, 10);
    EXPECT_EQ(rect.bottom, 10);
}

struct ButtonRow {
    int id;
    const char* caption;
    int x;
};

TEST_F(MirelGuiLifeTest, HasThreeHiddenButtons) {
    desk.open();
    for (const ButtonRow& row : {ButtonRow{117, "R", 5}, ButtonRow{118, "T", 37}, ButtonRow{119, "K", 37}}) {
        const HWND button = childWithId(desk.window(), row.id);
        ASSERT_NE(button, nullptr) << row.id;
        EXPECT_FALSE(isVisible(button)) << row.id;
        const RECT rect = rectInParent(button);
        EXPECT_EQ(rect.left, row.x) << row.id;
        EXPECT_EQ(rect.top, 6) << row.id;
        EXPECT_EQ(rect.right - rect.left, 29) << row.id;
        EXPECT_EQ(rect.bottom - rect.top, 20) << row.id;
    }
}

TEST_F(MirelGuiLifeTest, ItsScreensStandInOrder) {
    desk.open();
    const HWND root = findRoot(desk.window());
    const RECT rect = rectInParent(root);
    EXPECT_EQ(rect.left, 4);
    EXPECT_EQ(rect.top, 5);
    // Windows created later are further to the front; panels only lie below one another.
    auto titles = childTitles(root);
    std::vector<std::string> expected = {
        "Gui::System::SystemPanel", "Gui::Help::HelpPanel", "Gui::Display::DisplayPanel", "", "",
        "Gui::Output::OutputPanel"};
    std::sort(titles.begin(), titles.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(titles, expected);
    EXPECT_FALSE(GetWindowLongPtrA(root, GWL_STYLE) & WS_BORDER);
    EXPECT_TRUE(GetWindowLongPtrA(desk.gui().getOutputPanel().getWindowHandle(), GWL_STYLE) & WS_BORDER);
}

TEST_F(MirelGuiLifeTest, TheOutputScreenHoldsItsPanelsInOrder) {
    desk.open();
    Output::OutputPanel& output = desk.gui().getOutputPanel();
    EXPECT_EQ(output.getPanelCount(), 4);
    EXPECT_EQ(textOf(output.getCcPanel().getWindowHandle()), "CcPanel");
    EXPECT_EQ(textOf(output.getMusicKeyboardPanel().getWindowHandle()), "MusicKeyboardPanel");
    EXPECT_EQ(textOf(output.getZonePanel().getMainPanel().getWindowHandle()), "Gui::Zones::MainPanel");
    EXPECT_EQ(textOf(output.getLayerPanel().getMainPanel().getWindowHandle()), "LayerMainPanel");
    EXPECT_EQ(textOf(output.getLayerPanel().getSettingsPanel().getWindowHandle()), "Gui::Layers::SettingsPanel");
    desk.gui().showCc(true);
    desk.gui().showZone(true);
    desk.gui().showLayer(true);
    const HWND inOrder[] = {output.getCcPanel().getWindowHandle(), output.getMusicKeyboardPanel().getWindowHandle(),
                            output.getZonePanel().getWindowHandle(), output.getLayerPanel().getWindowHandle()};
    for (std::size_t i = 1; i < std::size(inOrder); ++i) {
        EXPECT_EQ(GetParent(inOrder[i]), output.getWindowHandle());
        EXPECT_GE(rectInParent(inOrder[i]).top, rectInParent(inOrder[i - 1]).bottom) << i;
    }
    EXPECT_EQ(GetParent(output.getZonePanel().getMainPanel().getWindowHandle()),
              output.getZonePanel().getWindowHandle());
    EXPECT_EQ(GetParent(output.getLayerPanel().getMainPanel().getWindowHandle()),
              output.getLayerPanel().getWindowHandle());
}

TEST_F(MirelGuiLifeTest, ShowsTheScreensThatWereLeftOpen) {
    Backend::ScreenState state;
    state.help = true;
    state.control = true;
    state.layer = true;
    state.zone = true;
    desk.mirel().setScreenState(state);
    MirelGui& gui = desk.open();
    EXPECT_TRUE(gui.isSystemPanelShowing());
    EXPECT_TRUE(gui.isHelpPanelShowing());
    EXPECT_FALSE(gui.isDisplayPanelShowing());
    EXPECT_FALSE(gui.isComputerInputPanelShowing());
    EXPECT_TRUE(gui.isControlPanelShowing());
    EXPECT_TRUE(gui.isOutputPanelShowing());
    EXPECT_TRUE(gui.isLayerPanelShowing());
    EXPECT_FALSE(gui.isCcPanelShowing());
    EXPECT_TRUE(gui.isZonePanelShowing());
}

TEST_F(MirelGuiLifeTest, ADeskWithoutOpenScreensBeginsCollapsed) {
    Backend::ScreenState state;
    state.system = false;
    state.output = false;
    desk.mirel().setScreenState(state);
    desk.open();
    EXPECT_EQ(desk.size().cx, 104);
    EXPECT_EQ(desk.size().cy, 33);
}

TEST_F(MirelGuiLifeTest, LeavesItsScreensAndPlaceToTheDesk) {
    MirelGui& gui = desk.open();
    gui.showDisplay(true);
    gui.showCc(true);
    gui.showSystemPanel(false);
    SetWindowPos(desk.host.handle(), nullptr, 70, 80, 500, 400, SWP_NOZORDER);
    desk.close();
    const Backend::ScreenState& state = desk.mirel().getScreenState();
    EXPECT_FALSE(state.system);
    EXPECT_TRUE(state.display);
    EXPECT_TRUE(state.cc);
    EXPECT_TRUE(state.output);
    EXPECT_FALSE(state.help);
    EXPECT_EQ(desk.mirel().getRegistrySettings().getLastWindowPosition(), (Rect{70, 80, 570, 480}));
    EXPECT_EQ(desk.mirel().getGuiWindowHandle(), nullptr);
}

TEST_F(MirelGuiLifeTest, AHostThatDestroysItsWindowFirstLosesNothing) {
    desk.open().showHelp(true);
    const HWND window = desk.window();
    DestroyWindow(window);
    desk.settle();
    EXPECT_TRUE(desk.mirel().getScreenState().help);
    desk.close();
    EXPECT_EQ(desk.mirel().getGuiWindowHandle(), nullptr);
}

TEST_F(MirelGuiLifeTest, ItsThreadCanUseComWhileItLives) {
    desk.open();
    EXPECT_EQ(CoInitialize(nullptr), S_FALSE);
    CoUninitialize();
    desk.close();
    EXPECT_EQ(CoInitialize(nullptr), S_OK);
    CoUninitialize();
}

TEST_F(MirelGuiLifeTest, AWindowThatTheHostDestroyedIsForgotten) {
    desk.open();
    DestroyWindow(desk.window());
    EXPECT_EQ(desk.window(), nullptr);
    EXPECT_EQ(desk.mirel().getGuiWindowHandle(), nullptr);
}

// Otherwise nobody would free it.
TEST_F(MirelGuiLifeTest, TakesWhatTheDeskHasSentBeforeItGoes) {
    for (const bool byHost : {false, true}) {
        MirelGui& gui = desk.open();
        const auto send = [&gui](UINT message, auto object) {
            PostMessageA(gui.getWindowHandle(), message, 0, TestSupport::releaseCopy<LPARAM>(object));
        };
        send(33220, std::string("late.bnk"));
        PostMessageA(gui.getWindowHandle(), 33259, 0, 0);  // Menus stay closed.
        PostMessageA(gui.getWindowHandle(), 33260, 0, 0);
        PostMessageA(gui.getWindowHandle(), 33231, 1, 0);
        send(33221, Backend::Bank("C:\\late bank.bnk", {"One"}));
        if (byHost)
            DestroyWindow(gui.getWindowHandle());
        else
            gui.destroy();
        EXPECT_EQ(gui.getRegistrySettings().getDefaultBank(), "late.bnk");
        EXPECT_EQ(gui.getCurrentBankName(), "late bank");
        desk.settle();
        EXPECT_TRUE(desk.mirel().getScreenState().help);
        desk.close();
        Backend::ScreenState state;
        desk.mirel().setScreenState(state);
    }
}

TEST_F(MirelGuiLifeTest, TheEndOfTheProgramIsNotTakenForAMessageOfTheDesk) {
    MirelGui& gui = desk.open();
    PostQuitMessage(7);
    gui.destroy();
    MSG message{};
    ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.message, UINT{WM_QUIT});
    EXPECT_EQ(message.wParam, 7u);
}

TEST_F(MirelGuiLifeTest, TheHostsPlaceIsKeptWhileItIsMinimised) {
    desk.open();
    SetWindowPos(desk.host.handle(), nullptr, 70, 80, 500, 400, SWP_NOZORDER);
    ShowWindow(desk.host.handle(), SW_MINIMIZE);
    ASSERT_TRUE(IsIconic(desk.host.handle()));
    desk.close();
    EXPECT_EQ(desk.mirel().getRegistrySettings().getLastWindowPosition(), (Rect{70, 80, 570, 480}));
}

TEST_F(MirelGuiLifeTest, DestroyTwiceIsDestroyOnce) {
    MirelGui& gui = desk.open();
    gui.destroy();
    EXPECT_EQ(gui.getWindowHandle(), nullptr);
    gui.destroy();
    EXPECT_EQ(gui.getWindowHandle(), nullptr);
}

TEST_F(MirelGuiLifeTest, TracesItsBeginning) {
    const TestSupport::CapturedDebugText captured;
    Backend::Trace::channel().setEnabled(true);
    desk.open();
    Backend::Trace::channel().setEnabled(false);
    const auto count = [&captured](const char* function, const char* text) {
        int found = 0;
        for (const std::string& line : captured.texts())
            if (line.find(function) != std::string::npos && line.find(text) != std::string::npos) {
                EXPECT_NE(line.find("src\\Gui\\"), std::string::npos);
                ++found;
            }
        return found;
    };
    for (const char* function :
         {"Gui::MirelGui::create", "Gui::MirelGui::setupPanels", "Gui::Output::OutputPanel::setupPanels"}) {
        EXPECT_EQ(count(function, "IN"), 1) << function;
        EXPECT_EQ(count(function, "OUT"), 1) << function;
    }
}

TEST_F(MirelGuiLifeTest, NothingIsLeftOfAWindowThatWasClosed) {
    constexpr int WARM_UP = 2;
    constexpr int TIMES = 4;
    const auto openAndClose = [this] {
        MirelGui& gui = desk.open();
        for (int i = 0; i < 2; ++i) {
            gui.toggleDisplay();
            gui.toggleHelp();
            gui.toggleLayer();
            gui.toggleCc();
            gui.toggleControl();
            gui.toggleComputerInput();
        }
        UpdateWindow(gui.getWindowHandle());
        desk.close();
    };
    for (int i = 0; i < WARM_UP; ++i)
        openAndClose();
    const OwnedHandles before = OwnedHandles::count();
    for (int i = 0; i < TIMES; ++i)
        openAndClose();
    const OwnedHandles after = OwnedHandles::count();
    EXPECT_EQ(after.graphics, before.graphics);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.menus, before.menus);
}

TEST(MirelGuiSettings, NonsenseInAllOfThemDoesNoHarm) {
    constexpr int LOWEST = std::numeric_limits<int>::min();
    constexpr int HIGHEST = std::numeric_limits<int>::max();
    for (const int nonsense : {LOWEST, -70000, -1, 0, 70000, HIGHEST}) {
        WindowDesk desk;
        desk.prepareSettings([nonsense](Backend::RegistrySettings& settings) {
            settings.setDefaultBank(std::string(5000, '\\'));
            settings.setMidiBufferDir("\x01?*");
            settings.setRetroRecordBufferSize(nonsense);
            settings.setMouseSensitivity(nonsense);
            settings.setDisplayHeight(nonsense);
            settings.setLastWindowPosition({nonsense, nonsense, nonsense, nonsense});
            settings.setDockToBottomEdge(true);
            settings.setDefaultMidiOutput(nonsense);
            settings.setLiteVelocity(nonsense);
            settings.setLiteChannel(nonsense);
        });
        desk.start();
        MirelGui& gui = desk.open();
        gui.showDisplay(true);
        gui.showHelp(true);
        desk.settle();
        EXPECT_TRUE(gui.isDisplayPanelShowing());
        EXPECT_LE(desk.size().cy, 2 * GetSystemMetrics(SM_CYSCREEN)) << nonsense;
        EXPECT_GT(desk.size().cy, 100) << nonsense;
        for (const auto& message : desk.host.received(UM_MOVE_WINDOW)) {
            const RelativeFixedValue x = unpackWindowMove(message.wParam);
            EXPECT_TRUE(x.isRelative() || x.getValue() >= 0) << nonsense;
        }
        desk.close();
        EXPECT_GE(desk.mirel().getRegistrySettings().getDisplayHeight(), 25) << nonsense;
        EXPECT_LE(desk.mirel().getRegistrySettings().getDisplayHeight(), GetSystemMetrics(SM_CYSCREEN)) << nonsense;
    }
}

// Where the host is asked to move while the window is being created.
class MirelGuiPlaceTest : public testing::Test {
protected:
    void open(const Rect& last, bool dock, bool isVstPlugin) {
        desk.prepareSettings([&](Backend::RegistrySettings& settings) {
            settings.setLastWindowPosition(last);
            settings.setDockToBottomEdge(dock);
        });
        desk.start();
        desk.open(isVstPlugin);
    }

    std::vector<std::pair<RelativeFixedValue, RelativeFixedValue>> moves() const {
        std::vector<std::pair<RelativeFixedValue, RelativeFixedValue>> found;
        for (const auto& message : desk.host.received(UM_MOVE_WINDOW))
            found.emplace_back(unpackWindowMove(message.wParam),
                               unpackWindowMove(static_cast<std::uintptr_t>(message.lParam)));
        return found;
    }

    WindowDesk desk;
};

TEST_F(MirelGuiPlaceTest, IsTheLastOne) {
    open({120, 90, 520, 390}, false, false);
    ASSERT_EQ(moves().size(), 1u);
    EXPECT_EQ(moves()[0].first, RelativeFixedValue(false, 120));
    EXPECT_EQ(moves()[0].second, RelativeFixedValue(false, 90));
}

TEST_F(MirelGuiPlaceTest, KeepsTheBottomEdgeOfADockedHost) {
    open({120, 90, 520, 650}, true, false);
    // The host of this test is 600 pixels high and lies at 50; the window's own growth has moved it before.
    ASSERT_FALSE(moves().empty());
    EXPECT_EQ(moves().back().first, RelativeFixedValue(false, 120));
    EXPECT_EQ(moves().back().second, RelativeFixedValue(false, 650 - 600 + 50));
}

TEST_F(MirelGuiPlaceTest, IsNotKnownInTheFirstRun) {
    open({-1, -1, -1, -1}, false, false);
    EXPECT_TRUE(moves().empty());
}

TEST_F(MirelGuiPlaceTest, IsNotTakenOnAScreenThatIsGone) {
    open({30000, 30000, 30400, 30300}, false, false);
    EXPECT_TRUE(moves().empty());
}

TEST_F(MirelGuiPlaceTest, IsTheHostsOwnMatterInAPlugin) {
    open({120, 90, 520, 390}, false, true);
    EXPECT_TRUE(moves().empty());
}

}
}
