#include "Gui/Rules/places/HelpHover.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

TEST(HelpHover, LoadsATextOnce) {
    HelpHover hover;
    EXPECT_TRUE(hover.enter(142));
    EXPECT_FALSE(hover.enter(142));
    EXPECT_TRUE(hover.enter(143));
    EXPECT_TRUE(hover.enter(142));
}

TEST(HelpHover, ComingBackFromNothingLoadsAgain) {
    HelpHover hover;
    hover.enter(142);
    hover.enterNothing();
    EXPECT_TRUE(hover.enter(142));
}

TEST(HelpHover, NothingIsTheBeginning) {
    HelpHover hover;
    EXPECT_FALSE(hover.enter(-1));
    EXPECT_TRUE(hover.enter(0));
}

TEST(HelpHover, OwnTextReplacesWhatShows) {
    HelpHover hover;
    hover.enter(142);
    EXPECT_TRUE(hover.enterText());
    EXPECT_TRUE(hover.enterText());
    EXPECT_FALSE(hover.enter(HelpHover::OWN_TEXT_ID));
    EXPECT_TRUE(hover.enter(142));
}

TEST(HelpHover, NothingChangesWhileTheProductShows) {
    HelpHover hover;
    hover.enter(142);
    hover.setShowingAbout(true);
    EXPECT_FALSE(hover.enter(143));
    EXPECT_FALSE(hover.enterText());
    hover.setShowingAbout(false);
    EXPECT_FALSE(hover.enter(142));
    EXPECT_TRUE(hover.enter(143));
}

TEST(HelpHover, OnlyPositiveIdsHaveTexts) {
    EXPECT_TRUE(HelpHover::hasText(1));
    EXPECT_FALSE(HelpHover::hasText(0));
    EXPECT_FALSE(HelpHover::hasText(-1));
}

}
}
