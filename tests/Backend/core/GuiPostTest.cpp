#include "Backend/core/GuiPost.h"

#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

namespace Backend {
namespace {

// Counts how often it is copied.
class Copied {
public:
    explicit Copied(int value) : m_value(value) {}
    Copied(const Copied& other) : m_value(other.m_value) { ++copies; }
    Copied& operator=(const Copied&) = delete;

    int m_value;
    static inline int copies = 0;
};

constexpr Message<33229, int, int> NUMBERS;
constexpr Message<33222, int, Heap<Copied>> COPY;

class GuiPostTest : public testing::Test, private Platform::WindowSink {
protected:
    void openWindow() { host.setWindow(handle()); }

    TestSupport::FakeHost host;
    UINT m_message = 0;
    WPARAM m_wParam = 0;
    LPARAM m_lParam = 0;

private:
    void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_message = message;
        m_wParam = wParam;
        m_lParam = lParam;
    }
};

TEST_F(GuiPostTest, WordsReachTheWindow) {
    openWindow();
    EXPECT_TRUE(postToGui(host.mirel(), NUMBERS, 1, -2));
    EXPECT_EQ(m_message, 33229u);
    EXPECT_EQ(m_wParam, 1u);
    EXPECT_EQ(m_lParam, -2);
}

TEST_F(GuiPostTest, ACopyReachesTheWindowAndBelongsToIt) {
    openWindow();
    EXPECT_TRUE(postToGui(host.mirel(), COPY, 7, Copied(5)));
    EXPECT_EQ(m_message, 33222u);
    EXPECT_EQ(m_wParam, 7u);
    COPY.open(m_wParam, m_lParam, [](int, const Copied& copy) { EXPECT_EQ(copy.m_value, 5); });
}

TEST_F(GuiPostTest, WithoutAWindowNothingIsPostedAndNoCopyIsMade) {
    Copied::copies = 0;
    EXPECT_FALSE(postToGui(host.mirel(), NUMBERS, 1, 2));
    EXPECT_FALSE(postToGui(host.mirel(), COPY, 7, Copied(5)));
    EXPECT_FALSE(postToWindow(nullptr, COPY, 7, Copied(5)));
    EXPECT_EQ(m_message, 0u);
    EXPECT_EQ(Copied::copies, 0);
}

}
}
