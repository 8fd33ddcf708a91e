#include "Backend/core/messages/MessageRanges.h"

#include <gtest/gtest.h>

#include <iterator>

namespace Backend {
namespace {

struct Row {
    const char* manager;
    MessageRange range;
    MessageQueueKind queue;
    UINT first;
    UINT last;
};

constexpr Row ROWS[] = {
    {"MirelMessageManager", MIREL_RANGE, MessageQueueKind::BACKEND, 0x81C2, 0x81F9},
    {"ComputerInputMessageManager", COMPUTER_INPUT_RANGE, MessageQueueKind::BACKEND, 0x82BC, 0x82C5},
    {"ControlMessageManager", CONTROL_RANGE, MessageQueueKind::BACKEND, 0x84B0, 0x84BA},
    {"LayerMessageManager", LAYER_RANGE, MessageQueueKind::BACKEND, 0x879E, 0x87A6},
    {"ZoneMessageManager", ZONE_RANGE, MessageQueueKind::BACKEND, 0x8898, 0x889C},
    {"MirelGuiMessageManager", MIREL_GUI_RANGE, MessageQueueKind::WINDOW, 0x81C2, 0x81F5},
    {"ComputerInputGuiMessageManager", COMPUTER_INPUT_GUI_RANGE, MessageQueueKind::WINDOW, 0x82BC, 0x82C1},
    {"ControlGuiMessageManager", CONTROL_GUI_RANGE, MessageQueueKind::WINDOW, 0x84B0, 0x84B6},
    {"LayerGuiMessageManager", LAYER_GUI_RANGE, MessageQueueKind::WINDOW, 0x879E, 0x87A9},
    {"ZoneGuiMessageManager", ZONE_GUI_RANGE, MessageQueueKind::WINDOW, 0x8898, 0x889C},
    {"MidiEngineMessageManager", MIDI_ENGINE_RANGE, MessageQueueKind::ENGINE, 0x8066, 0x8073},
    {"DisplayMessageManager", DISPLAY_RANGE, MessageQueueKind::DISPLAY, 0x8066, 0x8070},
};

TEST(MessageRangesTest, EveryManagerHasItsRange) {
    for (const Row& row : ROWS) {
        EXPECT_EQ(row.range.queue, row.queue) << row.manager;
        EXPECT_EQ(row.range.first, row.first) << row.manager;
        EXPECT_EQ(row.range.last, row.last) << row.manager;
        EXPECT_FALSE(row.range.contains(row.first - 1)) << row.manager;
        EXPECT_TRUE(row.range.contains(row.first)) << row.manager;
        EXPECT_TRUE(row.range.contains(row.last)) << row.manager;
        EXPECT_FALSE(row.range.contains(row.last + 1)) << row.manager;
    }
}

TEST(MessageRangesTest, TableHoldsEveryRangeOnce) {
    ASSERT_EQ(MESSAGE_RANGES.size(), std::size(ROWS));
    for (std::size_t i = 0; i < MESSAGE_RANGES.size(); ++i) {
        EXPECT_EQ(MESSAGE_RANGES[i].queue, ROWS[i].queue) << ROWS[i].manager;
        EXPECT_EQ(MESSAGE_RANGES[i].first, ROWS[i].first) << ROWS[i].manager;
        EXPECT_EQ(MESSAGE_RANGES[i].last, ROWS[i].last) << ROWS[i].manager;
    }
}

TEST(MessageRangesTest, RangesOfOneQueueDoNotOverlap) {
    for (const MessageRange& range : MESSAGE_RANGES) {
        for (const MessageRange& other : MESSAGE_RANGES) {
            const bool same = &range == &other;
            const bool apart = range.last < other.first || other.last < range.first;
            EXPECT_TRUE(same || apart || range.queue != other.queue) << range.first;
        }
    }
}

TEST(MessageRangesTest, MessagesThatEndThreadsBelongToNoManager) {
    EXPECT_EQ(QUIT_BACKEND_WORKER, 32969u);
    EXPECT_EQ(QUIT_BACKEND_WORKER, 0x80C9u);
    EXPECT_EQ(QUIT_MESSAGE_THREAD, 32869u);
    EXPECT_EQ(QUIT_MESSAGE_THREAD, 0x8065u);
    for (const MessageRange& range : MESSAGE_RANGES) {
        EXPECT_FALSE(range.contains(QUIT_BACKEND_WORKER));
        EXPECT_FALSE(range.contains(QUIT_MESSAGE_THREAD));
    }
}

}
}
