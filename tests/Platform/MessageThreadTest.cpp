#include "Platform/MessageThread.h"

#include "Platform/AutoResetEvent.h"
#include "tests/support/Eventually.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace Platform {
namespace {

using TestSupport::eventually;

constexpr UINT FIRST_MESSAGE = 40000;
constexpr UINT END_MESSAGE = 40001;

struct Received {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;

    bool operator==(const Received&) const = default;
};

// A thread that records what it gets until WM_QUIT or END_MESSAGE.
class Recorder {
public:
    ~Recorder() { end(); }

    void start() {
        m_thread.start("recorder", [this] {
            MSG message;
            while (m_thread.get(message) && message.message != END_MESSAGE)
                m_received.push_back({message.message, message.wParam, message.lParam});
            m_endedByQuit = message.message == WM_QUIT;
        });
    }

    void end() {
        if (!m_thread.isRunning())
            return;
        EXPECT_TRUE(m_thread.post(END_MESSAGE, 0, 0));
        m_thread.join();
    }

    MessageThread m_thread;
    std::vector<Received> m_received;  // Read while the thread is idle or ended.
    std::atomic<bool> m_endedByQuit{false};
};

TEST(MessageThreadTest, MessagesOfOnePosterArriveWholeAndInOrder) {
    Recorder recorder;
    recorder.start();
    EXPECT_TRUE(recorder.m_thread.post(FIRST_MESSAGE, ~WPARAM{0}, -1));
    EXPECT_TRUE(recorder.m_thread.post(FIRST_MESSAGE + 7, 0, 0x7FFFFFFFFFFFFFFF));
    EXPECT_TRUE(recorder.m_thread.post(0xFFFFFFFF, 1, 2));
    recorder.m_thread.waitUntilIdle();
    const std::vector<Received> expected = {
        {FIRST_MESSAGE, ~WPARAM{0}, -1}, {FIRST_MESSAGE + 7, 0, 0x7FFFFFFFFFFFFFFF}, {0xFFFFFFFF, 1, 2}};
    EXPECT_EQ(recorder.m_received, expected);
}

TEST(MessageThreadTest, PostBeforeStartFailsAndKeepsNothing) {
    Recorder recorder;
    EXPECT_EQ(recorder.m_thread.id(), 0u);
    EXPECT_FALSE(recorder.m_thread.isRunning());
    EXPECT_FALSE(recorder.m_thread.post(FIRST_MESSAGE, 0, 0));
    recorder.start();
    recorder.m_thread.waitUntilIdle();
    EXPECT_TRUE(recorder.m_received.empty());
}

TEST(MessageThreadTest, PostUntilAcceptedBeforeStartGoesThroughAfterIt) {
    Recorder recorder;
    std::atomic<bool> posted{false};
    std::thread poster([&] {
        recorder.m_thread.postUntilAccepted(FIRST_MESSAGE, 3, 4);
        posted.store(true);
    });
    EXPECT_FALSE(posted.load());
    recorder.start();
    poster.join();
    recorder.m_thread.waitUntilIdle();
    const std::vector<Received> expected = {{FIRST_MESSAGE, 3, 4}};
    EXPECT_EQ(recorder.m_received, expected);
}

TEST(MessageThreadTest, QuitMessageEndsTheGetLoop) {
    Recorder recorder;
    recorder.start();
    EXPECT_TRUE(recorder.m_thread.post(WM_QUIT, 0, 0));
    recorder.m_thread.join();
    EXPECT_TRUE(recorder.m_endedByQuit.load());
}

TEST(MessageThreadTest, IdIsThatOfTheThreadBeforeItsBodyBegins) {
    MessageThread thread;
    DWORD outside = 0;
    DWORD inside = 0;
    thread.start("id", [&] {
        outside = thread.id();
        inside = currentThreadId();
    });
    const DWORD afterStart = thread.id();
    thread.join();

    EXPECT_NE(inside, 0u);
    EXPECT_NE(inside, currentThreadId());
    EXPECT_EQ(outside, inside);
    EXPECT_EQ(afterStart, inside);
    EXPECT_EQ(thread.id(), inside) << "kept after the end";
}

TEST(MessageThreadTest, RunningThreadIsNotStartedAgain) {
    Recorder recorder;
    recorder.start();
    const DWORD id = recorder.m_thread.id();
    std::atomic<bool> ran{false};
    recorder.m_thread.start("again", [&] { ran.store(true); });
    EXPECT_EQ(recorder.m_thread.id(), id);
    recorder.end();
    EXPECT_FALSE(ran.load());
}

TEST(MessageThreadTest, FullQueueRefusesUntilSomethingWasTaken) {
    MessageThread thread;
    AutoResetEvent begin;
    std::vector<WPARAM> received;
    thread.start("full", [&] {
        begin.wait();
        MSG message;
        while (thread.get(message))
            received.push_back(message.wParam);
    });

    for (std::size_t i = 0; i < MessageThread::CAPACITY; ++i)
        ASSERT_TRUE(thread.post(FIRST_MESSAGE, i, 0));

    EXPECT_FALSE(thread.post(FIRST_MESSAGE, 99999, 0));

    std::thread poster([&] { thread.postUntilAccepted(WM_QUIT, 0, 0); });
    begin.set();

    poster.join();
    thread.join();
    ASSERT_EQ(received.size(), MessageThread::CAPACITY);

    for (std::size_t i = 0; i < received.size(); ++i)
        ASSERT_EQ(received[i], i);
}

TEST(MessageThreadTest, MessagesLeftAtTheEndStayUntilTaken) {
    MessageThread thread;
    AutoResetEvent end;

    thread.start("leftovers", [&] { end.wait(); });
    EXPECT_TRUE(thread.post(FIRST_MESSAGE, 1, 2));
    EXPECT_TRUE(thread.post(WM_QUIT, 3, 4));

    end.set();
    thread.join();
    EXPECT_FALSE(thread.isRunning());
    EXPECT_TRUE(thread.isIdle()) << "a thread that does not run is idle";
    EXPECT_FALSE(thread.post(FIRST_MESSAGE, 5, 6)) << "after the end";

    MSG message;
    ASSERT_TRUE(thread.tryGet(message));
    EXPECT_EQ(message.message, FIRST_MESSAGE);
    EXPECT_EQ(message.wParam, 1u);
    EXPECT_EQ(message.lParam, 2);
    ASSERT_TRUE(thread.tryGet(message)) << "for a leftover WM_QUIT too";
    EXPECT_EQ(message.message, WM_QUIT);
    EXPECT_FALSE(thread.tryGet(message));
}

TEST(MessageThreadTest, PostFailsOnceTheBodyHasReturned) {
    MessageThread thread;
    thread.start("short", [] {});
    EXPECT_TRUE(eventually([&] { return !thread.post(FIRST_MESSAGE, 0, 0); }));
    EXPECT_TRUE(thread.isRunning()) << "until joined";
    thread.join();
}

TEST(MessageThreadTest, JoinedThreadStartsAgainWithAnEmptyQueue) {
    Recorder recorder;
    for (WPARAM round = 0; round < 20; ++round) {
        recorder.m_received.clear();
        recorder.start();
        EXPECT_TRUE(recorder.m_thread.post(FIRST_MESSAGE, round, 0));
        EXPECT_TRUE(recorder.m_thread.post(WM_QUIT, 0, 0));
        static_cast<void>(recorder.m_thread.post(FIRST_MESSAGE, 1000, 0));  // Too late, whether it is taken or not.
        recorder.m_thread.join();
        const std::vector<Received> expected = {{FIRST_MESSAGE, round, 0}};
        ASSERT_EQ(recorder.m_received, expected);
    }
}

TEST(MessageThreadTest, ThreadIsBusyUntilItsHandlerHasReturned) {
    MessageThread thread;
    AutoResetEvent entered;
    AutoResetEvent leave;
    bool handled = false;
    thread.start("busy", [&] {
        MSG message;
        while (thread.get(message)) {
            entered.set();
            leave.wait();
            handled = true;
        }
    });
    thread.waitUntilIdle();

    EXPECT_TRUE(thread.isIdle());
    EXPECT_TRUE(thread.post(FIRST_MESSAGE, 0, 0));

    entered.wait();
    EXPECT_FALSE(thread.isIdle()) << "the queue is empty, but the message is being handled";

    leave.set();
    thread.waitUntilIdle();
    EXPECT_TRUE(handled);
    EXPECT_TRUE(thread.post(WM_QUIT, 0, 0));

    thread.join();
    thread.waitUntilIdle();
}

TEST(MessageThreadTest, WaitUntilIdleReturnsWhenTheThreadEnds) {
    MessageThread thread;
    AutoResetEvent end;
    thread.start("ending", [&] { end.wait(); });
    EXPECT_TRUE(thread.post(FIRST_MESSAGE, 0, 0));
    std::thread waiter([&] { thread.waitUntilIdle(); });
    end.set();
    waiter.join();
    EXPECT_TRUE(thread.isIdle());
}

TEST(MessageThreadTest, DestructorJoins) {
    std::atomic<bool> ended{false};
    {
        MessageThread thread;
        thread.start("joined", [&] {
            MSG message;
            while (thread.get(message)) {
            }
            ended.store(true);
        });
        EXPECT_TRUE(thread.post(WM_QUIT, 0, 0));
    }
    EXPECT_TRUE(ended.load());
}

TEST(MessageThreadTest, JoinWithoutStartDoesNothing) {
    MessageThread thread;
    thread.join();
    thread.waitUntilIdle();
    EXPECT_TRUE(thread.isIdle());
}

TEST(MessageThreadTest, StopPostsTheEndMessageAndJoins) {
    Recorder recorder;
    recorder.m_thread.stop(END_MESSAGE);
    recorder.start();
    EXPECT_TRUE(recorder.m_thread.post(FIRST_MESSAGE, 1, 2));
    recorder.m_thread.stop(END_MESSAGE);
    EXPECT_FALSE(recorder.m_thread.isRunning());
    const std::vector<Received> expected = {{FIRST_MESSAGE, 1, 2}};
    EXPECT_EQ(recorder.m_received, expected);
}

TEST(MessageThreadTest, StopOfAThreadThatHasEndedReturns) {
    MessageThread thread;
    thread.start("ended", [] {});
    EXPECT_TRUE(eventually([&] { return !thread.post(FIRST_MESSAGE, 0, 0); }));
    thread.stop(END_MESSAGE);
    EXPECT_FALSE(thread.isRunning());
}

TEST(MessageThreadTest, StopWaitsForRoomInAFullQueue) {
    Recorder recorder;
    MessageThread& thread = recorder.m_thread;
    AutoResetEvent begin;
    std::size_t taken = 0;
    thread.start("full", [&] {
        begin.wait();
        MSG message;
        while (thread.get(message) && message.message != END_MESSAGE)
            ++taken;
    });

    for (std::size_t i = 0; i < MessageThread::CAPACITY; ++i)
        ASSERT_TRUE(thread.post(FIRST_MESSAGE, 0, 0));

    std::thread stopper([&] { thread.stop(END_MESSAGE); });

    begin.set();
    stopper.join();
    EXPECT_EQ(taken, MessageThread::CAPACITY);
}

// Soak.

TEST(MessageThreadTest, ManyPostersLoseNothingAndKeepTheirOrders) {
    constexpr std::size_t POSTERS = 8;
    constexpr LPARAM POSTS = 20000;
    MessageThread thread;
    std::vector<LPARAM> next(POSTERS, 0);
    bool inOrder = true;
    thread.start("soak", [&] {
        MSG message;
        while (thread.get(message)) {
            LPARAM& expected = next[message.wParam];
            inOrder = inOrder && message.lParam == expected;
            ++expected;
        }
    });

    std::vector<std::thread> posters;
    for (std::size_t poster = 0; poster < POSTERS; ++poster) {
        posters.emplace_back([&thread, poster] {
            for (LPARAM i = 0; i < POSTS; ++i)
                thread.postUntilAccepted(FIRST_MESSAGE, poster, i);
        });
    }

    for (std::thread& poster : posters)
        poster.join();
    thread.waitUntilIdle();
    EXPECT_TRUE(inOrder);
    EXPECT_EQ(next, std::vector<LPARAM>(POSTERS, POSTS));
    EXPECT_TRUE(thread.post(WM_QUIT, 0, 0));

    thread.join();
}

TEST(MessageThreadTest, EveryIdleWaitSeesAllThatWasPostedBefore) {
    MessageThread thread;
    std::atomic<int> handled{0};
    thread.start("idle", [&] {
        MSG message;
        while (thread.get(message))
            handled.fetch_add(1, std::memory_order_relaxed);
    });

    const auto postAndWait = [&](int rounds) {
        for (int i = 0; i < rounds; ++i) {
            const int before = handled.load(std::memory_order_relaxed);
            thread.postUntilAccepted(FIRST_MESSAGE, 0, 0);
            thread.waitUntilIdle();
            ASSERT_GT(handled.load(std::memory_order_relaxed), before);
        }
    };

    std::thread other([&] { postAndWait(3000); });

    postAndWait(3000);
    other.join();
    EXPECT_EQ(handled.load(), 6000);
    EXPECT_TRUE(thread.post(WM_QUIT, 0, 0));

    thread.join();
}

TEST(MessageThreadTest, EndWhilePostingKeepsOrRefusesEachPost) {
    for (int round = 0; round < 50; ++round) {
        MessageThread thread;
        std::size_t taken = 0;
        thread.start("ending", [&] {
            MSG message;
            while (thread.get(message))
                ++taken;
        });
        std::atomic<std::size_t> accepted{0};
        std::vector<std::thread> posters;
        for (int poster = 0; poster < 3; ++poster) {
            posters.emplace_back([&] {
                for (int i = 0; i < 300; ++i)
                    accepted.fetch_add(thread.post(FIRST_MESSAGE, 0, 0) ? 1 : 0);
            });
        }
        EXPECT_TRUE(thread.post(WM_QUIT, 0, 0));
        for (std::thread& poster : posters)
            poster.join();
        thread.join();
        MSG message;
        while (thread.tryGet(message))
            ++taken;
        ASSERT_EQ(taken, accepted.load());
    }
}

}
}
