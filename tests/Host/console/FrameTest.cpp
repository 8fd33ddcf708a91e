#include "Gui/Rules/places/WindowMove.h"
#include "Host/console/FrameLayout.h"
#include "Host/console/FramePlacement.h"
#include "Host/console/FrameTitle.h"
#include "Host/console/MetalFrame.h"

#include <gtest/gtest.h>

namespace {

using namespace Host::Console;

TEST(FrameTitle, NamesProgramBankAndProduct) {
    EXPECT_EQ(makeFrameTitle("Live", "Lead", 4, false), "5 - Lead - Live - Mirel Console 3 LE");
    EXPECT_EQ(makeFrameTitle("", "Lead", 0, false), "1 - Lead - Mirel Console 3 LE");
    EXPECT_EQ(makeFrameTitle("Live", "", 3, false), "Live - Mirel Console 3 LE");
    EXPECT_EQ(makeFrameTitle("", "", 0, false), "Mirel Console 3 LE");
}

TEST(FrameTitle, SaysThatAllKeysGoToTheDesk) {
    EXPECT_EQ(makeFrameTitle("", "", 0, true), "Mirel Console 3 LE (global keyboard)");
}

TEST(FrameLayout, LiesAroundTheDesk) {
    const FrameLayout layout = FrameLayout::around(560, 200);
    EXPECT_EQ(layout.desk(), (Rect{6, 25, 566, 225}));
    EXPECT_EQ(layout.width(), 572);
    EXPECT_EQ(layout.height(), 232);
}

TEST(FrameLayout, FindsWhatIsUnderTheMouse) {
    const FrameLayout layout = FrameLayout::around(560, 200);
    const auto partIn = [&layout](const Rect& rect) {
        EXPECT_EQ(layout.partAt(rect.left, rect.top), layout.partAt(rect.right - 1, rect.bottom - 1));
        return layout.partAt(rect.left, rect.top);
    };

    EXPECT_EQ(partIn(layout.desk()), FramePart::DESK);
    EXPECT_EQ(partIn(layout.icon()), FramePart::ICON);
    EXPECT_EQ(partIn(layout.title()), FramePart::CAPTION);
    EXPECT_EQ(partIn(layout.minimise()), FramePart::MINIMISE);
    EXPECT_EQ(partIn(layout.close()), FramePart::CLOSE);
    EXPECT_EQ(layout.partAt(0, 100), FramePart::CAPTION);
    EXPECT_EQ(layout.partAt(300, 231), FramePart::CAPTION);
    EXPECT_EQ(layout.partAt(-1, 0), FramePart::OUTSIDE);
    EXPECT_EQ(layout.partAt(572, 0), FramePart::OUTSIDE);
    EXPECT_EQ(layout.partAt(0, 232), FramePart::OUTSIDE);
}

TEST(FrameLayout, HasRoomForAllItsPartsAroundTheSmallestDesk) {
    const FrameLayout layout = FrameLayout::around(104, 33);
    EXPECT_LT(layout.icon().right, layout.title().left);
    EXPECT_LT(layout.title().left, layout.title().right);
    EXPECT_LT(layout.title().right, layout.minimise().left);
    EXPECT_LT(layout.minimise().right, layout.close().left);
    EXPECT_LT(layout.close().right, layout.width());
}

TEST(FramePlacement, MovesByAndToWhatAMessageSays) {
    const Rect window{100, 200, 400, 300};
    const auto by = [](int value) { return Gui::packWindowMove({true, value}); };
    const auto to = [](int value) { return Gui::packWindowMove({false, value}); };
    EXPECT_EQ(moveFrame(window, by(0), by(-100)), (Rect{100, 100, 400, 200}));
    EXPECT_EQ(moveFrame(window, by(7), by(0)), (Rect{107, 200, 407, 300}));
    EXPECT_EQ(moveFrame(window, to(0), to(50)), (Rect{0, 50, 300, 150}));
    EXPECT_EQ(moveFrame(window, to(-20), by(5)), (Rect{-20, 205, 280, 305}));
}

TEST(FramePlacement, DocksAtTheBottomOfTheScreen) {
    EXPECT_EQ(dockFrame({100, 200, 400, 300}, {0, 0, 1000, 760}), (Rect{100, 660, 400, 760}));
}

TEST(FramePlacement, CentresOnTheScreenWithTheCaptionInReach) {
    EXPECT_EQ(centreFrame({0, 0, 300, 100}, {0, 0, 1000, 700}), (Rect{350, 300, 650, 400}));
    EXPECT_EQ(centreFrame({0, 0, 300, 900}, {-1000, 20, 0, 700}), (Rect{-650, 20, -350, 920}));
}

TEST(FramePlacement, ATitleStaysWithinReach) {
    const Rect area{0, 30, 1000, 760};
    const Rect inside{100, 200, 700, 300};
    EXPECT_EQ(bringIntoReach(inside, area, false), inside);
    EXPECT_EQ(bringIntoReach({990, 755, 1590, 855}, area, false), (Rect{900, 735, 1500, 835}));
    EXPECT_EQ(bringIntoReach({-590, 5, 10, 105}, area, false), (Rect{-500, 30, 100, 130}));
    // A docked window may be higher than the screen.
    EXPECT_EQ(bringIntoReach({100, -300, 700, 760}, area, true), (Rect{100, -300, 700, 760}));
    // A narrow one is completely on the screen.
    EXPECT_EQ(bringIntoReach({980, 40, 1040, 90}, area, false), (Rect{940, 40, 1000, 90}));
}

bool isMetal(std::uint32_t pixel) {
    const int red = static_cast<int>(pixel >> 16);
    const int blue = static_cast<int>(pixel & 0xff);
    return red > 20 && blue >= red && blue - red < 25;
}

TEST(MetalFrame, CoversTheBorderAndLeavesTheDeskOut) {
    const FrameLayout layout = FrameLayout::around(120, 60);
    const Picture picture = renderMetalFrame(layout, {});
    ASSERT_EQ(picture.pixels.size(), static_cast<std::size_t>(layout.width() * layout.height()));
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const FramePart part = layout.partAt(x, y);
            if (part == FramePart::DESK) {
                ASSERT_EQ(picture.at(x, y), 0u) << x << ' ' << y;
            } else if (part == FramePart::CAPTION) {
                ASSERT_TRUE(isMetal(picture.at(x, y))) << x << ' ' << y << std::hex << picture.at(x, y);
            }
        }
}

