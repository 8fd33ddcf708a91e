#include "Host/common/PortDesk.h"

#include "Backend/core/MirelUtils.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeMidiSystem.h"
#include "tests/support/LogText.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace Host {
namespace {

using TestSupport::eventually;
using TestSupport::FakeMidiSystem;
using TestSupport::readLog;

class PortDeskTest : public testing::Test {
public:
    PortDeskTest() { Backend::MirelUtils::useDataFolder(m_folder.path()); }
    ~PortDeskTest() override { Backend::MirelUtils::useDataFolder(""); }

    std::unique_ptr<PortDesk> make() {
        return std::make_unique<PortDesk>(system, PortDesk::Options{"Desk", m_folder.path(), ""});
    }

    static int count(const std::string& text, const std::string& part) {
        int found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++found;
        return found;
    }

    const std::shared_ptr<FakeMidiSystem> system = std::make_shared<FakeMidiSystem>();

private:
    const TestSupport::TemporaryFolder m_folder;
};

constexpr const char* SYNTH_FAILS = "MIDI output \"Synth\" does not work. It will be tried again.\r\n";

TEST_F(PortDeskTest, LogSaysWhichPortsDoNotWork) {
    system->plugInputs({"Keys", "Broken"});
    system->plugOutputs({"Synth", "Module"});
    system->refuse("Broken", true);
    system->refuse("Synth", true);
    const auto desk = make();
    desk->start();
    const std::string log = readLog(desk->mirel().getDisplayMessageManager());
    EXPECT_EQ(count(log, "MIDI input \"Broken\" does not work. It will be tried again.\r\n"), 1) << log;
    EXPECT_EQ(count(log, SYNTH_FAILS), 1) << log;
    EXPECT_EQ(count(log, "does not work"), 2) << log;
    EXPECT_TRUE(desk->stop());
}

TEST_F(PortDeskTest, PortThatFailsAnewIsToldAnew) {
    system->plugOutputs({"Synth"});
    system->refuse("Synth", true);
    const auto desk = make();
    desk->start();
    // It is tried again and again, and told once.
    const int times = system->timesOpened("Synth");
    system->refuse("Synth", false);
    ASSERT_TRUE(eventually([&] { return system->timesOpened("Synth") > times && system->isOutputOpen("Synth"); }));
    EXPECT_EQ(count(readLog(desk->mirel().getDisplayMessageManager()), SYNTH_FAILS), 1);
    const int looks = system->timesListed();
    ASSERT_TRUE(eventually([&] { return system->timesListed() > looks + 1; })) << "the desk sees that it works";
    system->refuse("Synth", true);
    system->breakPort("Synth", true);
    ASSERT_TRUE(eventually([&] {
        desk->ports().play(1, 0x643c90, 0);
        return count(readLog(desk->mirel().getDisplayMessageManager()), SYNTH_FAILS) == 2;
    }));
    EXPECT_TRUE(desk->stop());
}

}
}
