#include "Host/common/clock/ClockFollower.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

namespace Host {
namespace {

double periodOf(double tempo) {
    return 60000 / tempo / 24;
}

// A master whose ticks come on time, or late by up to some jitter, and a reader that looks every millisecond.
class Master {
public:
    explicit Master(ClockFollower& follower) : m_follower(follower) {}

    // Sends ticks for a while. Returns the largest error of the position over the last half.
    double run(double tempo, int ticks, double jitter = 0) {
        const double period = periodOf(tempo);
        double worst = 0;
        for (int i = 0; i < ticks; ++i) {
            const double late = jitter * static_cast<double>(m_random() % 1001) / 1000;
            for (double time = m_looked + 1; time < m_now + late; time += 1)
                look(time);
            look(m_now + late);
            m_follower.tick(m_now + late);
            if (!m_isAnchored) {
                m_isAnchored = true;
                m_truth = m_follower.position(m_now + late);
            }
            const double start = m_now + late;
            const double end = m_now + period;
            for (double time = std::max(start, m_looked); time < end; time += 1) {
                look(time);
                const double truth = m_truth + (time - m_now) / period * ClockFollower::PPQ_PER_TICK;
                if (i > ticks / 2)
                    worst = std::max(worst, std::abs(m_position - truth));
            }
            m_now = end;
            m_truth += ClockFollower::PPQ_PER_TICK;
        }
        return worst;
    }

    void wait(double milliseconds) {
        for (double time = m_now; time < m_now + milliseconds; time += 1)
            look(time);
        m_now += milliseconds;
    }

    // Makes the next tick the first of a new count.
    void anchorAnew() { m_isAnchored = false; }

    void look(double time) {
        m_looked = std::max(m_looked, time);
        const double position = m_follower.position(m_looked);
        EXPECT_GE(position, m_position) << "backwards at " << time;
        m_steepest = std::max(m_steepest, position - m_position);
        m_position = position;
    }

