#include "Host/cli/run/TerminalKeyParser.h"

#include <gtest/gtest.h>

#include <string>

namespace Host::Cli {
namespace {

using Action = TerminalKeyParser::Action;

// The keys of some bytes: "Q, Shift F1-" with "-" behind a release and "*" behind a repeat.
std::string keysOf(TerminalKeyParser& parser, std::string_view bytes) {
    std::string text;
    for (const auto& press : parser.parse(bytes)) {
        text += (text.empty() ? "" : ", ") + press.key.toXmlString();
        text += press.action == Action::RELEASE ? "-" : press.action == Action::REPEAT ? "*" : "";
    }
    return text;
}

std::string keysOf(std::string_view bytes) {
    TerminalKeyParser parser;
    return keysOf(parser, bytes);
}

TEST(TerminalKeyParserTest, CharactersAreTheKeysThatMakeThem) {
    EXPECT_EQ(keysOf("q2,;'[]/="), "Q, 2, Comma, Semicolon, Apostrophe, Left Bracket, Right Bracket, Slash, Equals");
    EXPECT_EQ(keysOf("Q!<:"), "Shift Q, Shift 1, Shift Comma, Shift Semicolon");
    EXPECT_EQ(keysOf(" \t\r\x7f"), "Space, Tab, Enter, Backspace");
}

TEST(TerminalKeyParserTest, ControlCharactersHoldTheControlKey) {
    EXPECT_EQ(keysOf("\x01\x1a"), "Control A, Control Z");
}

TEST(TerminalKeyParserTest, SequencesAreFunctionKeys) {
    EXPECT_EQ(keysOf("\x1b[A\x1b[B\x1b[C\x1b[D"), "Up, Down, Right, Left");
    EXPECT_EQ(keysOf("\x1bOP\x1bOQ\x1b[15~\x1b[24~"), "F1, F2, F5, F12");
    EXPECT_EQ(keysOf("\x1b[5~\x1b[6~\x1b[2~\x1b[3~\x1b[H\x1b[F"), "Page Up, Page Down, Insert, Delete, Home, End");
}

TEST(TerminalKeyParserTest, ModifiersAreInTheSequence) {
    EXPECT_EQ(keysOf("\x1b[1;2P\x1b[1;5A\x1b[3;5~"), "Shift F1, Control Up, Control Delete");
    EXPECT_EQ(keysOf("\x1bq"), "Alt Q");
}

TEST(TerminalKeyParserTest, SomeTerminalsReportReleasesAndRepeats) {
    TerminalKeyParser parser;
    EXPECT_FALSE(parser.tellsReleases());
    EXPECT_EQ(keysOf(parser, "\x1b[?11u"), "");
    EXPECT_TRUE(parser.tellsReleases());
    EXPECT_EQ(keysOf(parser, "\x1b[113;1:1u\x1b[113;1:2u\x1b[113;1:3u"), "Q, Q*, Q-");
    EXPECT_EQ(keysOf(parser, "\x1b[1;2:3P\x1b[57413u"), "Shift F1-, Numpad +");
}

TEST(TerminalKeyParserTest, CapabilitiesWithoutReleasesDoNotCount) {
    for (const char* answer : {"\x1b[?0u", "\x1b[?u", "\x1b[?1u", "\x1b[?8u", "\x1b[?29u", "\x1b[?2c"}) {
        TerminalKeyParser parser;
        parser.parse(answer);
        EXPECT_FALSE(parser.tellsReleases()) << answer;
    }
    for (const char* answer : {"\x1b[?2u", "\x1b[?3u", "\x1b[?31u"}) {
        TerminalKeyParser parser;
        parser.parse(answer);
        EXPECT_TRUE(parser.tellsReleases()) << answer;
    }
}

TEST(TerminalKeyParserTest, LastAnswerCounts) {
    TerminalKeyParser parser;
    parser.parse("\x1b[?11u\x1b[?1u");
    EXPECT_FALSE(parser.tellsReleases());
}

TEST(TerminalKeyParserTest, SequencesMayComeInPieces) {
    TerminalKeyParser parser;
    EXPECT_EQ(keysOf(parser, "a\x1b"), "A");
    EXPECT_EQ(keysOf(parser, "["), "");
    EXPECT_EQ(keysOf(parser, "1;"), "");
    EXPECT_EQ(keysOf(parser, "5Ab"), "Control Up, B");
}

TEST(TerminalKeyParserTest, ALoneEscapeIsTheKey) {
    TerminalKeyParser parser;
    EXPECT_EQ(keysOf(parser, "\x1b"), "");
    const auto left = parser.flush();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].key.toXmlString(), "Escape");
    EXPECT_TRUE(parser.flush().empty());
}

TEST(TerminalKeyParserTest, NonsenseIsSkipped) {
    EXPECT_EQ(keysOf("\x1b[999999999999999999999;99999999999:99u"), "");
    EXPECT_EQ(keysOf("\x1b[<0;1;2Mq"), "Q") << "a mouse";
    EXPECT_EQ(keysOf("\xC3\xABq"), "Q") << "a letter that no key has";
    EXPECT_EQ(keysOf("\x1b[" + std::string(100, '1') + "q"), keysOf(std::string(38, '1') + "q"));
}

}
}
