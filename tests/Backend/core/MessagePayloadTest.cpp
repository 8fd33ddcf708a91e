#include "Backend/core/MessagePayload.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Backend {
namespace {

// Knows how many of its kind there are.
class Counted {
public:
    explicit Counted(int value) : m_value(value) { ++count; }
    ~Counted() { --count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    int m_value;
    static inline int count = 0;
};

class KeepingSink : public Platform::WindowSink {
public:
    void windowMessage(UINT, WPARAM wParam, LPARAM lParam) override {
        m_kept = takePayload<Counted>(wParam);
        m_lParam = lParam;
    }

    std::unique_ptr<Counted> m_kept;
    LPARAM m_lParam = 0;
};

TEST(MessagePayloadTest, ObjectComesBackFromEitherWord) {
    const WPARAM first = releasePayload<WPARAM>(std::make_unique<std::string>("one"));
    const LPARAM second = releasePayload<LPARAM>(std::make_unique<std::vector<int>>(3, 7));
    EXPECT_EQ(*takePayload<std::string>(first), "one");
    EXPECT_EQ(*takePayload<std::vector<int>>(second), std::vector<int>(3, 7));
}

TEST(MessagePayloadTest, NullTravelsAsZero) {
    EXPECT_EQ(releasePayload<WPARAM>(std::unique_ptr<int>()), 0u);
    EXPECT_EQ(takePayload<int>(LPARAM{0}), nullptr);
}

TEST(MessagePayloadTest, WindowOwnsWhatWasPostedToIt) {
    {
        KeepingSink sink;
        EXPECT_TRUE(postPayloadToWindow(sink.handle(), 33218, std::make_unique<Counted>(5), -2));
        ASSERT_NE(sink.m_kept, nullptr);
        EXPECT_EQ(sink.m_kept->m_value, 5);
        EXPECT_EQ(sink.m_lParam, -2);
        EXPECT_EQ(Counted::count, 1);
    }
    EXPECT_EQ(Counted::count, 0);
}

TEST(MessagePayloadTest, FailedPostDestroysItsObject) {
    EXPECT_FALSE(postPayloadToWindow(nullptr, 33218, std::make_unique<Counted>(5)));
    EXPECT_EQ(Counted::count, 0);
}

}
}
