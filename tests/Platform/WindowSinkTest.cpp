#include "Platform/WindowSink.h"

#include <gtest/gtest.h>

#include <vector>

namespace Platform {
namespace {

struct Posted {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;

    bool operator==(const Posted&) const = default;
};

class RecordingSink : public WindowSink {
public:
    void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_posted.push_back({message, wParam, lParam});
    }

    std::vector<Posted> m_posted;
};

TEST(WindowSinkTest, PostArrivesAtOnce) {
    RecordingSink onStack;
    const auto onHeap = std::make_unique<RecordingSink>();
    static RecordingSink inData;
    for (RecordingSink* sink : {&onStack, onHeap.get(), &inData}) {
        EXPECT_TRUE(postToWindow(sink->handle(), 33218, ~WPARAM{0}, -5));
        const std::vector<Posted> expected = {{33218, ~WPARAM{0}, -5}};
        EXPECT_EQ(sink->m_posted, expected);
    }
}

TEST(WindowSinkTest, HandlesIdentifyTheirSinks) {
    RecordingSink one;
    RecordingSink two;
    EXPECT_NE(one.handle(), two.handle());
    EXPECT_EQ(one.handle(), one.handle());
    EXPECT_TRUE(postToWindow(two.handle(), 1, 2, 3));
    EXPECT_TRUE(one.m_posted.empty());
    EXPECT_EQ(two.m_posted.size(), 1u);
}

TEST(WindowSinkTest, NullHandleTakesNothing) {
    EXPECT_FALSE(postToWindow(nullptr, 33218, 0, 0));
}

}
}
