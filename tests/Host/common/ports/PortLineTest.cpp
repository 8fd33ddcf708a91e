#include "Host/common/ports/PortLine.h"

#include "tests/support/AllocationCounter.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeMidiSystem.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Host {
namespace {

using namespace std::chrono_literals;
using TestSupport::eventually;
using TestSupport::FakeMidiSystem;
using Sent = std::vector<FakeMidiSystem::Bytes>;

constexpr const char* PORT = "Port";

std::uint32_t word(unsigned status, unsigned d1, unsigned d2) {
    return d2 << 16 | d1 << 8 | status;
}

auto farOff() {
    return std::chrono::steady_clock::now() + 60s;
}

class PortLineTest : public testing::Test {
protected:
    ~PortLineTest() override { system->hang(PORT, false); }

    void open() {
        line.open([s = system] { return s->openOutput({PORT, 1}); });
        ASSERT_TRUE(eventually([this] { return line.isIdle(); }));
    }

    bool becomesIdle() {
        return eventually([this] { return line.isIdle(); });
    }

    std::shared_ptr<FakeMidiSystem> system = std::make_shared<FakeMidiSystem>();
    PortLine line{"test line"};
};

TEST_F(PortLineTest, EventsReachThePortInTheirOrderAndLength) {
    open();
    ASSERT_TRUE(line.isOpen());
    EXPECT_TRUE(line.play(word(0x90, 60, 100), 0));
    EXPECT_TRUE(line.play(word(0xc1, 5, 0), 0));
    EXPECT_TRUE(line.play(word(0xf8, 0, 0), 0));
    EXPECT_TRUE(line.play(word(0x80, 60, 1), 0));
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(system->sent(PORT), (Sent{{0x90, 60, 100}, {0xc1, 5}, {0xf8}, {0x80, 60, 1}}));
}

TEST_F(PortLineTest, LineThatIsNotOpenTakesNothing) {
    EXPECT_FALSE(line.play(word(0x90, 60, 100), 0));
    EXPECT_FALSE(line.isWanted());
    open();
    EXPECT_TRUE(line.isWanted());
    line.close();
    EXPECT_FALSE(line.isWanted());
    EXPECT_FALSE(line.play(word(0x90, 60, 100), 0));
    ASSERT_TRUE(becomesIdle());
    EXPECT_FALSE(system->isOutputOpen(PORT));
    EXPECT_TRUE(system->sent(PORT).empty());
}

TEST_F(PortLineTest, WhatSoundsEndsBeforeThePortIsClosed) {
    open();
    line.play(word(0x90, 60, 100), 0);
    line.play(word(0x91, 61, 100), 0);
    line.play(word(0x80, 60, 0), 0);
    line.play(word(0xb1, 64, 127), 0);
    line.finish();

    EXPECT_TRUE(line.waitUntilFinished(farOff()));

    const Sent sent = system->sent(PORT);
    // Only the endings of what still waited are sent, so the beginning may be missing, and then its end is not needed.
    int sounding = 0;
    for (const auto& bytes : sent) {
        if (bytes[0] == 0x91)
            ++sounding;
        if (bytes[0] == 0x81)
            --sounding;
    }

    EXPECT_EQ(sounding, 0);
    EXPECT_FALSE(system->isOutputOpen(PORT));
}

TEST_F(PortLineTest, EndOfNotesIsSentBehindWhatIsQueued) {
    open();
    system->hang(PORT, true);
    line.play(word(0x90, 60, 100), 0);
    line.play(word(0x90, 61, 100), 0);
    line.play(word(0xb0, 64, 127), 0);
    line.endNotes();
    system->hang(PORT, false);
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(system->sent(PORT),
              (Sent{{0x90, 60, 100}, {0x90, 61, 100}, {0xb0, 64, 127}, {0x80, 60, 64}, {0x80, 61, 64}, {0xb0, 64, 0}}));
    EXPECT_TRUE(line.isOpen());
}

TEST_F(PortLineTest, HungPortBlocksNobody) {
    open();
    system->hang(PORT, true);

    line.play(word(0x90, 60, 100), 0);
    ASSERT_TRUE(eventually([this] { return system->hanging() == 1; }));

    // None of these may wait for it.
    for (int i = 0; i < 10000; ++i)
        line.play(word(0x90, 61, 100), 0);

    line.endNotes();
    line.close();
    line.open([s = system] { return s->openOutput({PORT, 1}); });

    EXPECT_GT(line.dropped(), 0u);
    EXPECT_FALSE(line.isIdle());

    system->hang(PORT, false);
    ASSERT_TRUE(becomesIdle());
    EXPECT_TRUE(line.isOpen()) << "the newest wish counts";
}

TEST_F(PortLineTest, HungPortIsAbandonedAtTheEnd) {
    {
        PortLine doomed("doomed line");
        doomed.open([s = system] { return s->openOutput({PORT, 1}); });
        ASSERT_TRUE(eventually([&doomed] { return doomed.isOpen(); }));
        system->hang(PORT, true);
        doomed.play(word(0x90, 60, 100), 0);
        ASSERT_TRUE(eventually([this] { return system->hanging() == 1; }));
        doomed.finish();
        EXPECT_FALSE(doomed.waitUntilFinished(std::chrono::steady_clock::now()));
    }

    // Its thread lives on with everything it needs, and cleans up when the system returns.
    system->hang(PORT, false);
    EXPECT_TRUE(eventually([this] { return !system->isOutputOpen(PORT); }));
    EXPECT_EQ(system->sent(PORT), (Sent{{0x90, 60, 100}, {0x80, 60, 64}}));
}

TEST_F(PortLineTest, EndOfAHungPortSendsOnlyTheEndings) {
    open();
    system->hang(PORT, true);
    line.play(word(0x90, 60, 100), 0);
    ASSERT_TRUE(eventually([this] { return system->hanging() == 1; }));
    line.play(word(0x90, 61, 100), 0);
    line.play(word(0xe0, 0, 1), 0);
    line.play(word(0x80, 60, 3), 0);
    line.play(word(0xb0, 123, 0), 0);
    line.finish();
    system->hang(PORT, false);
    EXPECT_TRUE(line.waitUntilFinished(farOff()));
    EXPECT_EQ(system->sent(PORT), (Sent{{0x90, 60, 100}, {0x80, 60, 3}, {0xb0, 123, 0}}));
}

TEST_F(PortLineTest, PortThatCannotBeOpenedIsAFailure) {
    system->refuse(PORT, true);
    open();
    EXPECT_FALSE(line.isOpen());
    EXPECT_TRUE(line.hasFailed());
    EXPECT_TRUE(line.isWanted());
    system->refuse(PORT, false);
    open();
    EXPECT_TRUE(line.isOpen());
    EXPECT_FALSE(line.hasFailed());
}

TEST_F(PortLineTest, OpenerThatThrowsIsAFailure) {
    line.open([]() -> std::unique_ptr<OpenMidiPort> { throw std::runtime_error("no such port"); });
    ASSERT_TRUE(becomesIdle());
    EXPECT_TRUE(line.hasFailed());
}

TEST_F(PortLineTest, PortThatFailsIsClosedAndMayBeOpenedAgain) {
    open();
    line.play(word(0x90, 60, 100), 0);
    ASSERT_TRUE(becomesIdle());

    system->breakPort(PORT, true);
    line.play(word(0x90, 61, 100), 0);
    ASSERT_TRUE(becomesIdle());
    EXPECT_TRUE(line.hasFailed());
    EXPECT_FALSE(line.isOpen());
    EXPECT_FALSE(system->isOutputOpen(PORT));

    system->breakPort(PORT, false);
    open();

    line.endNotes();
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(system->sent(PORT), (Sent{{0x90, 60, 100}})) << "nothing of before sounds on the new port";
}

TEST_F(PortLineTest, NothingIsOpenedAfterTheEnd) {
    line.finish();
    line.open([s = system] { return s->openOutput({PORT, 1}); });
    EXPECT_TRUE(line.waitUntilFinished(farOff()));
    EXPECT_EQ(system->timesOpened(PORT), 0);
}

TEST_F(PortLineTest, PlayingAllocatesNothing) {
    open();
    std::size_t count = 0;
    {
        const TestSupport::AllocationCounter counter;
        for (int i = 0; i < 1000; ++i)
            line.play(word(i % 2 == 0 ? 0x90 : 0x80, 60, 100), i);
        count = counter.count();
    }
    EXPECT_EQ(count, 0u);
    EXPECT_TRUE(becomesIdle());
    EXPECT_EQ(system->sent(PORT).size(), 1000u);
}

}
}
