#include "Backend/core/messages/MessageManagerMaster.h"

#include "Backend/core/messages/MessageManager.h"
#include "Backend/core/messages/MessageRanges.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Backend {
namespace {

constexpr unsigned int FIRST = 33218;
constexpr unsigned int LAST = 33273;

// Wants a range and records what it got.
class RecordingManager : public MessageManager {
public:
    RecordingManager(MessageManagerMaster& master, unsigned int first, unsigned int last)
        : MessageManager(master), m_first(first), m_last(last) {}

    bool wantMessage(unsigned int message) override { return message >= m_first && message <= m_last; }

    void handleMessage(const MSG& message) override {
        m_handled.push_back(message.message);
        m_onWorker = m_onWorker && currentThreadIsManagerThread();
        if (m_action)
            m_action(message);
    }

    void disposeMessage(const MSG& message) override { m_disposed.push_back(message.message); }

    const unsigned int m_first;
    const unsigned int m_last;
    std::function<void(const MSG&)> m_action;
    std::vector<unsigned int> m_handled;  // Read while the worker is idle or stopped.
    std::vector<unsigned int> m_disposed;
    bool m_onWorker = true;
};

using Numbers = std::vector<unsigned int>;

TEST(MessageManagerMasterTest, FirstManagerThatWantsAMessageIsTheOnlyOneToGetIt) {
    MessageManagerMaster master;
    RecordingManager first(master, 33218, 33220);
    RecordingManager second(master, 33219, 33221);
    master.addMessageManager(&first);
    master.addMessageManager(&second);
    master.start();
    for (unsigned int message = 33218; message <= 33221; ++message)
        master.postMessage(message, 0, 0);
    master.stop();

    EXPECT_EQ(first.m_handled, (Numbers{33218, 33219, 33220}));
    EXPECT_EQ(second.m_handled, (Numbers{33221}));
    EXPECT_TRUE(first.m_onWorker);
    EXPECT_TRUE(second.m_onWorker);
}

TEST(MessageManagerMasterTest, MessageThatNoManagerWantsIsDropped) {
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    master.addMessageManager(&manager);
    master.start();
    master.postMessage(FIRST - 1, 1, 2);
    master.postMessage(LAST + 1, 1, 2);
    master.postMessage(FIRST, 1, 2);
    master.stop();
    EXPECT_EQ(manager.m_handled, (Numbers{FIRST}));
}

TEST(MessageManagerMasterTest, QuitMessageIsSeenBeforeAnyManager) {
    MessageManagerMaster master;
    RecordingManager manager(master, 0, 0xFFFFFFFF);
    master.addMessageManager(&manager);
    master.start();
    master.postMessage(FIRST, 0, 0);
    master.postMessage(QUIT_BACKEND_WORKER, 0, 0);
    master.stop();
    EXPECT_EQ(manager.m_handled, (Numbers{FIRST}));
}

TEST(MessageManagerMasterTest, SystemQuitMessageEndsTheWorkerToo) {
    MessageManagerMaster master;
    RecordingManager manager(master, 0, 0xFFFFFFFF);
    master.addMessageManager(&manager);
    master.start();
    master.postMessage(WM_QUIT, 0, 0);
    master.waitUntilIdle();
    master.stop();
    EXPECT_TRUE(manager.m_handled.empty());
}

TEST(MessageManagerMasterTest, MessageArrivesWithBothWords) {
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    MSG received = {};
    manager.m_action = [&](const MSG& message) { received = message; };
    master.addMessageManager(&manager);
    master.start();
    master.postMessage(FIRST, ~WPARAM{0}, -2);
    master.waitUntilIdle();

    EXPECT_TRUE(master.isIdle());
    EXPECT_EQ(received.message, FIRST);
    EXPECT_EQ(received.wParam, ~WPARAM{0});
    EXPECT_EQ(received.lParam, -2);

    master.stop();
}

TEST(MessageManagerMasterTest, PostBeforeStartWaitsForTheWorker) {
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    master.addMessageManager(&manager);
    std::atomic<bool> posted{false};

    std::thread poster([&] {
        master.postMessage(FIRST, 0, 0);
        posted.store(true);
    });
    EXPECT_FALSE(posted.load());

    master.start();
    poster.join();
    master.stop();
    EXPECT_EQ(manager.m_handled, (Numbers{FIRST}));
}

TEST(MessageManagerMasterTest, PostToAFullQueueWaitsUntilThereIsRoom) {
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    Platform::AutoResetEvent go;
    manager.m_action = [&](const MSG& message) {
        if (message.message == FIRST)
            go.wait();
    };
    master.addMessageManager(&manager);
    master.start();
    master.postMessage(FIRST, 0, 0);
    constexpr std::size_t POSTS = 2 * Platform::MessageThread::CAPACITY;
    std::thread poster([&] {
        for (std::size_t i = 0; i < POSTS; ++i)
            master.postMessage(LAST, 0, 0);
    });

    go.set();
    poster.join();
    master.stop();
    EXPECT_EQ(manager.m_handled.size(), POSTS + 1);
}

TEST(MessageManagerMasterTest, SendWaitsForTheHandler) {
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    int result = 0;
    manager.m_action = [&](const MSG& message) {
        result = static_cast<int>(message.wParam) * 2;
        master.getWaitEvent().set();
    };
    master.addMessageManager(&manager);
    master.start();

    for (WPARAM i = 1; i <= 500; ++i) {
        master.postMessage(FIRST, i, 0);
        master.getWaitEvent().wait();
        ASSERT_EQ(result, static_cast<int>(i) * 2);
    }

    master.stop();
}

TEST(MessageManagerMasterTest, OnlyTheWorkerIsTheManagerThread) {
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    EXPECT_FALSE(master.currentThreadIsManagerThread()) << "before start";
    EXPECT_FALSE(manager.currentThreadIsManagerThread());

    bool onWorker = false;
    manager.m_action = [&](const MSG&) {
        onWorker = master.currentThreadIsManagerThread() && manager.currentThreadIsManagerThread();
    };
    master.addMessageManager(&manager);
    master.start();

    EXPECT_FALSE(master.currentThreadIsManagerThread());

    master.postMessage(FIRST, 0, 0);
    master.stop();
    EXPECT_TRUE(onWorker);
}

TEST(MessageManagerMasterTest, StopWithoutStartDoesNothing) {
    MessageManagerMaster master;
    master.stop();
    EXPECT_TRUE(master.isIdle());
}

TEST(MessageManagerMasterTest, StoppedWorkerStartsAgain) {
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    master.addMessageManager(&manager);
    for (int round = 0; round < 3; ++round) {
        master.start();
        master.postMessage(FIRST, 0, 0);
        master.stop();
    }
    EXPECT_EQ(manager.m_handled, (Numbers{FIRST, FIRST, FIRST}));
}

TEST(MessageManagerMasterTest, MessagesBehindTheQuitMessageAreDisposedOfByTheirManager) {
    MessageManagerMaster master;
    RecordingManager first(master, 33218, 33219);
    RecordingManager second(master, 33219, 33220);
    Platform::AutoResetEvent go;
    first.m_action = [&](const MSG&) { go.wait(); };
    master.addMessageManager(&first);
    master.addMessageManager(&second);
    master.start();
    master.postMessage(33218, 0, 0);
    master.postMessage(QUIT_BACKEND_WORKER, 0, 0);
    for (const unsigned int message : {33219u, 33220u, 33221u})
        master.postMessage(message, 0, 0);

    go.set();
    master.stop();
    EXPECT_EQ(first.m_handled, (Numbers{33218}));
    EXPECT_EQ(first.m_disposed, (Numbers{33219}));
    EXPECT_TRUE(second.m_handled.empty());
    EXPECT_EQ(second.m_disposed, (Numbers{33220}));
}

// A manager whose messages carry strings.
class StringManager : public MessageManager {
public:
    using MessageManager::MessageManager;

