#include "Gui/Utils/skin/PopupMenu.h"

#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace Gui {
namespace {

class PopupMenuTest : public testing::Test {
protected:
    static MENUITEMINFOA systemItem(const PopupMenu& menu, int position) {
        MENUITEMINFOA info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_DATA | MIIM_STATE;
        EXPECT_TRUE(GetMenuItemInfoA(menu.handle(), static_cast<UINT>(position), TRUE, &info)) << position;
        return info;
    }

    // The system must hold what the menu's items say.
    static void expectInStep(const PopupMenu& menu) {
        ASSERT_EQ(GetMenuItemCount(menu.handle()), static_cast<int>(menu.getItems().size()));
        for (std::size_t i = 0; i < menu.getItems().size(); ++i) {
            const MENUITEMINFOA info = systemItem(menu, static_cast<int>(i));
            EXPECT_NE(info.fType & MFT_OWNERDRAW, 0u) << i;
            EXPECT_EQ(info.wID, static_cast<UINT>(menu.getItems()[i]->id)) << i;
            EXPECT_EQ(info.dwItemData, reinterpret_cast<ULONG_PTR>(menu.getItems()[i].get())) << i;
        }
    }

    static std::vector<int> columnsOf(const PopupMenu& menu) {
        std::vector<int> columns;
        for (int i = 0; i < GetMenuItemCount(menu.handle()); ++i)
            if ((systemItem(menu, i).fType & (MFT_MENUBREAK | MFT_MENUBARBREAK)) != 0)
                columns.push_back(i);
        return columns;
    }

    static std::vector<int> marksOf(const PopupMenu& menu) {
        std::vector<int> marks;
        for (std::size_t i = 0; i < menu.getItems().size(); ++i)
            if (menu.getItems()[i]->selected)
                marks.push_back(static_cast<int>(i));
        return marks;
    }

    static void fill(PopupMenu& menu, int count) {
        for (int i = 0; i < count; ++i)
            menu.add(std::to_string(i), 100 + i);
    }

    // With keys that wait for the menu.
    static int track(PopupMenu& menu, const TestSupport::TestWindow& owner, std::initializer_list<WPARAM> keys) {
        for (const WPARAM key : keys)
            TestSupport::keyForMenu(owner.handle(), key);
        return menu.track(owner.handle(), 100, 100);
    }

