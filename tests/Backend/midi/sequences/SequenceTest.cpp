#include "Backend/midi/sequences/Sequence.h"

#include <gtest/gtest.h>

namespace Backend::SequenceManagement {
namespace {

// The items as "offset/velocity/length" or "rest", by nodes.
std::string shape(const Sequence& sequence) {
    std::string text;
    for (const auto& node : sequence.getNodes()) {
        text += "[";
        for (const SequenceItem& item : node)
            text += (item.rest ? "rest " : "") + std::to_string(item.noteOffset) + "/" +
                    std::to_string(item.velocityOffset) + "/" + std::to_string(item.length) + ";";
        text += "]";
    }
    return text;
}

TEST(SequenceTest, TextGivesNodesAndItems) {
    struct Row {
        const char* text;
        const char* shape;
    };

    const Row rows[] = {
        {"", ""},
        {"  ", ""},
        {"0,12,7|12,-", "[0/0/1920;][12/0/1920;][7/0/1920;12/0/1920;][rest 0/0/1920;]"},
        {"0 V10 L240", "[0/10/240;]"},
        {"0 v-10 l240", "[0/-10/240;]"},
        {"0,,12", "[0/0/1920;][rest 0/0/1920;][12/0/1920;]"},
        {"0,12,", "[0/0/1920;][12/0/1920;]"},
        {",12", "[rest 0/0/1920;][12/0/1920;]"},
        {"0 ,12", "[0/0/1920;][12/0/1920;]"},
        {"0  V10", "[rest 0/10/1920;]"},
        {"5 V1 L2 7", "[5/1/2;]"},
        {"0|", "[0/0/1920;]"},
        {"|0", "[rest 0/0/1920;0/0/1920;]"},
        {"- 5", "[5/0/1920;]"},
        {"5 -", "[rest 5/0/1920;]"},
        {"- V3", "[rest 0/3/1920;]"},
        {"V5", "[0/5/1920;]"},
        {"x", "[0/0/1920;]"},
        {"Vx Ly", "[0/0/1920;]"},
        {"99999999999 V99999999999", "[0/0/1920;]"},
        {"-5", "[-5/0/1920;]"},
        {"1\t2", "[1/0/1920;]"},
        {"|", "[rest 0/0/1920;]"},
        {",", "[rest 0/0/1920;]"},
    };

    for (const Row& row : rows)
        EXPECT_EQ(shape(Sequence(std::string_view(row.text))), row.shape) << '"' << row.text << '"';
}

TEST(SequenceTest, TextIsWrittenInOneWay) {
    struct Row {
        const char* text;
        const char* written;
    };

    const Row rows[] = {
        {"", ""},
        {" 0 , 12|7 V5 , - ", "0,12|7 V5,-"},
        {"0,12|7 V5,-", "0,12|7 V5,-"},
        {"0 V0 L1920", "0"},
        {"- V10 L60", "- L60"},
        {"+5 v-3", "5 V-3"},
        {"0 L-1", "0 L-1"},
    };

    for (const Row& row : rows)
        EXPECT_EQ(Sequence(std::string_view(row.text)).toString(), row.written) << row.text;
}

TEST(SequenceTest, PositionWrapsAtBothEnds) {
    Sequence sequence(std::string_view("0,1,2"));
    EXPECT_EQ(sequence.getPosition(), 0);
    EXPECT_TRUE(sequence.isAtFirstNode());
    sequence.stepBack();
    EXPECT_EQ(sequence.getPosition(), 2);
    EXPECT_TRUE(sequence.isAtLastNode());
    sequence.advance();
    EXPECT_EQ(sequence.getPosition(), 0);
    sequence.setPosition(3);
    EXPECT_EQ(sequence.getCurrentNode(), nullptr);
    sequence.setPosition(-1);
    EXPECT_EQ(sequence.getCurrentNode(), nullptr);
}

TEST(SequenceTest, AMillionNodesAreReadAndWritten) {
    std::string text = "0";
    for (int i = 1; i < 1000000; ++i)
        text += ",0";
    const Sequence sequence{std::string_view(text)};
    EXPECT_EQ(sequence.getNodes().size(), 1000000u);
    EXPECT_EQ(sequence.toString(), text);
}

}
}
