#include "Gui/Rules/keyboards/ComputerKeys.h"
#include "Gui/Rules/keyboards/MusicKeys.h"
#include "Gui/Utils/windows/WindowPlace.h"
#include "Gui/Utils/windows/WindowsLib.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <utility>

namespace Gui {
namespace {

using WindowsLib::Region;

bool isInside(const Region& region, int x, int y) {
    return PtInRegion(region.handle(), x, y) != FALSE;
}

TEST(Region, GrowsAndIsCut) {
    const Region region = WindowsLib::makeRegion({0, 0, 10, 10});
    const Region other = WindowsLib::makeRegion({8, 0, 20, 5});
    WindowsLib::addRegion(region, other);
    EXPECT_TRUE(isInside(region, 19, 4));
    EXPECT_FALSE(isInside(region, 19, 5));
    WindowsLib::cutRegion(region, other);
    EXPECT_FALSE(isInside(region, 8, 0));
    EXPECT_TRUE(isInside(region, 8, 5));
    EXPECT_TRUE(isInside(other, 8, 0));
}

TEST(Region, IsDeletedOnce) {
    HRGN handle = nullptr;
    {
        Region region = WindowsLib::makeRegion({0, 0, 1, 1});
        const Region taken = std::move(region);
        handle = taken.handle();
        EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_REGION));
    }
    EXPECT_EQ(GetObjectType(handle), 0u);
}

// A white key is what the black ones beside it leave over.
TEST(Region, OfAMusicKeyIsItsShape) {
    for (int note = 0; note < MusicKeys::KEYS; ++note) {
        const Region key = WindowsLib::makeRegion(toWindows(MusicKeys::getBox(note)));
        for (const int neighbour : {note - 1, note + 1})
            if (!MusicKeys::isBlack(note) && neighbour >= 0 && neighbour < MusicKeys::KEYS &&
                MusicKeys::isBlack(neighbour))
                WindowsLib::cutRegion(key, WindowsLib::makeRegion(toWindows(MusicKeys::getBox(neighbour))));
        const MusicKeys::Shape shape = MusicKeys::getPaintShape(note);
        const Region expected = WindowsLib::makeRegion(toWindows(shape.upper));
        WindowsLib::addRegion(expected, WindowsLib::makeRegion(toWindows(shape.lower)));
        EXPECT_TRUE(EqualRgn(key.handle(), expected.handle())) << note;
        RECT box{};
        GetRgnBox(key.handle(), &box);
        EXPECT_EQ(fromWindows(box), MusicKeys::getBox(note)) << note;
    }
}

TEST(Region, ShapesAWindow) {
    const TestSupport::TestWindow window;
    Region shape = WindowsLib::makeRegion({0, 0, ComputerKeys::WIDTH, ComputerKeys::HEIGHT});
    WindowsLib::cutRegion(shape, WindowsLib::makeRegion(toWindows(ComputerKeys::CUT_OUT)));
    WindowsLib::shapeWindow(window.handle(), std::move(shape));
    const Region present = WindowsLib::makeRegion({});
    EXPECT_EQ(GetWindowRgn(window.handle(), present.handle()), COMPLEXREGION);
    EXPECT_TRUE(isInside(present, 379, 0));
    EXPECT_FALSE(isInside(present, 380, 19));
    EXPECT_TRUE(isInside(present, 380, 20));
}

}
}