    void postText(const std::string& text) { post(TEXT, text); }

    bool wantMessage(unsigned int message) override { return message == TEXT.NUMBER; }

    void handleMessage(const MSG& message) override {
        TEXT.open(message.wParam, message.lParam, [this](const std::string& text) {
            if (text == "hold") {
                const std::lock_guard lock(m_gate);
            }
            m_handled += text.size();
        });
    }

    void disposeMessage(const MSG& message) override {
        TEXT.open(message.wParam, message.lParam, [this](const std::string& text) { m_disposed += text.size(); });
    }

    static constexpr Message<FIRST, Heap<std::string>> TEXT{};
    std::mutex m_gate;
    std::size_t m_handled = 0;
    std::size_t m_disposed = 0;
};

TEST(MessageManagerMasterTest, EveryPayloadIsHandledOrDisposedOf) {
    for (std::size_t late = 0; late < 20; ++late) {
        MessageManagerMaster master;
        StringManager manager(master);
        master.addMessageManager(&manager);
        master.start();
        constexpr std::size_t EARLY = 50;
        for (std::size_t i = 0; i < EARLY; ++i)
            manager.postText("x");
        // The manager's thread is held up, so that what follows the quit message is still in the queue at the end.
        std::unique_lock hold(manager.m_gate);
        manager.postText("hold");
        master.postMessage(QUIT_BACKEND_WORKER, 0, 0);
        for (std::size_t i = 0; i < late; ++i)
            manager.postText("y");
        hold.unlock();
        master.stop();
        ASSERT_EQ(manager.m_handled, EARLY + 4);
        ASSERT_EQ(manager.m_disposed, late);
    }
}

TEST(MessageManagerMasterTest, ManyPostersKeepTheirOrders) {
    constexpr std::size_t POSTERS = 4;
    constexpr LPARAM POSTS = 5000;
    MessageManagerMaster master;
    RecordingManager manager(master, FIRST, LAST);
    std::vector<LPARAM> next(POSTERS, 0);
    bool inOrder = true;
    manager.m_action = [&](const MSG& message) {
        inOrder = inOrder && next[message.wParam] == message.lParam;
        ++next[message.wParam];
    };
    master.addMessageManager(&manager);
    master.start();

    std::vector<std::thread> posters;
    for (std::size_t poster = 0; poster < POSTERS; ++poster) {
        posters.emplace_back([&, poster] {
            for (LPARAM i = 0; i < POSTS; ++i)
                master.postMessage(FIRST, poster, i);
        });
    }

    for (std::thread& poster : posters)
        poster.join();
    master.waitUntilIdle();
    EXPECT_TRUE(inOrder);
    EXPECT_EQ(next, std::vector<LPARAM>(POSTERS, POSTS));

    master.stop();
}

}
}
