#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/ComputerInputMessages.h"
#include "tests/support/FakeHost.h"
#include "tests/support/MessageWords.h"

#include <gtest/gtest.h>

namespace {

using namespace Backend::ComputerInput;
using TestSupport::releaseCopy;

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
    EXPECT_EQ(Messages::UPDATE_KEY_CONFIGURATIONS.NUMBER, 33469u);
    EXPECT_EQ(Messages::SET_USE_KEY_UP_MOD.NUMBER, 33470u);
    EXPECT_EQ(Messages::LOAD_PRESET.NUMBER, 33471u);
    EXPECT_EQ(Messages::RENAME_PRESET.NUMBER, 33472u);
    EXPECT_EQ(Messages::DELETE_PRESET.NUMBER, 33473u);
    EXPECT_EQ(Messages::SAVE_PRESET.NUMBER, 33474u);
    EXPECT_EQ(Messages::KEY_DOWN.NUMBER, 33475u);
    EXPECT_EQ(Messages::KEY_UP.NUMBER, 33476u);
}

// A build with the address sanitizer finds leaks.
TEST_F(ComputerInputMessageManagerTest, DisposesOfWhatIsNeverHandled) {
    const std::string name = "a name that is too long for a string to hold it inside";
    m_manager.disposeMessage(
        message(Messages::UPDATE_KEY_CONFIGURATIONS.NUMBER, 1, releaseCopy<LPARAM>(std::vector<KeyConfiguration>(2))));
    m_manager.disposeMessage(message(Messages::SET_USE_KEY_UP_MOD.NUMBER, 1, 0));
    m_manager.disposeMessage(message(Messages::LOAD_PRESET.NUMBER, 0, releaseCopy<LPARAM>(name)));
    m_manager.disposeMessage(
        message(Messages::RENAME_PRESET.NUMBER, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(name)));
    m_manager.disposeMessage(message(Messages::DELETE_PRESET.NUMBER, 0, releaseCopy<LPARAM>(name)));
    m_manager.disposeMessage(
        message(Messages::SAVE_PRESET.NUMBER, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(std::vector<Key>(2))));
    m_manager.disposeMessage(message(Messages::KEY_DOWN.NUMBER, 65, 1));
    m_manager.disposeMessage(message(Messages::KEY_UP.NUMBER, 65, 0));
}

// Messages built by hand from the tables of numbers and words.
TEST_F(ComputerInputMessageManagerTest, SetsTheFlagByItsFirstWord) {
    m_manager.handleMessage(message(33470, 1, 0));
    EXPECT_TRUE(m_host.mirel().getComputerInput().getUseKeyUpMod());
    m_manager.handleMessage(message(33470, 0, 1));
    EXPECT_FALSE(m_host.mirel().getComputerInput().getUseKeyUpMod());
}

}
