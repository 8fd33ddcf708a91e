#include "Gui/Utils/Panel.h"

#include "Backend/core/trace/Trace.h"
#include "Platform/Shell.h"
#include "tests/Gui/Utils/TemplateIds.h"
#include "tests/support/CapturedDebugText.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace Gui {
namespace {

using TestSupport::rectInParent;
using TestSupport::TestWindow;

class FreePanel : public Panel {
public:
    explicit FreePanel(int dialogId = 0, bool hasBorder = false) : Panel(dialogId, hasBorder) {}

    FreePanel& withoutSpacing() {
        setNoSpacing(true);
        return *this;
    }

    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
        windowMessages.push_back(message);
        return Panel::wndProc(window, message, wParam, lParam);
    }

    INT_PTR dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
        dialogMessages.push_back(message);
        return Panel::dlgProc(window, message, wParam, lParam);
    }

    std::vector<UINT> windowMessages;
    std::vector<UINT> dialogMessages;
};

LONG_PTR styleOf(const Panel& panel) {
    return GetWindowLongPtrA(panel.getWindowHandle(), GWL_STYLE);
}

// Where a panel is in its parent.
struct Place {
    long y;
    long windowHeight;
    int height;  // As the panel says it, with the free space above.

    bool operator==(const Place&) const = default;
};

using Places = std::vector<Place>;

void PrintTo(const Place& place, std::ostream* stream) {
    *stream << "{y " << place.y << ", window " << place.windowHeight << ", height " << place.height << "}";
}

