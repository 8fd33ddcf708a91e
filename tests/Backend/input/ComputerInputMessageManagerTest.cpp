#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/ComputerInputMessages.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

namespace {

using namespace Backend::ComputerInput;
using Backend::releaseCopy;

class ComputerInputMessageManagerTest : public testing::Test {
protected:
    static MSG message(UINT number, WPARAM wParam, LPARAM lParam) {
        MSG message{};
        message.message = number;
        message.wParam = wParam;
        message.lParam = lParam;
        return message;
    }

    TestSupport::FakeHost m_host;
    ComputerInputMessageManager& m_manager = m_host.mirel().getComputerInputMessageManager();
};

TEST_F(ComputerInputMessageManagerTest, TakesItsRangeOfNumbers) {
    for (UINT number = 33469; number <= 33476; ++number)
        EXPECT_TRUE(m_manager.wantMessage(number)) << number;
    EXPECT_FALSE(m_manager.wantMessage(33467));
    EXPECT_FALSE(m_manager.wantMessage(33478));
    EXPECT_FALSE(m_manager.wantMessage(0));
    EXPECT_EQ(static_cast<int>(Messages::UPDATE_KEY_CONFIGURATIONS), 33469);
    EXPECT_EQ(static_cast<int>(Messages::SET_USE_KEY_UP_MOD), 33470);
    EXPECT_EQ(static_cast<int>(Messages::LOAD_PRESET), 33471);
    EXPECT_EQ(static_cast<int>(Messages::RENAME_PRESET), 33472);
    EXPECT_EQ(static_cast<int>(Messages::DELETE_PRESET), 33473);
    EXPECT_EQ(static_cast<int>(Messages::SAVE_PRESET), 33474);
    EXPECT_EQ(static_cast<int>(Messages::KEY_DOWN), 33475);
    EXPECT_EQ(static_cast<int>(Messages::KEY_UP), 33476);
}

// A leak shows in a build with the address sanitizer.
TEST_F(ComputerInputMessageManagerTest, DisposesOfWhatIsNeverHandled) {
    const std::string name = "a name that is too long for a string to hold it inside";
    m_manager.disposeMessage(
        message(Messages::UPDATE_KEY_CONFIGURATIONS, 1, releaseCopy<LPARAM>(std::vector<KeyConfiguration>(2))));
    m_manager.disposeMessage(message(Messages::SET_USE_KEY_UP_MOD, 1, 0));
    m_manager.disposeMessage(message(Messages::LOAD_PRESET, 0, releaseCopy<LPARAM>(name)));
    m_manager.disposeMessage(message(Messages::RENAME_PRESET, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(name)));
    m_manager.disposeMessage(message(Messages::DELETE_PRESET, 0, releaseCopy<LPARAM>(name)));
    m_manager.disposeMessage(
        message(Messages::SAVE_PRESET, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(std::vector<Key>(2))));
    m_manager.disposeMessage(message(Messages::KEY_DOWN, 65, 1));
    m_manager.disposeMessage(message(Messages::KEY_UP, 65, 0));
}

// Messages made by hand, as the tables of numbers and words have it.
TEST_F(ComputerInputMessageManagerTest, SetsTheFlagByItsFirstWord) {
    m_manager.handleMessage(message(33470, 1, 0));
    EXPECT_TRUE(m_host.mirel().getComputerInput().getUseKeyUpMod());
    m_manager.handleMessage(message(33470, 0, 1));
    EXPECT_FALSE(m_host.mirel().getComputerInput().getUseKeyUpMod());
}

}
