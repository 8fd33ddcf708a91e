#include "Gui/Rules/places/WindowMove.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Host/console/win32/FrameWindow.h"
#include "Host/console/win32/SingleInstance.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <shlobj.h>

#include <atomic>
#include <stdexcept>

namespace Host::Console {
namespace {

using Gui::packWindowMove;
using TestSupport::pump;
using TestSupport::pumpUntil;

class Listener : public FrameWindow::Listener {
public:
    void closeRequested() override { ++closes; }
    void sessionEnds() override { ++sessionEndings; }
    bool canOpen() const override { return opens; }
    void openRequested(const OpenRequest& request) override {
        requests.push_back(request);
        if (isFailing)
            throw std::runtime_error("no memory");
    }
    void timePassed() override { ++times; }

    int closes = 0;
    int sessionEndings = 0;
    int times = 0;
    bool isFailing = false;
    bool opens = true;
    std::vector<OpenRequest> requests;
};

class FrameWindowTest : public testing::Test {
protected:
    FrameWindow& open(const FrameWindow::Options& options = {}) {
        frame = std::make_unique<FrameWindow>(listener, options);
        // As the desk does.
        desk = CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 300, 100, window(), nullptr, nullptr,
                               nullptr);
        tell(Gui::UM_SIZE_CHANGED, 300, 100);
        return *frame;
    }

    void show() {
        PostMessageA(window(), Gui::UM_MOVE_WINDOW, packWindowMove({false, 200}),
                     static_cast<LPARAM>(packWindowMove({false, 150})));
        frame->show(SW_SHOWNORMAL);
        pump();
    }

    HWND window() { return frame->getWindowHandle(); }
    LRESULT tell(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(window(), message, wParam, lParam);
    }

    Rect position() {
        RECT rect;
        GetWindowRect(window(), &rect);
        return {rect.left, rect.top, rect.right, rect.bottom};
    }

    SIZE clientSize() {
        RECT rect;
        GetClientRect(window(), &rect);
        return {rect.right, rect.bottom};
    }

    Rect workArea() {
        RECT rect;
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &rect, 0);
        return {rect.left, rect.top, rect.right, rect.bottom};
    }

