#include "Gui/Rules/keys/LoopbackGuard.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

SetupPort port(const std::string& name, bool enabled) {
    return {name, true, enabled};
}

TEST(LoopbackGuard, RecognisesCablesByTheirNames) {
    EXPECT_TRUE(isLoopbackPort("MIDI Yoke NT:  1"));
    EXPECT_TRUE(isLoopbackPort("In From MIDI Yoke"));
    EXPECT_TRUE(isLoopbackPort("Internal MIDI"));
    EXPECT_FALSE(isLoopbackPort("midi yoke"));
    EXPECT_FALSE(isLoopbackPort("Internal"));
    EXPECT_FALSE(isLoopbackPort(""));
}

TEST(LoopbackGuard, RefusesBothEndsOfACable) {
    EXPECT_TRUE(wouldLoop({port("MIDI Yoke 1", true)}, {port("MIDI Yoke 1", true)}));
    EXPECT_TRUE(wouldLoop({port("Synth", true), port("Internal MIDI", true)},
                          {port("Keys", true), port("Internal MIDI", true)}));
}

TEST(LoopbackGuard, AnOutputThatIsOffPasses) {
    EXPECT_FALSE(wouldLoop({port("MIDI Yoke 1", false)}, {port("MIDI Yoke 1", true)}));
}

TEST(LoopbackGuard, AnInputThatIsOffPasses) {
    EXPECT_FALSE(wouldLoop({port("MIDI Yoke 1", true)}, {port("MIDI Yoke 1", false)}));
}

TEST(LoopbackGuard, AnotherCablePasses) {
    EXPECT_FALSE(wouldLoop({port("MIDI Yoke 1", true)}, {port("MIDI Yoke 2", true)}));
    EXPECT_FALSE(wouldLoop({port("MIDI Yoke 1", true)}, {}));
}

TEST(LoopbackGuard, DevicesOfOneNameAreNotACable) {
    EXPECT_FALSE(wouldLoop({port("Synth", true)}, {port("Synth", true)}));
}

TEST(LoopbackGuard, OneEnabledInputAmongSeveralOfTheNameIsEnough) {
    EXPECT_TRUE(wouldLoop({port("MIDI Yoke 1", true)}, {port("MIDI Yoke 1", false), port("MIDI Yoke 1", true)}));
}

TEST(SetupPort, SaysWhenItIsMissing) {
    EXPECT_EQ(describeSetupPort({"Synth", true, false}), "Synth");
    EXPECT_EQ(describeSetupPort({"Synth", false, true}), "Synth (Not Found)");
}

TEST(SetupPort, IsAtMostAHundredBytes) {
    EXPECT_EQ(describeSetupPort({std::string(100, 'x'), true, true}), std::string(100, 'x'));
    EXPECT_EQ(describeSetupPort({std::string(101, 'x'), true, true}), std::string(100, 'x'));
    EXPECT_EQ(describeSetupPort({std::string(95, 'x'), false, true}), std::string(95, 'x') + " (Not");
    EXPECT_EQ(describeSetupPort({std::string(99, 'x') + "é", true, true}), std::string(99, 'x'));
}

}
}