TEST(MetalFrame, IsTheSameEachTime) {
    const FrameLayout layout = FrameLayout::around(120, 60);
    EXPECT_EQ(renderMetalFrame(layout, {}).pixels, renderMetalFrame(layout, {}).pixels);
}

TEST(MetalFrame, IsBrighterWithTheKeyboard) {
    const FrameLayout layout = FrameLayout::around(120, 60);
    FrameLook inactive;
    inactive.isActive = false;
    EXPECT_GT(renderMetalFrame(layout, {}).at(60, 8) & 0xff, renderMetalFrame(layout, inactive).at(60, 8) & 0xff);
}

TEST(MetalFrame, LightsTheButtonUnderTheMouse) {
    const FrameLayout layout = FrameLayout::around(120, 60);
    const Picture dark = renderMetalFrame(layout, {});
    FrameLook look;
    look.hovered = FramePart::CLOSE;
    const Picture lit = renderMetalFrame(layout, look);

    for (int y = 0; y < lit.height; ++y)
        for (int x = 0; x < lit.width; ++x)
            if (layout.partAt(x, y) != FramePart::CLOSE) {
                ASSERT_EQ(lit.at(x, y), dark.at(x, y));
            }

    const int x = layout.close().left + 7;
    const int y = layout.close().top + 4;
    EXPECT_GT(lit.at(x, y) >> 16, (lit.at(x, y) & 0xff) + 40);  // Red.

    look.pressed = FramePart::MINIMISE;  // Another button holds the mouse.
    EXPECT_EQ(renderMetalFrame(layout, look).pixels, dark.pixels);
}

TEST(MetalFrame, AWindowWithoutSizeHasNone) {
    EXPECT_TRUE(renderMetalFrame({0, 0}, {}).pixels.empty());
    EXPECT_EQ(renderMetalFrame({3, 2}, {}).pixels.size(), 6u);
}

}