    double now() const { return m_now; }
    double position() const { return m_position; }
    double truth() const { return m_truth; }
    double takeSteepest() { return std::exchange(m_steepest, 0); }

private:
    ClockFollower& m_follower;
    std::mt19937 m_random{3};
    double m_now = 1000;
    double m_looked = 1000;
    double m_truth = 0;
    double m_position = 0;
    double m_steepest = 0;
    bool m_isAnchored = false;
};

TEST(ClockFollowerTest, SteadyClockIsFollowedExactly) {
    for (const double tempo : {20.0, 60.0, 120.0, 133.3, 250.0}) {
        ClockFollower follower;
        Master master(follower);
        EXPECT_LT(master.run(tempo, 240), 0.5) << tempo;
        EXPECT_NEAR(follower.tempo(), tempo, 0.1);
        EXPECT_NEAR(master.position(), master.truth(), 2);
    }
}

TEST(ClockFollowerTest, JitterIsSmoothedOut) {
    for (const double tempo : {60.0, 120.0, 200.0}) {
        ClockFollower follower;
        Master master(follower);
        const double jitter = 3;  // Milliseconds
        master.run(tempo, 48, jitter);
        master.takeSteepest();
        const double perMillisecond = ClockFollower::PPQ_PER_TICK / periodOf(tempo);
        // Ticks come late by 1.5 ms on average; the remaining deviation is smaller than the jitter that came in.
        EXPECT_LT(master.run(tempo, 480, jitter), jitter * perMillisecond) << tempo;
        EXPECT_LT(master.takeSteepest(), jitter * perMillisecond) << "no leap at " << tempo;
        EXPECT_NEAR(follower.tempo(), tempo, tempo * 0.05);
    }
}

TEST(ClockFollowerTest, NoTickIsEverMissedOrCountedTwice) {
    ClockFollower follower;
    Master master(follower);
    double expected = 0;
    for (const double tempo : {120.0, 60.0, 240.0, 30.0, 250.0, 121.0}) {
        master.run(tempo, 200, 4);
        expected += 200;
        EXPECT_NEAR(master.position(), expected * ClockFollower::PPQ_PER_TICK, 40) << tempo;
    }
}

TEST(ClockFollowerTest, NewTempoIsThereWithinAQuarter) {
    for (const double tempo : {60.0, 100.0, 140.0, 180.0, 240.0}) {
        ClockFollower follower;
        Master master(follower);
        master.run(120, 96);
        master.run(tempo, 24);
        EXPECT_NEAR(follower.tempo(), tempo, tempo * 0.04) << tempo;
    }
}

TEST(ClockFollowerTest, StopHoldsThePositionAgainstAllTicks) {
    ClockFollower follower;
    Master master(follower);
    master.run(120, 50);
    follower.stop(master.now());
    EXPECT_FALSE(follower.isRunning(master.now()));
    const double stopped = follower.position(master.now());
    for (int i = 0; i < 48; ++i) {
        follower.tick(master.now() + i * 20);
        EXPECT_EQ(follower.position(master.now() + i * 20 + 10), stopped);
    }
}

TEST(ClockFollowerTest, FirstTickAfterAStartIsWhereTheClockStopped) {
    for (const bool isContinue : {false, true}) {
        ClockFollower follower;
        Master master(follower);
        master.run(120, 50);
        follower.stop(master.now());
        master.wait(5000);
        const double stopped = master.position();
        isContinue ? follower.resume(master.now()) : follower.start(master.now());
        master.wait(300);
        EXPECT_EQ(master.position(), stopped) << "a start is no tick";
        follower.tick(master.now());
        EXPECT_EQ(follower.position(master.now()), stopped);
        EXPECT_TRUE(follower.isRunning(master.now()));
        master.anchorAnew();
        master.run(120, 48);
        EXPECT_NEAR(master.position(), stopped + 48 * 20, 21);
    }
}

TEST(ClockFollowerTest, ClockThatNeverSentAStartIsFollowed) {
    ClockFollower follower;
    follower.tick(1000);
    EXPECT_TRUE(follower.isRunning(1001));
    EXPECT_GT(follower.position(1010), 0);
}

TEST(ClockFollowerTest, SilenceStopsTheClockWithinTwoTicks) {
    ClockFollower follower;
    Master master(follower);
    master.run(120, 48);
    const double last = master.position();
    master.wait(10000);
    EXPECT_LE(master.position(), last + 2 * ClockFollower::PPQ_PER_TICK);
    EXPECT_FALSE(follower.isRunning(master.now()));
    const double silent = master.position();
    master.anchorAnew();
    master.run(90, 48);
    EXPECT_NEAR(master.position(), silent + 48 * 20, 21) << "and goes on from there";
}

TEST(ClockFollowerTest, ShortDropOutIsPlayedOverByTheTicksThatCome) {
    ClockFollower follower;
    Master master(follower);
    master.run(120, 48);
    master.wait(4 * periodOf(120));  // Four ticks lost.
    master.takeSteepest();
    EXPECT_LT(master.run(120, 48), 41);
    EXPECT_NEAR(follower.tempo(), 120, 1);
    EXPECT_LE(master.takeSteepest(), 21);
}

TEST(ClockFollowerTest, TicksInBunchesKeepTheirCountAndTempo) {
    ClockFollower follower;
    // A sound server delivers what came in during a block of 21.3 ms at the block's end.
    const double block = 1024.0 / 48;

    double last = 0;
    for (int i = 0; i < 480; ++i) {
        const double due = i * periodOf(180);
        const double heard = std::ceil(due / block) * block;
        follower.tick(heard);
        const double position = follower.position(heard);
        EXPECT_GE(position, last);
        last = position;
    }

    EXPECT_NEAR(last, 480 * 20, 60);
    EXPECT_NEAR(follower.tempo(), 180, 25);
}

TEST(ClockFollowerTest, TimesThatMakeNoSenseDoNoHarm) {
    ClockFollower follower;
    double last = 0;
    std::mt19937 random(11);

    for (int i = 0; i < 20000; ++i) {
        const double time = static_cast<double>(random() % 100000) / 10;
        switch (random() % 16) {
            case 0: follower.start(time); break;
            case 1: follower.stop(time); break;
            default: follower.tick(time); break;
        }
        const double position = follower.position(time);
        ASSERT_TRUE(std::isfinite(position));
        ASSERT_GE(position, last);
        ASSERT_LE(position, last + 81);
        ASSERT_GT(follower.tempo(), 9);
        ASSERT_LT(follower.tempo(), 1001);
        last = position;
    }
}

}
}
