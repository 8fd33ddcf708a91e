#include "tests/support/win32/FakeMirelGui.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Gui {
namespace {

TEST(FakeMirelGui, LendsItsGraphicsAndRemembersWhatItWasAsked) {
    TestSupport::FakeMirelGui fake;
    MirelGuiIF& gui = fake;
    EXPECT_EQ(gui.getGdiManager().getTextBrush().colour(), GdiManager::AMBER);
    gui.displayHelp(7);
    gui.displayHelp(std::string("text"));
    gui.displayHelp(GetDesktopWindow());
    gui.setFocus();
    EXPECT_EQ(fake.helpIds, std::vector<int>{7});
    EXPECT_EQ(fake.helpTexts, std::vector<std::string>{"text"});
    EXPECT_EQ(fake.helpWindows, std::vector<HWND>{GetDesktopWindow()});
    EXPECT_EQ(fake.focusRequests, 1);
    EXPECT_THROW(gui.getOutputPanel(), std::logic_error);
}

}
}
