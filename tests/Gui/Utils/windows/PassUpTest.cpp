#include "Gui/Utils/windows/PassUp.h"

#include "Gui/Utils/windows/UserMessages.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::TestWindow;

struct Row {
    UINT message;
    UINT reaches;
};

TEST(PassDown, GoesToTheWindowThatTheMessageNames) {
    TestWindow source;
    const auto named = reinterpret_cast<LPARAM>(source.handle());
    const WPARAM thumb = MAKEWPARAM(SB_THUMBTRACK, 90);
    for (const Row& row :
         {Row{WM_VSCROLL, UM_VERTICAL_TRACK}, Row{WM_HSCROLL, UM_HORIZONTAL_TRACK}, Row{WM_COMMAND, WM_COMMAND}}) {
        source.forgetMessages();
        EXPECT_TRUE(passDown(row.message, thumb, named)) << row.message;
        const std::vector<TestWindow::Message> expected = {{row.reaches, thumb, named}};
        EXPECT_EQ(source.received(row.reaches), expected) << row.message;
        EXPECT_FALSE(passDown(row.message, thumb, 0)) << row.message;
    }
    EXPECT_FALSE(passDown(WM_KEYDOWN, thumb, named));
    EXPECT_EQ(source.count(WM_KEYDOWN), 0u);
}

TEST(PassDown, GivesTheAnswerOfThatWindow) {
    TestWindow source;
    source.answer = [](const TestWindow::Message& message) -> LRESULT {
        return message.id == UM_VERTICAL_TRACK ? 7 : 0;
    };
    EXPECT_EQ(passDown(WM_VSCROLL, 0, reinterpret_cast<LPARAM>(source.handle())), 7);
}

}
}
