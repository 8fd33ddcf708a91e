#include "Backend/core/messages/MessageForm.h"

#include <gtest/gtest.h>

#include <limits>

namespace Backend {
namespace {

struct Case {
    int row;
    int column;
    std::int32_t ppq;
    MessageForm form;
};

TEST(MessageFormTest, OnlyUntimedEventsWithoutAControlGoWithoutTheHeap) {
    constexpr int LOWEST = std::numeric_limits<int>::min();
    constexpr int HIGHEST = std::numeric_limits<int>::max();

    const Case cases[] = {
        {0, 0, -1, MessageForm::ALLOC},       {15, 15, -1, MessageForm::ALLOC},
        {0, 0, 1000, MessageForm::ALLOC},     {16, 15, -1, MessageForm::PARAM},
        {15, 16, -1, MessageForm::PARAM},     {20, 0, -1, MessageForm::PARAM},
        {-1, -1, -1, MessageForm::PARAM},     {-1, 0, -1, MessageForm::PARAM},
        {0, -1, -1, MessageForm::PARAM},      {LOWEST, 0, -1, MessageForm::PARAM},
        {0, HIGHEST, -1, MessageForm::PARAM}, {-1, -1, LOWEST, MessageForm::PARAM},
        {-1, -1, 0, MessageForm::ALLOC},      {-1, -1, 1000, MessageForm::ALLOC},
        {20, 0, 0, MessageForm::ALLOC},       {-1, -1, HIGHEST, MessageForm::ALLOC},
    };

    for (const Case& one : cases) {
        EXPECT_EQ(chooseMessageForm(one.row, one.column, one.ppq), one.form)
            << one.row << "," << one.column << " " << one.ppq;
    }
}

}
}
