#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "tests/Gui/Utils/skin/SkinnedDialog.h"

#include <gtest/gtest.h>

#include <commctrl.h>

namespace Gui {
namespace {

// The number of this process's graphics objects. Where the system doesn't count them, this asks for the kind of each
// possible handle.
int countGdiObjects() {
    if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS); count != 0)
        return static_cast<int>(count);
    int alive = 0;
    for (std::uintptr_t low = 0; low < 0x10000; ++low)
        alive += GetObjectType(reinterpret_cast<HGDIOBJ>(low)) != 0 ? 1 : 0;
    return alive;
}

void createUseAndDestroy() {
    SkinnedDialog dialog;
    const HWND edit = dialog.add("Edit", "C4", 0, {10, 10, 60, 30}, WS_EX_CLIENTEDGE);
    const HWND check = dialog.add("Button", "+", BS_AUTOCHECKBOX, {10, 40, 20, 50});
    dialog.add("Button", "R", BS_AUTORADIOBUTTON, {30, 40, 60, 60});
    dialog.add(TRACKBAR_CLASSA, "", 0, {10, 70, 110, 100});
    dialog.skin();
    UpdateWindow(dialog.handle());
    Skinner::setMinMax(dialog.handle(), 1, 0, 127);
    SendMessageA(check, BM_SETCHECK, BST_CHECKED, 0);
    dialog.gdi().getKnob(GdiManager::GREEN, GdiManager::BLACK, true, 21);
    const PopupMenu loaded(dialog.gdi(), IDR_SYSTEM_MENU);
    TestSupport::keyForMenu(dialog.handle(), VK_ESCAPE);
    SendMessageA(edit, WM_CONTEXTMENU, 0, MAKELPARAM(200, 150));
    SendMessageA(edit, WM_MOUSEWHEEL, 120u << 16, 0);
    TestSupport::pump();
}

TEST(SkinnerLeak, LeavesNoGraphicsBehind) {
    Skinner::startHook();
    for (int round = 0; round < 5; ++round)
        createUseAndDestroy();
    const int before = countGdiObjects();
    ASSERT_GT(before, 0);
    for (int round = 0; round < 200; ++round)
        createUseAndDestroy();
    EXPECT_LE(countGdiObjects(), before + 5);
    Skinner::endHook();
}

// The count itself detects leaks.
TEST(SkinnerLeak, IsSeen) {
    const int before = countGdiObjects();
    std::vector<HBRUSH> brushes;
    for (int i = 0; i < 10; ++i)
        brushes.push_back(CreateSolidBrush(static_cast<COLORREF>(i + 77)));
    EXPECT_EQ(countGdiObjects(), before + 10);
    for (const HBRUSH brush : brushes)
        DeleteObject(brush);
    EXPECT_EQ(countGdiObjects(), before);
}

}
}
