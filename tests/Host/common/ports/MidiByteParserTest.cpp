#include "Host/common/ports/MidiByteParser.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace Host {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Messages = std::vector<MidiBytes>;

Messages parse(MidiByteParser& parser, const Bytes& bytes) {
    Messages messages;
    MidiBytes message;
    for (const std::uint8_t byte : bytes)
        if (parser.feed(byte, message))
            messages.push_back(message);
    return messages;
}

Messages parse(const Bytes& bytes) {
    MidiByteParser parser;
    return parse(parser, bytes);
}

TEST(MidiByteParserTest, EveryKindOfMessageHasItsLength) {
    EXPECT_EQ(
        parse({0x81, 1, 2, 0x92, 3, 4, 0xa3, 5, 6, 0xb4, 7, 8, 0xc5, 9, 0xd6, 10, 0xe7, 11, 12}),
        (Messages{
            {0x81, 1, 2}, {0x92, 3, 4}, {0xa3, 5, 6}, {0xb4, 7, 8}, {0xc5, 9, 0}, {0xd6, 10, 0}, {0xe7, 11, 12}}));
    EXPECT_EQ(parse({0xf1, 1, 0xf2, 2, 3, 0xf3, 4, 0xf5, 5, 0xf6}),
              (Messages{{0xf1, 1, 0}, {0xf2, 2, 3}, {0xf3, 4, 0}, {0xf5, 5, 0}, {0xf6, 0, 0}}));
}

TEST(MidiByteParserTest, RunningStatusGoesOnUntilAnotherStatus) {
    EXPECT_EQ(parse({0x90, 60, 100, 60, 0, 64, 1, 0xc1, 5, 6, 7}),
              (Messages{{0x90, 60, 100}, {0x90, 60, 0}, {0x90, 64, 1}, {0xc1, 5, 0}, {0xc1, 6, 0}, {0xc1, 7, 0}}));
}

TEST(MidiByteParserTest, SystemCommonEndsTheRunningStatus) {
    EXPECT_EQ(parse({0x90, 60, 100, 0xf6, 60, 0, 0xf3, 1, 2, 3}),
              (Messages{{0x90, 60, 100}, {0xf6, 0, 0}, {0xf3, 1, 0}}));
}

TEST(MidiByteParserTest, RealTimeBytesMayInterruptAMessage) {
    EXPECT_EQ(parse({0x90, 0xf8, 60, 0xfa, 100, 61, 0xfe, 101}),
              (Messages{{0xf8, 0, 0}, {0xfa, 0, 0}, {0x90, 60, 100}, {0xfe, 0, 0}, {0x90, 61, 101}}));
}

TEST(MidiByteParserTest, SysexIsSkippedWithoutHarm) {
    EXPECT_EQ(parse({0x90, 60, 100, 0xf0, 1, 2, 3, 0xf8, 4, 0xf7, 9, 9, 0x80, 60, 0}),
              (Messages{{0x90, 60, 100}, {0xf8, 0, 0}, {0x80, 60, 0}}));
    EXPECT_EQ(parse({0xf0, 1, 2, 0x90, 60, 100}), (Messages{{0x90, 60, 100}})) << "a sysex that a status cuts off";
    EXPECT_EQ(parse({0xf7, 1, 0x90, 60, 100}), (Messages{{0x90, 60, 100}})) << "an end without a beginning";
}

TEST(MidiByteParserTest, MessagesMayComeInPieces) {
    MidiByteParser parser;
    EXPECT_EQ(parse(parser, {0x90}), Messages());
    EXPECT_EQ(parse(parser, {60}), Messages());
    EXPECT_EQ(parse(parser, {100}), (Messages{{0x90, 60, 100}}));
}

TEST(MidiByteParserTest, DataBeforeAnyStatusAndMessagesCutOffAreDropped) {
    EXPECT_EQ(parse({1, 2, 3, 0x90, 60, 0x91, 61, 101}), (Messages{{0x91, 61, 101}}));
}

TEST(MidiByteParserTest, NonsenseGivesOnlyWholeMessages) {
    std::mt19937 random(1);
    MidiByteParser parser;
    MidiBytes message;
    for (int i = 0; i < 100000; ++i) {
        if (!parser.feed(static_cast<std::uint8_t>(random() & 0xff), message))
            continue;
        ASSERT_GE(message.status, 0x80);
        ASSERT_LT(message.d1, 0x80);
        ASSERT_LT(message.d2, 0x80);
    }
}

TEST(MidiByteParserTest, PackedWordsHaveTheirLength) {
    MidiByteParser parser;
    EXPECT_EQ(parser.lengthOfPacked(0x00643c90), 3u);
    EXPECT_EQ(parser.lengthOfPacked(0x000005c0), 2u);
    EXPECT_EQ(parser.lengthOfPacked(0x000000f8), 1u);
    EXPECT_EQ(parser.lengthOfPacked(0x0000643c), 1u) << "data without a run is one byte to pass over";
    parse(parser, {0x90, 60, 100});
    EXPECT_EQ(parser.lengthOfPacked(0x0000643c), 2u);
    parse(parser, {0xc0, 5});
    EXPECT_EQ(parser.lengthOfPacked(0x00000006), 1u);
}

}
}