// A window with a root panel, and three dialogs below it of 100, 50 and 70 pixels.
class PanelTest : public testing::Test {
protected:
    PanelTest() {
        root.createWnd(GetModuleHandleA(nullptr), top.handle());
        SetWindowPos(root.getWindowHandle(), nullptr, 4, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        for (const auto& [panel, height] : {std::pair(&a, 100), std::pair(&b, 50), std::pair(&c, 70)}) {
            EXPECT_TRUE(root.add(panel));
            panel->modifyHeight(height);
        }
    }

    static Places places(const std::vector<const Panel*>& panels) {
        Places places;
        for (const Panel* panel : panels) {
            const RECT rect = rectInParent(panel->getWindowHandle());
            EXPECT_EQ(rect.left, 0);
            EXPECT_EQ(rect.right, panel->getWidth());
            places.push_back({rect.top, rect.bottom - rect.top, panel->getHeight()});
        }
        return places;
    }

    Places abc() { return places({&a, &b, &c}); }

    static SIZE sizeOf(HWND window) {
        RECT rect{};
        GetWindowRect(window, &rect);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }

    TestWindow top{400, 30};
    FreePanel root;
    FreePanel a{IDD_TEST_SMALL};
    FreePanel b{IDD_TEST_WIDE};
    FreePanel c{IDD_TEST_SMALL};
};

TEST_F(PanelTest, StartsHiddenAtTheTopLeftWithNoHeightToShow) {
    EXPECT_EQ(abc(), (Places{{0, 100, 100}, {0, 50, 50}, {0, 70, 70}}));
    EXPECT_EQ(root.getHeight(), 0);
    for (const Panel* panel : {&root, &a, &b, &c})
        EXPECT_FALSE(panel->isVisible());
    EXPECT_FALSE(root.anyPanelVisible());
    EXPECT_EQ(root.getPanelCount(), 3);
}

TEST_F(PanelTest, FlowsThroughAnySequenceOfShowingAndHiding) {
    struct Step {
        char panel;
        bool show;
        Places places;
        int rootHeight;
    };
    const Step steps[] = {
        {'b', true, {{0, 100, 100}, {0, 50, 50}, {50, 70, 70}}, 50},
        {'a', true, {{0, 100, 100}, {105, 50, 55}, {155, 70, 70}}, 155},
        {'a', false, {{0, 100, 100}, {0, 50, 50}, {50, 70, 70}}, 50},
        {'c', true, {{0, 100, 100}, {0, 50, 50}, {55, 70, 75}}, 125},
        {'a', true, {{0, 100, 100}, {105, 50, 55}, {160, 70, 75}}, 230},
        {'b', false, {{0, 100, 100}, {100, 50, 50}, {105, 70, 75}}, 175},
        {'b', false, {{0, 100, 100}, {100, 50, 50}, {105, 70, 75}}, 175},
        {'a', false, {{0, 100, 100}, {0, 50, 50}, {0, 70, 70}}, 70},
        {'b', true, {{0, 100, 100}, {0, 50, 50}, {55, 70, 75}}, 125},
        {'c', false, {{0, 100, 100}, {0, 50, 50}, {50, 70, 70}}, 50},
        {'b', false, {{0, 100, 100}, {0, 50, 50}, {0, 70, 70}}, 0},
    };
    for (const Step& step : steps) {
        (step.panel == 'a' ? a : step.panel == 'b' ? b : c).showWnd(step.show);
        EXPECT_EQ(abc(), step.places) << step.panel << (step.show ? " shown" : " hidden");
        EXPECT_EQ(root.getHeight(), step.rootHeight) << step.panel;
        EXPECT_EQ(sizeOf(root.getWindowHandle()).cy, step.rootHeight);
    }
}

TEST_F(PanelTest, ShowingWhatShowsChangesNothing) {
    a.showWnd(true);
    b.showWnd(true);
    b.showWnd(true);
    EXPECT_EQ(abc(), (Places{{0, 100, 100}, {105, 50, 55}, {155, 70, 70}}));
    c.showWnd(false);
    EXPECT_EQ(abc(), (Places{{0, 100, 100}, {105, 50, 55}, {155, 70, 70}}));
}

TEST_F(PanelTest, TopWindowFollowsOnceTheRootShows) {
    a.showWnd(true);
    EXPECT_EQ(sizeOf(top.handle()).cy, 30);
    EXPECT_EQ(GetPropA(top.handle(), "MYSIZE"), nullptr);
    root.showWnd(true);
    EXPECT_EQ(sizeOf(top.handle()).cy, 130);
    b.showWnd(true);
    EXPECT_EQ(sizeOf(top.handle()).cy, 185);
    a.showWnd(false);
    EXPECT_EQ(sizeOf(top.handle()).cy, 80);
    b.showWnd(false);
    EXPECT_EQ(sizeOf(top.handle()).cy, 30);
    EXPECT_EQ(reinterpret_cast<INT_PTR>(GetPropA(top.handle(), "MYSIZE")), 1);
    EXPECT_EQ(reinterpret_cast<INT_PTR>(GetPropA(root.getWindowHandle(), "MYSIZE")), 1);
}

TEST_F(PanelTest, TopWindowIsAsWideAsTheWidestPanelShowingOrNot) {
    ASSERT_GT(b.getWidth(), a.getWidth());
    root.showWnd(true);
    a.showWnd(true);
    EXPECT_EQ(sizeOf(top.handle()).cx, b.getWidth() + 4);
    EXPECT_EQ(root.getWidth(), b.getWidth());
    EXPECT_EQ(sizeOf(root.getWindowHandle()).cx, b.getWidth());
}

TEST_F(PanelTest, HeightChangeMovesWhatLiesBelowAndGrowsTheTop) {
    root.showWnd(true);
    a.showWnd(true);
    b.showWnd(true);
    b.modifyHeight(80);
    EXPECT_EQ(abc(), (Places{{0, 100, 100}, {105, 80, 85}, {185, 70, 70}}));
    EXPECT_EQ(sizeOf(top.handle()).cy, 30 + 185);
    a.modifyHeight(10);
    EXPECT_EQ(abc(), (Places{{0, 10, 10}, {15, 80, 85}, {95, 70, 70}}));
    EXPECT_EQ(sizeOf(top.handle()).cy, 30 + 95);
}

TEST_F(PanelTest, HeightChangeOfAHiddenPanelMovesNothing) {
    root.showWnd(true);
    b.showWnd(true);
    a.modifyHeight(10);
    EXPECT_EQ(abc(), (Places{{0, 10, 10}, {0, 50, 50}, {50, 70, 70}}));
    a.showWnd(true);
    EXPECT_EQ(abc(), (Places{{0, 10, 10}, {15, 50, 55}, {65, 70, 70}}));
}

TEST_F(PanelTest, PanelOfNoHeightIsVisibleButNobodysNeighbour) {
    FreePanel flat{IDD_TEST_FLAT};
    FreePanel below{IDD_TEST_SMALL};
    FreePanel box;
    ASSERT_TRUE(root.add(&box));
    ASSERT_TRUE(box.add(&flat));
    ASSERT_TRUE(box.add(&below));
    EXPECT_EQ(flat.getHeight(), 0);
    flat.showWnd(true);
    EXPECT_TRUE(box.anyPanelVisible());
    below.showWnd(true);
    EXPECT_EQ(rectInParent(below.getWindowHandle()).top, 0);
    const int height = rectInParent(below.getWindowHandle()).bottom;
    EXPECT_EQ(below.getHeight(), height);
}

TEST_F(PanelTest, ContainerTakesPartWithWhatItHolds) {
    FreePanel box;
    FreePanel inner{IDD_TEST_SMALL};
    ASSERT_TRUE(root.add(&box));
    ASSERT_TRUE(box.add(&inner));
    inner.modifyHeight(40);
    root.showWnd(true);
    a.showWnd(true);

    // Nothing shows in it.
    box.showWnd(true);
    EXPECT_EQ(places({&a, &box}), (Places{{0, 100, 100}, {100, 0, 0}}));
    inner.showWnd(true);
    EXPECT_EQ(places({&a, &box, &inner}), (Places{{0, 100, 100}, {105, 40, 45}, {0, 40, 40}}));
    EXPECT_EQ(root.getHeight(), 145);
    EXPECT_EQ(sizeOf(top.handle()).cy, 30 + 145);
    a.showWnd(false);
    EXPECT_EQ(places({&box, &inner}), (Places{{0, 40, 40}, {0, 40, 40}}));
    a.showWnd(true);
    box.showWnd(false);
    EXPECT_EQ(places({&box, &inner}), (Places{{100, 40, 40}, {0, 40, 40}}));
    box.showWnd(true);
    EXPECT_EQ(places({&box, &inner}), (Places{{105, 40, 45}, {0, 40, 40}}));
    inner.showWnd(false);
    EXPECT_EQ(places({&box, &inner}), (Places{{100, 0, 0}, {0, 40, 40}}));
    EXPECT_EQ(root.getHeight(), 100);
}

TEST_F(PanelTest, ContainerThatFillsFirstGivesSpacingToTheNext) {
    FreePanel before;
    FreePanel otherRoot;
    FreePanel inner{IDD_TEST_SMALL};
    FreePanel after{IDD_TEST_SMALL};
    otherRoot.createWnd(GetModuleHandleA(nullptr), top.handle());
    ASSERT_TRUE(otherRoot.add(&before));
    ASSERT_TRUE(otherRoot.add(&after));
    ASSERT_TRUE(before.add(&inner));
    inner.modifyHeight(40);
    after.modifyHeight(60);
    otherRoot.showWnd(true);
    before.showWnd(true);
    after.showWnd(true);
    EXPECT_EQ(places({&before, &after}), (Places{{0, 0, 0}, {0, 60, 60}}));
    inner.showWnd(true);
    EXPECT_EQ(places({&before, &after}), (Places{{0, 40, 40}, {45, 60, 65}}));
    inner.showWnd(false);
    EXPECT_EQ(places({&before, &after}), (Places{{0, 0, 0}, {0, 60, 60}}));
}

TEST_F(PanelTest, ChangeInsideAHiddenContainerStopsThere) {
    FreePanel box;
    FreePanel first{IDD_TEST_SMALL};
    FreePanel second{IDD_TEST_SMALL};
    FreePanel last{IDD_TEST_SMALL};
    ASSERT_TRUE(root.add(&box));
    ASSERT_TRUE(root.add(&last));
    ASSERT_TRUE(box.add(&first));
    ASSERT_TRUE(box.add(&second));
    first.modifyHeight(20);
    second.modifyHeight(30);
    last.modifyHeight(10);
    root.showWnd(true);
    a.showWnd(true);
    last.showWnd(true);
    first.showWnd(true);
    second.showWnd(true);
    EXPECT_EQ(places({&first, &second, &box, &last}),
              (Places{{0, 20, 20}, {25, 30, 35}, {100, 55, 55}, {105, 10, 15}}));
    EXPECT_EQ(root.getHeight(), 115);
    EXPECT_EQ(sizeOf(top.handle()).cy, 30 + 115);
    box.showWnd(true);
    EXPECT_EQ(places({&box, &last}), (Places{{105, 55, 60}, {165, 10, 15}}));
    EXPECT_EQ(root.getHeight(), 175);
}

TEST_F(PanelTest, PanelWithoutSpacingStaysWhereItIs) {
    FreePanel box;
    FreePanel first{IDD_TEST_SMALL};
    FreePanel close{IDD_TEST_SMALL};
    FreePanel last{IDD_TEST_SMALL};
    close.withoutSpacing();
    ASSERT_TRUE(root.add(&box));
    for (FreePanel* panel : {&first, &close, &last}) {
        ASSERT_TRUE(box.add(panel));
        panel->modifyHeight(20);
    }
    close.showWnd(true);
    EXPECT_EQ(places({&close}), (Places{{0, 20, 20}}));
    first.showWnd(true);
    EXPECT_EQ(places({&first, &close}), (Places{{0, 20, 20}, {20, 20, 20}}));
    first.showWnd(false);
    EXPECT_EQ(places({&first, &close}), (Places{{0, 20, 20}, {0, 20, 20}}));
    last.showWnd(true);
    EXPECT_EQ(places({&close, &last}), (Places{{0, 20, 20}, {25, 20, 25}}));
    // Whether it shows or hides doesn't affect the others.
    close.showWnd(false);
    EXPECT_EQ(places({&last}), (Places{{5, 20, 25}}));
}

TEST_F(PanelTest, SpacingStopsAtAContainerWithoutIt) {
    FreePanel box;
    FreePanel inner{IDD_TEST_SMALL};
    box.withoutSpacing();
    ASSERT_TRUE(root.add(&box));
    ASSERT_TRUE(box.add(&inner));
    inner.modifyHeight(40);
    root.showWnd(true);
    a.showWnd(true);
    box.showWnd(true);
    inner.showWnd(true);
    EXPECT_EQ(places({&box, &inner}), (Places{{100, 40, 40}, {0, 40, 40}}));
    EXPECT_EQ(root.getHeight(), 140);
    inner.showWnd(false);
    EXPECT_EQ(places({&box, &inner}), (Places{{100, 0, 0}, {0, 40, 40}}));
}

TEST_F(PanelTest, HoldsTwoHundred) {
    FreePanel box;
    ASSERT_TRUE(root.add(&box));
    std::vector<std::unique_ptr<FreePanel>> panels;
    for (int i = 0; i < 200; ++i) {
        panels.push_back(std::make_unique<FreePanel>());
        ASSERT_TRUE(box.add(panels.back().get())) << i;
    }
    FreePanel tooMuch;
    EXPECT_FALSE(box.add(&tooMuch));
    EXPECT_EQ(tooMuch.getWindowHandle(), nullptr);
    EXPECT_EQ(box.getPanelCount(), 200);
    EXPECT_EQ(GetWindow(box.getWindowHandle(), GW_CHILD) != nullptr, true);
}

TEST_F(PanelTest, DialogHoldsNone) {
    FreePanel inner{IDD_TEST_SMALL};
    EXPECT_FALSE(a.add(&inner));
    EXPECT_EQ(a.getPanelCount(), 0);
    EXPECT_EQ(inner.getWindowHandle(), nullptr);
}

TEST_F(PanelTest, BorderIsThePanelsOwnChoice) {
    FreePanel box;
    FreePanel framed{0, true};
    FreePanel framedDialog{IDD_TEST_SMALL, true};
    FreePanel bareDialog{IDD_TEST_BORDER, false};
    ASSERT_TRUE(root.add(&box));
    for (FreePanel* panel : {&framed, &framedDialog, &bareDialog})
        ASSERT_TRUE(box.add(panel));
    EXPECT_EQ(styleOf(box) & WS_BORDER, 0);
    EXPECT_EQ(styleOf(framed) & WS_BORDER, WS_BORDER);
    EXPECT_EQ(styleOf(framedDialog) & WS_BORDER, WS_BORDER);
    EXPECT_EQ(styleOf(bareDialog) & WS_BORDER, 0);
    RECT client{};
    GetClientRect(framedDialog.getWindowHandle(), &client);
    EXPECT_EQ(client.right, framedDialog.getWidth() - 2);
}

TEST_F(PanelTest, WindowAndDialogKnowTheirPanel) {
    char name[50] = "";
    GetClassNameA(root.getWindowHandle(), name, sizeof name);
    EXPECT_STREQ(name, "TamselPanel2008");
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    ASSERT_TRUE(GetClassInfoExA(GetModuleHandleA(nullptr), name, &windowClass));
    EXPECT_EQ(windowClass.style, 0u);
    EXPECT_EQ(windowClass.hbrBackground, reinterpret_cast<HBRUSH>(6));
    EXPECT_EQ(windowClass.hCursor, LoadCursorA(nullptr, IDC_ARROW));
    EXPECT_EQ(windowClass.hIcon, nullptr);
    EXPECT_EQ(windowClass.cbWndExtra, 0);
    for (Panel* panel : {static_cast<Panel*>(&root), static_cast<Panel*>(&a)}) {
        EXPECT_EQ(GetPropA(panel->getWindowHandle(), "THIS"), panel);
        EXPECT_EQ(GetPropA(panel->getWindowHandle(), "PanelPtr"), panel);
    }
    EXPECT_EQ(root.windowMessages.front(), UINT{WM_CREATE});
    EXPECT_EQ(a.dialogMessages.front(), UINT{WM_INITDIALOG});
    SendMessageA(root.getWindowHandle(), WM_APP + 5, 0, 0);
    SendMessageA(a.getWindowHandle(), WM_APP + 6, 0, 0);
    EXPECT_EQ(root.windowMessages.back(), UINT{WM_APP + 5});
    EXPECT_EQ(a.dialogMessages.back(), UINT{WM_APP + 6});
}

TEST_F(PanelTest, WindowThatOutlivesItsPanelIsLeftAlone) {
    HWND window = nullptr;
    HWND dialog = nullptr;
    {
        FreePanel box;
        box.createWnd(GetModuleHandleA(nullptr), top.handle());
        FreePanel inner{IDD_TEST_SMALL};
        ASSERT_TRUE(box.add(&inner));
        window = box.getWindowHandle();
        dialog = inner.getWindowHandle();
    }
    EXPECT_EQ(GetPropA(window, "PanelPtr"), nullptr);
    SendMessageA(window, WM_APP, 0, 0);
    SendMessageA(dialog, WM_APP, 0, 0);
    EXPECT_TRUE(IsWindow(dialog));
}

TEST_F(PanelTest, PanelForgetsAWindowThatIsGone) {
    FreePanel box;
    ASSERT_TRUE(root.add(&box));
    box.showWnd(true);
    DestroyWindow(root.getWindowHandle());
    for (const Panel* panel : {&root, &a, &box}) {
        EXPECT_EQ(panel->getWindowHandle(), nullptr);
        EXPECT_FALSE(panel->isVisible());
    }
    EXPECT_EQ(a.getHeight(), 100);
    root.createWnd(GetModuleHandleA(nullptr), top.handle());
    EXPECT_EQ(GetPropA(root.getWindowHandle(), "PanelPtr"), &root);
}

// The class has one module, the one of the first panel in the process.
TEST_F(PanelTest, PlainPanelsMayNameSeveralModules) {
    for (void* const module : {static_cast<void*>(GetModuleHandleA(nullptr)), Platform::getModuleInstance()}) {
        FreePanel box;
        box.createWnd(static_cast<HINSTANCE>(module), top.handle());
        EXPECT_TRUE(IsWindow(box.getWindowHandle()));
    }
}

class ThrowingPanel : public Panel {
public:
    explicit ThrowingPanel(int dialogId) : Panel(dialogId) {}

    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_APP)
            throw std::runtime_error("of a screen");
        return Panel::wndProc(window, message, wParam, lParam);
    }

    INT_PTR dlgProc(HWND, UINT message, WPARAM, LPARAM) override {
        if (message == WM_APP)
            throw std::runtime_error("of a screen");
        return 0;
    }
};

