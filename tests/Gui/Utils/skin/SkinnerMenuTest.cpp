#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "tests/Gui/Utils/skin/SkinnedDialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace Gui {
namespace {

using namespace SkinProperties;
using TestSupport::pump;

class SkinnerMenuTest : public testing::Test {
protected:
    SkinnerMenuTest() { dialog.skin(); }
    ~SkinnerMenuTest() override { Skinner::endHook(); }

    MEASUREITEMSTRUCT measure(const PopupMenu::Item* item, UINT type = ODT_MENU) {
        MEASUREITEMSTRUCT measured{};
        measured.CtlType = type;
        measured.itemWidth = 1;
        measured.itemHeight = 2;
        measured.itemData = reinterpret_cast<ULONG_PTR>(item);
        EXPECT_EQ(SendMessageA(dialog.handle(), WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measured)), 1);
        return measured;
    }

    LRESULT draw(const PopupMenu::Item* item, UINT state, const Canvas& canvas) {
        DRAWITEMSTRUCT drawn{};
        drawn.CtlType = ODT_MENU;
        drawn.itemAction = ODA_DRAWENTIRE;
        drawn.itemState = state;
        drawn.hDC = canvas.dc();
        drawn.rcItem = {0, 0, 100, 20};
        drawn.itemData = reinterpret_cast<ULONG_PTR>(item);
        return SendMessageA(dialog.handle(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&drawn));
    }

    SIZE extent(const WindowsLib::Font& font, const std::string& text) const {
        const Canvas canvas(1, 1);
        const HGDIOBJ old = SelectObject(canvas.dc(), font.handle());
        SIZE size{};
        GetTextExtentPoint32A(canvas.dc(), text.c_str(), static_cast<int>(text.size()), &size);
        SelectObject(canvas.dc(), old);
        return size;
    }

    // What a menu's window is like while it shows.
    struct Shown {
        int windows = 0;
        bool hooked = false;
        bool framed = false;
        bool framedInPrint = false;
        COLORREF inside = 0;
    };

    template <class Track>
    Shown show(Track track) {
        Shown shown;
        dialog.onMessage = [&](const SkinnedDialog::Message& message) {
            if (message.id != WM_ENTERIDLE || shown.windows++ > 0)
                return;
            const HWND window = reinterpret_cast<HWND>(message.lParam);
            shown.hooked = getFlag(window, MENU_PROCEDURE);
            UpdateWindow(window);
            SendMessageA(window, WM_NCPAINT, 1, 0);
            RECT place{};
            GetWindowRect(window, &place);
            const int width = place.right - place.left;
            const int height = place.bottom - place.top;
            const Canvas canvas(width, height);
            const HDC dc = GetWindowDC(window);
            BitBlt(canvas.dc(), 0, 0, width, height, dc, 0, 0, SRCCOPY);
            ReleaseDC(window, dc);
            save(canvas, width, height);
            shown.framed = isFramed(canvas, width, height);
            shown.inside = canvas.at(width / 2, 5);
            const Canvas printed(width, height);
            SendMessageA(window, WM_PRINT, reinterpret_cast<WPARAM>(printed.dc()), PRF_NONCLIENT);
            shown.framedInPrint = isFramed(printed, width, height);
            PostMessageA(dialog.handle(), WM_KEYDOWN, VK_ESCAPE, 1);
        };
        track();
        pump();
        dialog.onMessage = nullptr;
        return shown;
    }

    Shown showOwn() {
        PopupMenu menu(dialog.gdi());
        for (int i = 1; i <= 20; ++i)
            menu.add("Item " + std::to_string(i), i);
        menu.select(2);
        return show([&] { menu.track(dialog.handle(), 100, 100); });
    }

    Shown showStock() {
        const HMENU menu = CreatePopupMenu();
        AppendMenuA(menu, MF_STRING, 1, "Stock");
        const Shown shown = show([&] { TrackPopupMenu(menu, TPM_RETURNCMD, 100, 100, 0, dialog.handle(), nullptr); });
        DestroyMenu(menu);
        return shown;
    }

    static bool isFramed(const Canvas& canvas, int width, int height) {
        for (int x = 0; x < width; ++x)
            if (canvas.at(x, 0) != GdiManager::BLACK || canvas.at(x, height - 1) != GdiManager::BLACK)
                return false;
        for (int y = 0; y < height; ++y)
            if (canvas.at(0, y) != GdiManager::BLACK || canvas.at(width - 1, y) != GdiManager::BLACK)
                return false;
        return true;
    }

    static void save(const Canvas& canvas, int width, int height) {
        const char* folder = std::getenv("MIREL_SHOTS");
        if (!folder)
            return;
        std::ofstream file(std::string(folder) + "/skin-menu.ppm", std::ios::binary);
        file << "P6 " << width << " " << height << " 255\n";
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const COLORREF pixel = canvas.at(x, y);
                file << static_cast<char>(GetRValue(pixel)) << static_cast<char>(GetGValue(pixel))
                     << static_cast<char>(GetBValue(pixel));
            }
    }

    SkinnedDialog dialog;
};

PopupMenu::Item makeItem(const std::string& text, bool selected) {
    PopupMenu::Item item;
    item.text = text;
    item.selected = selected;
    return item;
}