    GdiManager gdi = GdiManager::create();
};

TEST_F(PopupMenuTest, HoldsWhatIsAdded) {
    PopupMenu menu(gdi);
    EXPECT_EQ(GetMenuItemCount(menu.handle()), 0);
    menu.add("one", 40);
    menu.add("two", 7);
    expectInStep(menu);
    EXPECT_EQ(menu.getItems()[0]->text, "one");
    EXPECT_EQ(menu.getItems()[0]->id, 40);
    EXPECT_FALSE(menu.getItems()[0]->selected);
    EXPECT_FALSE(menu.getItems()[0]->newColumn);
    EXPECT_EQ(menu.getItems()[1]->text, "two");
    EXPECT_EQ(menu.getItems()[1]->id, 7);
}

TEST_F(PopupMenuTest, HasTheColourOfAButton) {
    for (const bool loaded : {false, true}) {
        const auto menu = loaded ? std::make_unique<PopupMenu>(gdi, IDR_DATA_MENU) : std::make_unique<PopupMenu>(gdi);
        MENUINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIM_BACKGROUND;
        ASSERT_TRUE(GetMenuInfo(menu->handle(), &info));
        LOGBRUSH brush{};
        ASSERT_NE(GetObjectA(info.hbrBack, sizeof brush, &brush), 0);
        EXPECT_EQ(brush.lbColor, GdiManager::DARK_GREEN);
        EXPECT_NE(info.hbrBack, gdi.getUnselectedButtonBrush().handle());
    }
}

TEST_F(PopupMenuTest, OpensAColumnEveryFifteenRows) {
    PopupMenu menu(gdi);
    fill(menu, 46);
    EXPECT_EQ(columnsOf(menu), (std::vector<int>{15, 30, 45}));
}

TEST_F(PopupMenuTest, OpensColumnsOfTheRequestedLength) {
    PopupMenu menu(gdi);
    menu.setRowsPerColumn(4);
    fill(menu, 9);
    EXPECT_EQ(columnsOf(menu), (std::vector<int>{4, 8}));
    menu.setRowsPerColumn(8);
    menu.rebuild();
    EXPECT_EQ(columnsOf(menu), std::vector<int>{8});
}

TEST_F(PopupMenuTest, OpensAColumnWhereAnItemAsksIfRowsAreNotLimited) {
    PopupMenu menu(gdi);
    menu.setRowsPerColumn(0);
    fill(menu, 20);
    menu.add("<br>next", 20);
    menu.add("last <br>", 21);
    EXPECT_EQ(menu.getItems()[20]->text, "next");
    EXPECT_TRUE(menu.getItems()[20]->newColumn);
    EXPECT_EQ(menu.getItems()[21]->text, "last <br>");
    EXPECT_FALSE(menu.getItems()[21]->newColumn);
    EXPECT_EQ(columnsOf(menu), std::vector<int>{20});
    menu.rebuild();
    EXPECT_EQ(columnsOf(menu), std::vector<int>{20});
}

TEST_F(PopupMenuTest, StripsTheMarkOfAColumnButLimitsRowsItself) {
    PopupMenu menu(gdi);
    menu.add("first", 1);
    menu.add("<br>second", 2);
    EXPECT_EQ(menu.getItems()[1]->text, "second");
    EXPECT_EQ(columnsOf(menu), std::vector<int>{});
}

TEST_F(PopupMenuTest, MarksOneItemAtMost) {
    PopupMenu menu(gdi);
    fill(menu, 5);
    menu.select(3);
    EXPECT_EQ(marksOf(menu), std::vector<int>{3});
    menu.select(1);
    EXPECT_EQ(marksOf(menu), std::vector<int>{1});
    menu.select(1);
    EXPECT_EQ(marksOf(menu), std::vector<int>{1});
    menu.select(5);
    EXPECT_EQ(marksOf(menu), std::vector<int>{});
    menu.select(0);
    menu.select(-1);
    EXPECT_EQ(marksOf(menu), std::vector<int>{});
}

TEST_F(PopupMenuTest, CountsItsIdsFromOneWhenRebuilt) {
    PopupMenu menu(gdi);
    fill(menu, 3);
    EXPECT_EQ(systemItem(menu, 0).wID, 100u);
    menu.select(2);
    expectInStep(menu);
    EXPECT_EQ(systemItem(menu, 0).wID, 1u);
    EXPECT_EQ(systemItem(menu, 2).wID, 3u);
}

TEST_F(PopupMenuTest, KeepsItsIdsWhenNothingIsMarked) {
    PopupMenu menu(gdi);
    fill(menu, 3);
    menu.select(-1);
    expectInStep(menu);
    EXPECT_EQ(systemItem(menu, 0).wID, 100u);
}

TEST_F(PopupMenuTest, TakesItsItemsFromTheResources) {
    PopupMenu menu(gdi, IDR_DATA_MENU);
    expectInStep(menu);
    ASSERT_EQ(menu.getItems().size(), 128u);
    for (int i = 0; i < 128; ++i) {
        EXPECT_EQ(menu.getItems()[static_cast<std::size_t>(i)]->text, std::to_string(i));
        EXPECT_EQ(menu.getItems()[static_cast<std::size_t>(i)]->id, i + 1);
    }
    EXPECT_EQ(columnsOf(menu), (std::vector<int>{16, 32, 48, 64, 80, 96, 112}));
    EXPECT_TRUE(menu.getItems()[16]->newColumn);
}

TEST_F(PopupMenuTest, IsNotRebuiltIfItCameFromTheResources) {
    PopupMenu menu(gdi, IDR_SYSTEM_MENU);
    const int id = menu.getItems()[0]->id;
    EXPECT_GT(id, 1);
    menu.select(0);
    menu.rebuild();
    EXPECT_EQ(marksOf(menu), std::vector<int>{0});
    EXPECT_EQ(menu.getItems()[0]->id, id);
    expectInStep(menu);
}

TEST_F(PopupMenuTest, IsEmptyWithoutAResource) {
    PopupMenu menu(gdi, 9999);
    EXPECT_TRUE(menu.getItems().empty());
    TestSupport::TestWindow owner;
    EXPECT_EQ(menu.track(owner.handle(), 0, 0), 0);
}

TEST_F(PopupMenuTest, GivesTheMenuBackWithIt) {
    HMENU handles[2] = {};
    {
        PopupMenu built(gdi);
        PopupMenu loaded(gdi, IDR_DATA_MENU);
        handles[0] = built.handle();
        handles[1] = loaded.handle();
        EXPECT_TRUE(IsMenu(handles[0]) && IsMenu(handles[1]));
    }
    EXPECT_FALSE(IsMenu(handles[0]));
    EXPECT_FALSE(IsMenu(handles[1]));
}

TEST_F(PopupMenuTest, GivesTheChoiceAndMarksIt) {
    TestSupport::TestWindow owner;
    PopupMenu menu(gdi);
    for (int i = 1; i <= 5; ++i)
        menu.add(std::to_string(i), i);
    EXPECT_EQ(track(menu, owner, {VK_DOWN, VK_DOWN, VK_RETURN}), 2);
    EXPECT_EQ(marksOf(menu), std::vector<int>{1});
    EXPECT_EQ(track(menu, owner, {VK_UP, VK_RETURN}), 5);
    EXPECT_EQ(marksOf(menu), std::vector<int>{4});
    EXPECT_EQ(owner.count(WM_COMMAND), 0u);
}

TEST_F(PopupMenuTest, ChangesNothingWithoutAChoice) {
    TestSupport::TestWindow owner;
    PopupMenu menu(gdi);
    fill(menu, 3);
    menu.select(1);
    EXPECT_EQ(track(menu, owner, {VK_DOWN, VK_ESCAPE}), 0);
    EXPECT_EQ(marksOf(menu), std::vector<int>{1});
}

TEST_F(PopupMenuTest, GivesTheIdOfAnItemOfTheResources) {
    TestSupport::TestWindow owner;
    PopupMenu menu(gdi, IDR_SYSTEM_MENU);
    menu.select(1);
    EXPECT_EQ(track(menu, owner, {VK_DOWN, VK_RETURN}), menu.getItems()[0]->id);
    EXPECT_EQ(marksOf(menu), std::vector<int>{});  // There is no such item.
    PopupMenu data(gdi, IDR_DATA_MENU);
    EXPECT_EQ(track(data, owner, {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}), 3);
    EXPECT_EQ(marksOf(data), std::vector<int>{2});
}

}
}