    DWORD style() { return static_cast<DWORD>(GetWindowLongPtrA(window(), GWL_STYLE)); }
    bool isTopmost() { return (GetWindowLongPtrA(window(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }
    std::string title() { return TestSupport::textOf(window()); }

    // A pixel of the window with its frame.
    COLORREF pixel(int x, int y) {
        const HDC dc = GetWindowDC(window());
        const HDC memory = CreateCompatibleDC(dc);
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, 1, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        const HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        const HGDIOBJ old = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, 1, 1, dc, x, y, SRCCOPY);
        GdiFlush();
        const DWORD value = *static_cast<DWORD*>(bits);
        SelectObject(memory, old);
        DeleteObject(bitmap);
        DeleteDC(memory);
        ReleaseDC(window(), dc);
        return RGB(value >> 16 & 0xff, value >> 8 & 0xff, value & 0xff);
    }

    LPARAM screenPoint(int x, int y) {
        const Rect rect = position();
        return MAKELPARAM(rect.left + x, rect.top + y);
    }

    LPARAM clientPoint(int x, int y) { return MAKELPARAM(x - FrameLayout::SIDE, y - FrameLayout::TOP); }

    Listener listener;
    std::unique_ptr<FrameWindow> frame;
    HWND desk = nullptr;
};

TEST_F(FrameWindowTest, FitsAroundTheDeskWithEitherBorder) {
    for (const bool skin : {true, false}) {
        FrameWindow::Options options;
        options.useSkinBorder = skin;
        open(options);
        for (const SIZE size : {SIZE{575, 96}, SIZE{104, 33}, SIZE{600, 1400}, SIZE{0, 10}}) {
            tell(Gui::UM_SIZE_CHANGED, static_cast<WPARAM>(size.cx), size.cy);
            EXPECT_EQ(clientSize().cx, size.cx) << skin;
            EXPECT_EQ(clientSize().cy, size.cy) << skin;
        }
    }
}

TEST_F(FrameWindowTest, KeepsItsPlaceWhenTheDeskGrows) {
    open();
    show();
    tell(Gui::UM_SIZE_CHANGED, 400, 300);
    EXPECT_EQ(position().left, 200);
    EXPECT_EQ(position().top, 150);
}

TEST_F(FrameWindowTest, MovesByAndToWhatTheDeskSays) {
    open();
    show();
    EXPECT_EQ(position().left, 200);
    EXPECT_EQ(position().top, 150);
    tell(Gui::UM_MOVE_WINDOW, packWindowMove({true, -30}), static_cast<LPARAM>(packWindowMove({true, 20})));
    EXPECT_EQ(position().left, 170);
    EXPECT_EQ(position().top, 170);
    tell(Gui::UM_MOVE_WINDOW, packWindowMove({false, 10}), static_cast<LPARAM>(packWindowMove({true, 0})));
    EXPECT_EQ(position().left, 10);
    EXPECT_EQ(position().top, 170);
}

TEST_F(FrameWindowTest, ShowsInTheMiddleWhenTheDeskHasNoPlace) {
    open();
    frame->show(SW_SHOWNORMAL);
    const Rect area = workArea();
    const Rect rect = position();
    EXPECT_NEAR(rect.left - area.left, area.right - rect.right, 1);
    EXPECT_NEAR(rect.top - area.top, area.bottom - rect.bottom, 1);
}

TEST_F(FrameWindowTest, APlaceAtTheEdgeOfTheScreenLeavesTheTitleInReach) {
    open();
    const Rect area = workArea();
    PostMessageA(window(), Gui::UM_MOVE_WINDOW, packWindowMove({false, area.right - 3}),
                 static_cast<LPARAM>(packWindowMove({false, area.bottom - 3})));
    frame->show(SW_SHOWNORMAL);
    EXPECT_EQ(position().left, area.right - 100);
    EXPECT_EQ(position().top, area.bottom - FrameLayout::TOP);
    // This also happens when the screen changes later.
    SetWindowPos(window(), nullptr, area.right - 3, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    tell(WM_DISPLAYCHANGE, 32, MAKELPARAM(area.right, area.bottom));
    EXPECT_EQ(position().left, area.right - 100);
    EXPECT_EQ(position().top, 150);
}

TEST_F(FrameWindowTest, TheEndOfTheProgramIsNotTakenForARequestOfTheDesk) {
    open();
    PostMessageA(window(), Gui::UM_BANK_CHANGED, 0, 0);
    PostQuitMessage(5);
    frame->show(SW_SHOWNORMAL);
    MSG message{};
    ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 5u);
}

TEST_F(FrameWindowTest, ADockedDeskWithoutAPlaceBeginsAtTheBottom) {
    FrameWindow::Options options;
    options.dockToBottomEdge = true;
    open(options);
    // The desk grows like this before it is shown.
    PostMessageA(window(), Gui::UM_MOVE_WINDOW, packWindowMove({true, 0}),
                 static_cast<LPARAM>(packWindowMove({true, -400})));
    frame->show(SW_SHOWNORMAL);
    EXPECT_EQ(position().bottom, workArea().bottom);
}

TEST_F(FrameWindowTest, DocksAtTheBottomOfTheScreen) {
    open();
    show();

    tell(Gui::UM_DOCK_CHANGED, TRUE);
    EXPECT_EQ(position().bottom, workArea().bottom);
    EXPECT_EQ(position().left, 200);

    const Rect docked = position();
    tell(Gui::UM_DOCK_CHANGED, FALSE);
    EXPECT_EQ(position(), docked);

    // The desk grows and requests as much upwards.
    tell(Gui::UM_SIZE_CHANGED, 300, 200);
    tell(Gui::UM_MOVE_WINDOW, packWindowMove({true, 0}), static_cast<LPARAM>(packWindowMove({true, -100})));
    EXPECT_EQ(position().bottom, docked.bottom);
    EXPECT_EQ(position().top, docked.top - 100);
}

TEST_F(FrameWindowTest, ADockedDeskThatWasMovedStaysWhenItIsDockedAgain) {
    open();
    show();
    tell(Gui::UM_DOCK_CHANGED, TRUE);
    SetWindowPos(window(), nullptr, 40, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    tell(Gui::UM_DOCK_CHANGED, TRUE);
    EXPECT_EQ(position().left, 40);
    EXPECT_EQ(position().top, 50);
}

TEST_F(FrameWindowTest, IsNotMaximisedByAShortcut) {
    open();
    frame->show(SW_SHOWMAXIMIZED);
    EXPECT_TRUE(IsWindowVisible(window()));
    EXPECT_FALSE(IsZoomed(window()));
}

TEST_F(FrameWindowTest, StaysAboveOtherWindowsOnRequest) {
    FrameWindow::Options options;
    options.alwaysOnTop = true;
    open(options);
    show();
    EXPECT_TRUE(isTopmost());
    tell(Gui::UM_ALWAYS_ON_TOP_CHANGED, FALSE);
    EXPECT_FALSE(isTopmost());
    tell(Gui::UM_ALWAYS_ON_TOP_CHANGED, TRUE);
    EXPECT_TRUE(isTopmost());
}

TEST_F(FrameWindowTest, ChangesItsBorderAroundTheDesk) {
    open();
    show();
    POINT before{0, 0};

    ClientToScreen(window(), &before);
    EXPECT_FALSE((style() & WS_CAPTION) == WS_CAPTION);

    tell(Gui::UM_SKIN_BORDER_CHANGED, FALSE);
    EXPECT_TRUE((style() & WS_CAPTION) == WS_CAPTION);
    EXPECT_FALSE(frame->hasSkinBorder());

    for (const bool skin : {false, true}) {
        tell(Gui::UM_SKIN_BORDER_CHANGED, skin);
        POINT after{0, 0};
        ClientToScreen(window(), &after);
        EXPECT_EQ(after.x, before.x) << skin;
        EXPECT_EQ(after.y, before.y) << skin;
        EXPECT_EQ(clientSize().cx, 300) << skin;
        EXPECT_EQ(clientSize().cy, 100) << skin;
        EXPECT_TRUE(IsWindowVisible(window()));
    }
}

TEST_F(FrameWindowTest, ADockedDeskKeepsItsLowerEdgeUnderEitherBorder) {
    open();
    show();
    tell(Gui::UM_DOCK_CHANGED, TRUE);
    for (const WPARAM useSkinBorder : {FALSE, TRUE, FALSE}) {
        tell(Gui::UM_SKIN_BORDER_CHANGED, useSkinBorder);
        EXPECT_EQ(position().bottom, workArea().bottom) << useSkinBorder;
    }
}

TEST_F(FrameWindowTest, CanBeMinimisedButNotSized) {
    for (const bool skin : {true, false}) {
        FrameWindow::Options options;
        options.useSkinBorder = skin;
        open(options);
        EXPECT_TRUE(style() & WS_MINIMIZEBOX);
        EXPECT_TRUE(style() & WS_SYSMENU);
        EXPECT_FALSE(style() & WS_THICKFRAME);
        EXPECT_FALSE(style() & WS_MAXIMIZEBOX);
    }
}

TEST_F(FrameWindowTest, FollowsTheDeskWhileItIsMinimised) {
    open();
    show();
    ShowWindow(window(), SW_MINIMIZE);

    pump();
    ASSERT_TRUE(IsIconic(window()));

    tell(Gui::UM_SIZE_CHANGED, 350, 250);
    tell(Gui::UM_MOVE_WINDOW, packWindowMove({true, 11}), static_cast<LPARAM>(packWindowMove({true, -7})));
    EXPECT_TRUE(IsIconic(window()));

    frame->comeToFront();
    pump();
    ASSERT_FALSE(IsIconic(window()));
    EXPECT_EQ(clientSize().cx, 350);
    EXPECT_EQ(clientSize().cy, 250);
    EXPECT_EQ(position().left, 211);
    EXPECT_EQ(position().top, 143);
}

TEST_F(FrameWindowTest, TheBorderIsMetalAndTheDeskIsNotPaintedOver) {
    open();
    show();
    tell(WM_NCPAINT, 1);
    const COLORREF metal = pixel(150, 6);
    EXPECT_GT(GetRValue(metal), 120);
    EXPECT_LT(abs(GetRValue(metal) - GetBValue(metal)), 30);
    EXPECT_EQ(pixel(2, 60) != RGB(0, 0, 0), true);
    EXPECT_NE(pixel(2, 60), pixel(5, 60));  // A tube.
    tell(WM_NCACTIVATE, FALSE);
    const COLORREF inactive = pixel(150, 6);
    tell(WM_NCACTIVATE, TRUE);
    EXPECT_LT(GetRValue(inactive), GetRValue(pixel(150, 6)));
}

TEST_F(FrameWindowTest, TheBorderReportsItsPartsToTheSystem) {
    open();
    show();
    const FrameLayout layout = FrameLayout::around(300, 100);
    const auto hit = [this](int x, int y) { return tell(WM_NCHITTEST, 0, screenPoint(x, y)); };
    EXPECT_EQ(hit(100, 5), HTCAPTION);
    EXPECT_EQ(hit(100, 60), HTCLIENT);
    EXPECT_EQ(hit(layout.icon().left + 2, layout.icon().top + 2), HTSYSMENU);
    EXPECT_EQ(hit(layout.minimise().left + 2, layout.minimise().top + 2), HTMINBUTTON);
    EXPECT_EQ(hit(layout.close().left + 2, layout.close().top + 2), HTCLOSE);
}

TEST_F(FrameWindowTest, AButtonActsWhenReleasedWhereItWasPressed) {
    open();
    show();
    const FrameLayout layout = FrameLayout::around(300, 100);
    const Rect close = layout.close();

    tell(WM_NCLBUTTONDOWN, HTCLOSE, screenPoint(close.left + 5, close.top + 5));
    EXPECT_EQ(GetCapture(), window());

    tell(WM_MOUSEMOVE, MK_LBUTTON, clientPoint(100, 60));
    tell(WM_LBUTTONUP, 0, clientPoint(100, 60));

    pump();
    EXPECT_EQ(listener.closes, 0);
    EXPECT_EQ(GetCapture(), nullptr);

    tell(WM_NCLBUTTONDOWN, HTCLOSE, screenPoint(close.left + 5, close.top + 5));
    tell(WM_LBUTTONUP, 0, clientPoint(close.left + 5, close.top + 5));

    pump();
    EXPECT_EQ(listener.closes, 1);
    EXPECT_TRUE(IsWindow(window()));  // The listener decides.

    const Rect minimise = layout.minimise();
    tell(WM_NCLBUTTONDOWN, HTMINBUTTON, screenPoint(minimise.left + 5, minimise.top + 5));
    tell(WM_LBUTTONUP, 0, clientPoint(minimise.left + 5, minimise.top + 5));

    EXPECT_TRUE(pumpUntil([this] { return IsIconic(window()) != FALSE; }));
}

TEST_F(FrameWindowTest, ADoubleClickOnTheIconClosesAndOnTheTitleDoesNothing) {
    open();
    show();
    const Rect icon = FrameLayout::around(300, 100).icon();
    const Rect before = position();
    tell(WM_NCLBUTTONDBLCLK, HTCAPTION, screenPoint(100, 5));
    pump();
    EXPECT_EQ(listener.closes, 0);
    EXPECT_EQ(position(), before);
    tell(WM_NCLBUTTONDBLCLK, HTSYSMENU, screenPoint(icon.left + 2, icon.top + 2));
    pump();
    EXPECT_EQ(listener.closes, 1);
}

TEST_F(FrameWindowTest, TitleIsTheProductsWithoutADesk) {
    open();
    EXPECT_EQ(title(), "Mirel Console 3 LE");
}

TEST_F(FrameWindowTest, HasAnIconOfBothSizes) {
    open();
    EXPECT_NE(tell(WM_GETICON, ICON_BIG), 0);
    EXPECT_NE(tell(WM_GETICON, ICON_SMALL), 0);
}

TEST_F(FrameWindowTest, TheUserClosesAndTheSessionEnds) {
    open();
    tell(WM_CLOSE);
    EXPECT_EQ(listener.closes, 1);
    EXPECT_EQ(tell(WM_QUERYENDSESSION), TRUE);
    tell(WM_ENDSESSION, FALSE);
    EXPECT_EQ(listener.sessionEndings, 0);
    tell(WM_ENDSESSION, TRUE);
    EXPECT_EQ(listener.sessionEndings, 1);
}

TEST_F(FrameWindowTest, ReportsThatTimePasses) {
    open();
    EXPECT_TRUE(pumpUntil([this] { return listener.times > 0; }));
}

TEST_F(FrameWindowTest, FilesThatAreDroppedAreOpened) {
    open();
    EXPECT_TRUE(GetWindowLongPtrA(window(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
    const std::string files("C:\\a.bnk\0C:\\Zo\xc3\xab.prg\0", 20 + 1);
    const HGLOBAL memory = GlobalAlloc(GHND, sizeof(DROPFILES) + files.size() + 2);
    auto* const header = static_cast<DROPFILES*>(GlobalLock(memory));
    header->pFiles = sizeof(DROPFILES);
    header->fWide = FALSE;
    std::copy(files.begin(), files.end(), reinterpret_cast<char*>(header + 1));
    GlobalUnlock(memory);
    PostMessageA(window(), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
    ASSERT_TRUE(pumpUntil([this] { return !listener.requests.empty(); }));
    EXPECT_EQ(listener.requests[0].files, (std::vector<std::string>{"C:\\a.bnk", "C:\\Zo\xc3\xab.prg"}));
}

// The result of another start with this data, while the window, which belongs to a first one, answers.
SingleInstance::Result startAgain(HWND window, const std::string& data, const OpenRequest& request,
                                  const std::string& sameData,
                                  std::chrono::milliseconds limit = SingleInstance::WAIT_LIMIT) {
    SingleInstance first(data);
    EXPECT_EQ(first.enter({}), SingleInstance::Result::FIRST);
    first.announce(window);
    std::atomic<bool> done = false;
    auto result = SingleInstance::Result::FIRST;
    {
        // A lock belongs to a thread, so another thread can stand in for another process.
        const TestSupport::OtherThread other([&] {
            result = SingleInstance(sameData).enter(request, limit);
            done = true;
        });
        EXPECT_TRUE(pumpUntil([&done] { return done.load(); }));
    }
    return result;
}

TEST_F(FrameWindowTest, TakesTheRequestsOfAnotherStart) {
    open();
    const OpenRequest request{"C:\\b.bnk", "Lead", {"C:\\x.prg"}};
    EXPECT_EQ(startAgain(window(), "frame window test", request, "FRAME window TEST\\"),
              SingleInstance::Result::HANDED_OVER);
    EXPECT_EQ(listener.requests, std::vector<OpenRequest>{request});
}

TEST_F(FrameWindowTest, AClosingDeskTakesNoRequests) {
    open();
    listener.opens = false;
    EXPECT_EQ(
        startAgain(window(), "closing frame", {"C:\\b.bnk", "", {}}, "closing frame", std::chrono::milliseconds(100)),
        SingleInstance::Result::FAILED)
        << "it would have started when this one is gone";
    EXPECT_TRUE(listener.requests.empty());
}

TEST_F(FrameWindowTest, AFailureStaysInsideTheWindow) {
    open();
    listener.isFailing = true;
    startAgain(window(), "failing frame", {"C:\\b.bnk", "", {}}, "failing frame");
    EXPECT_EQ(listener.requests.size(), 1u);
    listener.isFailing = false;
    tell(WM_CLOSE);
    EXPECT_EQ(listener.closes, 1);
}

TEST_F(FrameWindowTest, OtherProgramsDataIsNotARequest) {
    open();
    char text[] = "file a.bnk";
    COPYDATASTRUCT data{1, sizeof text, text};
    EXPECT_EQ(tell(WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data)), FALSE);
    EXPECT_TRUE(listener.requests.empty());
}

TEST(SingleInstance, AnotherFolderIsAnotherDesk) {
    EXPECT_EQ(SingleInstance::keyOf("C:\\Data"), SingleInstance::keyOf("c:\\data\\"));
    EXPECT_NE(SingleInstance::keyOf("C:\\Data"), SingleInstance::keyOf("C:\\Data2"));
    SingleInstance first("C:\\one");
    EXPECT_EQ(first.enter({}), SingleInstance::Result::FIRST);
    SingleInstance second("C:\\two");
    EXPECT_EQ(second.enter({}), SingleInstance::Result::FIRST);
}

TEST(SingleInstance, ADeskThatDoesNotAnswerIsNotWaitedForWithoutLimit) {
    SingleInstance first("C:\\silent");
    ASSERT_EQ(first.enter({}), SingleInstance::Result::FIRST);
    auto result = SingleInstance::Result::FIRST;
    {
        const TestSupport::OtherThread other([&result] {
            SingleInstance second("C:\\silent");
            result = second.enter({}, std::chrono::milliseconds(100));
        });
    }
    EXPECT_EQ(result, SingleInstance::Result::FAILED);
}

TEST(SingleInstance, TheNextDeskStartsWhenTheFirstHasEnded) {
    {
        SingleInstance first("C:\\next");
        ASSERT_EQ(first.enter({}), SingleInstance::Result::FIRST);
    }
    auto result = SingleInstance::Result::FAILED;
    {
        const TestSupport::OtherThread other([&result] {
            SingleInstance second("C:\\next");
            result = second.enter({});
        });
    }
    EXPECT_EQ(result, SingleInstance::Result::FIRST);
}

}
}