TEST_F(SkinnerMenuTest, MeasuresItems) {
    const PopupMenu::Item plain = makeItem("Some text", false);
    const PopupMenu::Item selected = makeItem("Some text", true);
    const SIZE normal = extent(dialog.gdi().getFont9(), "Some text");
    const SIZE bold = extent(dialog.gdi().getFont7(), "Some text");
    ASSERT_NE(normal.cx, bold.cx);
    EXPECT_EQ(measure(&plain).itemWidth, static_cast<UINT>(normal.cx) + 5);
    EXPECT_EQ(measure(&plain).itemHeight, static_cast<UINT>(normal.cy) + 3);
    EXPECT_EQ(measure(&selected).itemWidth, static_cast<UINT>(bold.cx) + 5);
    EXPECT_EQ(measure(&selected).itemHeight, static_cast<UINT>(bold.cy) + 3);
}

TEST_F(SkinnerMenuTest, MeasuresNothingElse) {
    const PopupMenu::Item item = makeItem("Some text", false);
    for (const MEASUREITEMSTRUCT& measured : {measure(nullptr), measure(&item, ODT_LISTBOX)}) {
        EXPECT_EQ(measured.itemWidth, 1u);
        EXPECT_EQ(measured.itemHeight, 2u);
    }
}

TEST_F(SkinnerMenuTest, DrawsItemsByTheirState) {
    const PopupMenu::Item item = makeItem("HHH", false);
    struct Row {
        UINT state;
        COLORREF fill;
    };
    constexpr Row ROWS[] = {{0, GdiManager::DARK_GREEN},
                            {ODS_SELECTED, GdiManager::LIGHT_LIGHT_GREEN},
                            {ODS_DISABLED, GdiManager::DARK_GREY},
                            {ODS_GRAYED, GdiManager::DARK_GREY},
                            {ODS_GRAYED | ODS_SELECTED, GdiManager::DARK_GREY}};
    for (const Row& row : ROWS) {
        const Canvas canvas(100, 20);
        EXPECT_EQ(draw(&item, row.state, canvas), 1);
        const int text = canvas.count(GdiManager::BLACK);
        EXPECT_GT(text, 10) << row.state;
        EXPECT_EQ(canvas.count(row.fill) + text, 100 * 20) << row.state;
        EXPECT_EQ(canvas.count(row.fill, {0, 0, 5, 20}), 100) << row.state;
        EXPECT_GT(canvas.count(GdiManager::BLACK, {5, 0, 9, 20}), 0) << row.state;
    }
}

TEST_F(SkinnerMenuTest, DrawsMarkedItemsBold) {
    const PopupMenu::Item plain = makeItem("HHH", false);
    const PopupMenu::Item marked = makeItem("HHH", true);
    const Canvas first(100, 20);
    const Canvas second(100, 20);
    SetBkMode(second.dc(), OPAQUE);
    const HGDIOBJ font = GetCurrentObject(second.dc(), OBJ_FONT);
    draw(&plain, 0, first);
    draw(&marked, 0, second);
    EXPECT_GT(second.count(GdiManager::BLACK), first.count(GdiManager::BLACK));
    EXPECT_EQ(GetCurrentObject(second.dc(), OBJ_FONT), font);
    EXPECT_EQ(GetBkColor(second.dc()), GdiManager::DARK_GREEN);
}

TEST_F(SkinnerMenuTest, DrawsNothingWithoutAnItem) {
    const Canvas canvas(100, 20);
    EXPECT_EQ(draw(nullptr, 0, canvas), 0);
    EXPECT_EQ(canvas.count(GdiManager::WHITE), 2000);
}

TEST_F(SkinnerMenuTest, FramesMenusThatItDraws) {
    Skinner::startHook();
    const Shown shown = showOwn();
    EXPECT_GT(shown.windows, 0);
    EXPECT_TRUE(shown.hooked);
    EXPECT_TRUE(shown.framed);
    EXPECT_TRUE(shown.framedInPrint);
    EXPECT_EQ(shown.inside, GdiManager::DARK_GREEN);
}

TEST_F(SkinnerMenuTest, LeavesTheFrameOfOtherMenus) {
    Skinner::startHook();
    const Shown shown = showStock();
    EXPECT_GT(shown.windows, 0);
    EXPECT_TRUE(shown.hooked);
    EXPECT_FALSE(shown.framed);
    EXPECT_FALSE(shown.framedInPrint);
}

TEST_F(SkinnerMenuTest, LeavesMenusAloneBeforeAndAfterTheHook) {
    EXPECT_FALSE(showOwn().hooked);
    Skinner::startHook();
    EXPECT_TRUE(showOwn().hooked);
    Skinner::endHook();
    EXPECT_FALSE(showOwn().hooked);
}

TEST_F(SkinnerMenuTest, KeepsTheHookForTheLastThatNeedsIt) {
    Skinner::startHook();
    Skinner::startHook();
    Skinner::endHook();
    EXPECT_TRUE(showOwn().hooked);
    Skinner::endHook();
    EXPECT_FALSE(showOwn().hooked);
    Skinner::endHook();
    Skinner::startHook();
    EXPECT_TRUE(showOwn().hooked);
}

}
}