TEST_F(PanelTest, NoExceptionLeavesAWindow) {
    for (const int id : {0, IDD_TEST_SMALL}) {
        ThrowingPanel panel{id};
        ASSERT_TRUE(root.add(&panel));
        EXPECT_EQ(SendMessageA(panel.getWindowHandle(), WM_APP, 0, 0), 0);
    }
}

// Counts lines of the trace.
class PanelTraceTest : public PanelTest {
protected:
    PanelTraceTest() { Backend::Trace::channel().setEnabled(true); }
    ~PanelTraceTest() override { Backend::Trace::channel().setEnabled(false); }

    // How many lines contain all these words.
    std::size_t lines(const std::string& function, const std::string& text) {
        std::size_t found = 0;
        for (const std::string& line : captured.texts()) {
            const bool ours = line.find("src\\Gui\\Utils\\Panel:") != std::string::npos;
            const bool wanted = line.find(" -- " + function + " -- " + text + "\n") != std::string::npos;
            found += ours && wanted ? 1 : 0;
        }
        return found;
    }

    TestSupport::CapturedDebugText captured;
};

TEST_F(PanelTraceTest, ReportsWhatAddDid) {
    FreePanel inner{IDD_TEST_SMALL};
    EXPECT_TRUE(root.add(&inner));
    EXPECT_EQ(lines("Panel::add", "IN"), 1u);
    EXPECT_EQ(lines("Panel::add", "OUT"), 1u);
    EXPECT_EQ(lines("Panel::createWnd", "IN"), 1u);
    EXPECT_EQ(lines("Panel::createWnd", "OUT"), 1u);
    EXPECT_FALSE(a.add(&inner));
    EXPECT_EQ(lines("Panel::add", "OUT2"), 1u);
    FreePanel many[197];
    for (FreePanel& panel : many)
        root.add(&panel);
    EXPECT_EQ(lines("Panel::add", "OUT1"), 1u);
    for (const std::string& line : captured.texts())
        EXPECT_EQ(line.find("TRACE ASSERT FAILED"), std::string::npos) << line;
}

