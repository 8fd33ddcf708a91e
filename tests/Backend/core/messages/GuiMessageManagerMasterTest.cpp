#include "Backend/core/messages/GuiMessageManagerMaster.h"

#include "Backend/core/messages/GuiMessageManager.h"
#include "Platform/MessageThread.h"
#include "Platform/WindowSink.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace Backend {
namespace {

struct Received {
    unsigned int message;
    WPARAM wParam;
    LPARAM lParam;

    bool operator==(const Received&) const = default;
};

class RecordingManager : public GuiMessageManager {
public:
    RecordingManager(unsigned int first, unsigned int last) : m_first(first), m_last(last) {}

    bool wantMessage(unsigned int message) override { return message >= m_first && message <= m_last; }

    void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) override {
        m_received.push_back({message, wParam, lParam});
    }

    const unsigned int m_first;
    const unsigned int m_last;
    std::vector<Received> m_received;
};

// Treats a message as the main window does.
class Window : public Platform::WindowSink {
public:
    explicit Window(GuiMessageManagerMaster& master) : m_master(master) {}

    void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (m_master.wantMessage(message))
            m_master.handleMessage(handle(), message, wParam, lParam);
        else
            ++m_others;
    }

    GuiMessageManagerMaster& m_master;
    int m_others = 0;
};

TEST(GuiMessageManagerMasterTest, MessageIsWantedIfAnyManagerWantsIt) {
    GuiMessageManagerMaster master;
    EXPECT_FALSE(master.wantMessage(33218));
    RecordingManager first(33218, 33269);
    RecordingManager second(33468, 33473);
    master.addMessageManager(&first);
    master.addMessageManager(&second);
    for (const unsigned int wanted : {33218u, 33269u, 33468u, 33473u})
        EXPECT_TRUE(master.wantMessage(wanted)) << wanted;
    for (const unsigned int unwanted : {33217u, 33270u, 33467u, 33474u})
        EXPECT_FALSE(master.wantMessage(unwanted)) << unwanted;
}

TEST(GuiMessageManagerMasterTest, FirstManagerInOrderGetsTheMessageAlone) {
    GuiMessageManagerMaster master;
    RecordingManager first(33218, 33219);
    RecordingManager second(33219, 33220);
    master.addMessageManager(&first);
    master.addMessageManager(&second);
    EXPECT_EQ(master.handleMessage(nullptr, 33219, 1, -1), 0);
    EXPECT_EQ(master.handleMessage(nullptr, 33220, 2, -2), 0);
    EXPECT_EQ(master.handleMessage(nullptr, 33221, 3, -3), 0) << "that nobody wants";
    EXPECT_EQ(first.m_received, (std::vector<Received>{{33219, 1, -1}}));
    EXPECT_EQ(second.m_received, (std::vector<Received>{{33220, 2, -2}}));
}

TEST(GuiMessageManagerMasterTest, PostArrivesAtTheManagerThroughTheWindow) {
    GuiMessageManagerMaster master;
    RecordingManager manager(33218, 33269);
    master.addMessageManager(&manager);
    Window window(master);
    EXPECT_TRUE(master.postMessage(window.handle(), 33218, 5, 6));
    EXPECT_TRUE(master.postMessage(window.handle(), 33270, 5, 6));
    EXPECT_EQ(manager.m_received, (std::vector<Received>{{33218, 5, 6}}));
    EXPECT_EQ(window.m_others, 1);
}

TEST(GuiMessageManagerMasterTest, PostToNoWindowIsNotRetried) {
    GuiMessageManagerMaster master;
    EXPECT_FALSE(master.postMessage(nullptr, 33218, 0, 0));
}

TEST(GuiMessageManagerMasterTest, ManagerThreadIsTheOneThatWasSet) {
    GuiMessageManagerMaster master;
    EXPECT_FALSE(master.currentThreadIsManagerThread());
    master.setThreadId(Platform::currentThreadId());
    EXPECT_TRUE(master.currentThreadIsManagerThread());
    bool elsewhere = true;
    std::thread other([&] { elsewhere = master.currentThreadIsManagerThread(); });
    other.join();
    EXPECT_FALSE(elsewhere);
}

}
}
