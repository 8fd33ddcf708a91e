#include "Backend/core/GuiPost.h"

#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <string>

namespace Backend {
namespace {

// Counts the copies that are made of it.
class Copied {
public:
    explicit Copied(int value) : m_value(value) {}
    Copied(const Copied& other) : m_value(other.m_value) { ++copies; }
    Copied& operator=(const Copied&) = delete;

    int m_value;
    static inline int copies = 0;
};

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
    postToGui(host.mirel(), 33229, 1, -2);
    EXPECT_EQ(m_message, 33229u);
    EXPECT_EQ(m_wParam, 1u);
    EXPECT_EQ(m_lParam, -2);
}

TEST_F(GuiPostTest, ACopyReachesTheWindowAndBelongsToIt) {
    openWindow();
    postCopyToGui(host.mirel(), 33222, std::string("Piano"), 7);
    EXPECT_EQ(m_message, 33222u);
    EXPECT_EQ(m_wParam, 7u);
    EXPECT_EQ(*takePayload<std::string>(m_lParam), "Piano");
}

TEST_F(GuiPostTest, WithoutAWindowNothingIsPostedAndNoCopyIsMade) {
    Copied::copies = 0;
    postToGui(host.mirel(), 33229, 1);
    postCopyToGui(host.mirel(), 33222, Copied(5));
    EXPECT_EQ(m_message, 0u);
    EXPECT_EQ(Copied::copies, 0);
}

}
}