TEST_F(PanelTraceTest, FailuresAreTracedAndSurvived) {
    FreePanel lost;
    lost.createWnd(GetModuleHandleA(nullptr), nullptr);
    EXPECT_EQ(lines("Panel::createWnd", "TRACE ASSERT FAILED: m_parent != NULL"), 1u);
    EXPECT_EQ(lines("Panel::createWnd", "TRACE ASSERT FAILED: IsWindow(hp)"), 1u);
    FreePanel missing{30000};
    missing.createWnd(GetModuleHandleA(nullptr), root.getWindowHandle());
    EXPECT_EQ(lines("Panel::createWnd", "TRACE ASSERT FAILED: IsWindow(m_windowHandle)"), 2u);
    missing.modifyHeight(10);
    EXPECT_EQ(lines("Panel::modifyHeight", "TRACE ASSERT FAILED: rval != FALSE"), 1u);
    FreePanel early;
    FreePanel inner;
    early.add(&inner);
    EXPECT_EQ(lines("Panel::add", "TRACE ASSERT FAILED: m_instanceHandle != NULL"), 1u);
    EXPECT_EQ(lines("Panel::add", "TRACE ASSERT FAILED: IsWindow(m_windowHandle)"), 1u);
    EXPECT_GE(lines("Panel::createWnd", "TRACE ASSERT FAILED: m_instanceHandle != NULL"), 1u);
}

TEST_F(PanelTraceTest, MoveAndSizeOfALostWindowAreTraced) {
    a.showWnd(true);
    DestroyWindow(b.getWindowHandle());
    DestroyWindow(root.getWindowHandle());
    // All windows are gone; the tree stays as it is and traces that.
    a.modifyHeight(10);
    EXPECT_EQ(lines("Panel::modifyHeight", "TRACE ASSERT FAILED: rval != FALSE"), 1u);
}

}
}
