#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/controls/ControlManager.h"
#include "Backend/midi/managers/LayerManager.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Backend {
namespace {

using Told = std::vector<std::string>;

// Saves, renames and deletes presets, and checks the notifications to the window each time.
template <class Manager>
void expectNames(TestSupport::RunningDesk& desk, Manager& (Mirel::*manager)(), const std::string& number) {
    const auto told = [&](const auto& change) {
        desk.takeTold();
        desk.run([&](Mirel& mirel) { change((mirel.*manager)()); });
        return desk.takeTold();
    };
    EXPECT_EQ(told([](Manager& presets) { presets.savePreset("Two", {}); }), Told{number + " \"Two\""});
    EXPECT_EQ(told([](Manager& presets) { presets.savePreset("One", {}); }), Told{number + " \"One\" \"Two\""});
    EXPECT_EQ(told([](Manager& presets) { presets.renamePreset("One", "Three"); }),
              Told{number + " \"Three\" \"Two\""});
    EXPECT_EQ(told([](Manager& presets) { presets.deletePreset("Three"); }), Told{number + " \"Two\""});
    EXPECT_EQ(told([](Manager& presets) { presets.deletePreset("Two"); }), Told{number});
}

TEST(PresetNames, GoToTheWindowAfterEachChange) {
    TestSupport::RunningDesk desk;
    desk.start();
    desk.openWindow();
    expectNames(desk, &Mirel::getLayers, "34729");
    expectNames(desk, &Mirel::getControls, "33974");
    expectNames(desk, &Mirel::getComputerInput, "33473");
}

}
}
