// A build without windows.
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

namespace Backend {
namespace {

TEST(NoWindowTest, NoGuiIsMadeAndTheDeskGoesOn) {
    TestSupport::RunningDesk desk;
    desk.start();
    MirelMessageManager& manager = desk.mirel().getMessageManager();
    EXPECT_EQ(manager.sendCreateMirelGui(false), nullptr);
    EXPECT_EQ(manager.sendCreateMirelGui(true), nullptr);
    manager.sendSetMidiOutputPorts(TestSupport::makePorts<MidiEngine::MidiOutputPort>({"A"}));
    EXPECT_EQ(desk.mirel().getMidiOutputPorts().size(), 1u);
}

}
}
