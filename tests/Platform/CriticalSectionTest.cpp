#include "Platform/CriticalSection.h"

#include "Platform/AutoResetEvent.h"
#include "Platform/MessageThread.h"
#include "tests/support/Eventually.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace {

using Platform::AutoResetEvent;
using Platform::MessageThread;
using TestSupport::eventually;

// Whether another thread gets in at once. That thread has WM_QUIT waiting, so it does not wait for the section.
bool isFree(CriticalSection& section) {
    bool entered = false;
    MessageThread thread;
    AutoResetEvent quitPosted;
    thread.start("try", [&] {
        quitPosted.wait();
        entered = section.waitWithMessageLoop();
        if (entered)
            section.leave();
    });
    EXPECT_TRUE(thread.post(WM_QUIT, 0, 0));
    quitPosted.set();
    thread.join();
    return entered;
}

TEST(CriticalSectionTest, OwnerEntersAgainAndLeavesAsOften) {
    CriticalSection section;
    section.enter();
    section.enter();
    EXPECT_TRUE(section.waitWithMessageLoop());
    EXPECT_FALSE(isFree(section));
    section.leave();
    section.leave();
    EXPECT_FALSE(isFree(section));
    section.leave();
    EXPECT_TRUE(isFree(section));
}

TEST(CriticalSectionTest, LeaveByAThreadThatIsNotInsideChangesNothing) {
    CriticalSection section;
    section.leave();
    EXPECT_TRUE(isFree(section));

    section.enter();
    std::thread other([&] { section.leave(); });
    other.join();

    EXPECT_FALSE(isFree(section));

    section.leave();
    section.leave();
    EXPECT_TRUE(isFree(section));

    section.enter();
    EXPECT_FALSE(isFree(section)) << "one leave too many is not kept in mind";

    section.leave();
}

TEST(CriticalSectionTest, DestructorLeavesFirst) {
    for (int depth = 0; depth < 3; ++depth) {
        auto section = std::make_unique<CriticalSection>();
        for (int i = 0; i < depth; ++i)
            section->enter();
        section.reset();
    }
}

TEST(CriticalSectionTest, LockIsHeldForABlock) {
    CriticalSection section;
    {
        const CriticalSectionLock lock(section);
        EXPECT_FALSE(isFree(section));
    }
    EXPECT_TRUE(isFree(section));
}

TEST(CriticalSectionTest, OnlyOneThreadIsInside) {
    CriticalSection section;

    int count = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            for (int round = 0; round < 5000; ++round) {
                if (i % 2 == 0)
                    section.enter();
                else
                    ASSERT_TRUE(section.waitWithMessageLoop());
                ++count;
                section.leave();
            }
        });
    }

    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(count, 20000);
}

TEST(CriticalSectionTest, WaitWithMessageLoopEntersOnceTheSectionIsFree) {
    CriticalSection section;
    section.enter();
    std::atomic<bool> entered{false};
    MessageThread thread;
    thread.start("waiter", [&] {
        entered.store(section.waitWithMessageLoop());
        section.leave();
    });

    for (UINT i = 0; i < 3; ++i)
        ASSERT_TRUE(thread.post(WM_APP + i, 0, 0));

    EXPECT_FALSE(entered.load());

    section.leave();
    thread.join();
    EXPECT_TRUE(entered.load());
    EXPECT_TRUE(isFree(section));
}

TEST(CriticalSectionTest, WaitWithMessageLoopTakesMessagesWhileItWaits) {
    CriticalSection section;
    section.enter();
    MessageThread thread;
    thread.start("waiter", [&] {
        section.waitWithMessageLoop();
        section.leave();
    });
    // More than the queue holds, so they only fit if they are taken.
    for (std::size_t i = 0; i < 2 * MessageThread::CAPACITY; ++i)
        ASSERT_TRUE(eventually([&] { return thread.post(WM_APP, 0, 0); }));
    section.leave();
    thread.join();
}

TEST(CriticalSectionTest, QuitMessageEndsTheWaitWithoutTheSection) {
    CriticalSection section;
    section.enter();
    std::atomic<bool> entered{true};
    MessageThread thread;
    thread.start("waiter", [&] { entered.store(section.waitWithMessageLoop()); });
    ASSERT_TRUE(thread.post(WM_APP, 0, 0));
    ASSERT_TRUE(thread.post(WM_QUIT, 0, 0));
    thread.join();
    EXPECT_FALSE(entered.load());
    section.leave();
    EXPECT_TRUE(isFree(section)) << "not even after the owner left";
}

TEST(CriticalSectionTest, FreeSectionIsEnteredBeforeAnyMessageIsTaken) {
    CriticalSection section;
    bool entered = false;
    MessageThread thread;
    AutoResetEvent quitPosted;

    thread.start("first", [&] {
        quitPosted.wait();
        entered = section.waitWithMessageLoop();
        section.leave();
    });
    EXPECT_TRUE(thread.post(WM_QUIT, 0, 0));

    quitPosted.set();
    thread.join();
    EXPECT_TRUE(entered);

    MSG message;
    EXPECT_TRUE(thread.tryGet(message)) << "still there";
}

}
