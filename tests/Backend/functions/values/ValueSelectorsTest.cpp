#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/functions/values/SelectType.h"

#include <gtest/gtest.h>

namespace {

TEST(SelectTypeTest, EachModeHasItsText) {
    const char* const names[] = {"up", "down", "selected", nullptr, "all"};
    for (int mode = 0; mode <= 4; ++mode) {
        if (!names[mode])
            continue;
        const SelectType parsed{std::string_view(names[mode])};
        EXPECT_EQ(parsed.getMode(), mode);
        EXPECT_EQ(parsed.getValue(), 0);
        EXPECT_EQ(parsed.toXmlString(), names[mode]);
    }
    EXPECT_EQ(SelectType(std::string_view("7")), SelectType(SelectType::SPECIFIC, 7));
    EXPECT_EQ(SelectType(std::string_view("7")).toXmlString(), "7");
}

TEST(SelectTypeTest, AnythingElseIsAnIndex) {
    for (const char* text : {"", "Up", " up", "abc"})
        EXPECT_EQ(SelectType(std::string_view(text)), SelectType(SelectType::SPECIFIC, 0)) << text;
    EXPECT_EQ(SelectType(std::string_view("")).toXmlString(), "0");
    EXPECT_EQ(SelectType(std::string_view("-3x")).getValue(), -3);
}

TEST(SelectTypeTest, EqualityComparesModeAndIndex) {
    EXPECT_EQ(SelectType(SelectType::SPECIFIC, 7), SelectType(SelectType::SPECIFIC, 7));
    EXPECT_NE(SelectType(SelectType::SPECIFIC, 7), SelectType(SelectType::SPECIFIC, 8));
    EXPECT_NE(SelectType(SelectType::UP), SelectType(SelectType::DOWN));
}

TEST(SelectControlTypeTest, EachModeHasItsText) {
    const char* const names[] = {"up", "down", "left", "right", "selected", nullptr, "all"};
    for (int mode = 0; mode <= 6; ++mode) {
        if (!names[mode])
            continue;
        const SelectControlType parsed{std::string_view(names[mode])};
        EXPECT_EQ(parsed.getMode(), mode);
        EXPECT_EQ(parsed.getCell(), Cell(-1, -1));
        EXPECT_EQ(parsed.toXmlString(), names[mode]);
    }
}

TEST(SelectControlTypeTest, AnythingElseIsACell) {
    const SelectControlType cell{std::string_view("2,5")};
    EXPECT_EQ(cell.getMode(), SelectControlType::SPECIFIC);
    EXPECT_EQ(cell.toXmlString(), "2,5");
    EXPECT_EQ(SelectControlType(std::string_view("3")).getCell(), Cell(3, -1));
    EXPECT_EQ(SelectControlType(std::string_view(" 2 , 5 ")).toXmlString(), "2,5");
    EXPECT_EQ(SelectControlType(std::string_view("ALL")).getCell(), Cell(-1, -1));
    EXPECT_EQ(SelectControlType().getCell(), Cell(0, 0));
}

TEST(SelectControlTypeTest, EqualityComparesModeAndCell) {
    using Type = SelectControlType;
    EXPECT_EQ(Type(Type::SPECIFIC, Cell(1, 2)), Type(Type::SPECIFIC, Cell(1, 2)));
    EXPECT_NE(Type(Type::SPECIFIC, Cell(1, 2)), Type(Type::SPECIFIC, Cell(2, 1)));
    EXPECT_NE(Type(Type::UP), Type(Type::DOWN));
}

TEST(RelativeFixedValueTest, SignOrNothingMakesItRelative) {
    struct Row {
        const char* text;
        bool relative;
        int value;
        const char* written;
    };

    const Row rows[] = {
        {"", true, 0, ""},       {"  ", true, 0, ""},    {"0", false, 0, "0"},   {"+0", true, 0, ""},
        {"-0", true, 0, ""},     {"+5", true, 5, "+5"},  {"-3", true, -3, "-3"}, {"5", false, 5, "5"},
        {" +5 ", true, 5, "+5"}, {"abc", false, 0, "0"}, {"+x", true, 0, ""},    {"12x", false, 12, "12"},
    };

    for (const Row& row : rows) {
        const RelativeFixedValue value{std::string_view(row.text)};
        EXPECT_EQ(value.isRelative(), row.relative) << row.text;
        EXPECT_EQ(value.getValue(), row.value) << row.text;
        EXPECT_EQ(value.toXmlString(), row.written) << row.text;
    }

    EXPECT_EQ(RelativeFixedValue(false, -4).toXmlString(), "-4");
}

TEST(RelativeFixedValueTest, AppliesAsOffsetOrValue) {
    EXPECT_EQ(RelativeFixedValue(true, 5).applyTo(10), 15);
    EXPECT_EQ(RelativeFixedValue(false, 5).applyTo(10), 5);
    EXPECT_EQ(RelativeFixedValue().applyTo(10), 10);
    EXPECT_EQ(RelativeFixedValue(true, INT32_MAX).applyTo(1), INT32_MIN);
}

TEST(RelativeFixedValueTest, EqualityComparesKindAndAmount) {
    EXPECT_EQ(RelativeFixedValue(true, 5), RelativeFixedValue(true, 5));
    EXPECT_NE(RelativeFixedValue(true, 5), RelativeFixedValue(false, 5));
    EXPECT_NE(RelativeFixedValue(true, 5), RelativeFixedValue(true, 6));
    EXPECT_EQ(RelativeFixedValue(), RelativeFixedValue(true, 0));
}

TEST(OnOffToggleTest, ADefaultOneToggles) {
    EXPECT_EQ(OnOffToggle().getState(), 2);
}

TEST(OnOffToggleTest, EqualityComparesTheState) {
    constexpr OnOffToggle::State STATES[] = {OnOffToggle::ON, OnOffToggle::OFF, OnOffToggle::TOGGLE};
    for (const auto left : STATES)
        for (const auto right : STATES)
            EXPECT_EQ(OnOffToggle(left) == OnOffToggle(right), left == right) << left << ' ' << right;
}

TEST(OnOffToggleTest, AnythingButOnAndOffToggles) {
    EXPECT_EQ(OnOffToggle(std::string_view("on")).getState(), 0);
    EXPECT_EQ(OnOffToggle(std::string_view("off")).getState(), 1);
    for (const char* text : {"toggle", "yes", "", "On"})
        EXPECT_EQ(OnOffToggle(std::string_view(text)).getState(), 2) << text;
    for (const char* text : {"on", "off", "toggle"})
        EXPECT_EQ(OnOffToggle(std::string_view(text)).toXmlString(), text);
}

TEST(OnOffToggleTest, AppliesToAFlag) {
    for (const bool flag : {false, true}) {
        EXPECT_TRUE(OnOffToggle(OnOffToggle::ON).applyTo(flag));
        EXPECT_FALSE(OnOffToggle(OnOffToggle::OFF).applyTo(flag));
        EXPECT_EQ(OnOffToggle(OnOffToggle::TOGGLE).applyTo(flag), !flag);
        EXPECT_EQ(OnOffToggle(static_cast<OnOffToggle::State>(7)).applyTo(flag), !flag);
    }
}

TEST(NoteToggleTest, ADefaultOneIsOff) {
    EXPECT_EQ(NoteToggle().getState(), 0);
}

TEST(NoteToggleTest, EqualityComparesTheState) {
    constexpr NoteToggle::State STATES[] = {NoteToggle::OFF, NoteToggle::TYPE1, NoteToggle::TYPE2};
    for (const auto left : STATES)
        for (const auto right : STATES)
            EXPECT_EQ(NoteToggle(left) == NoteToggle(right), left == right) << left << ' ' << right;
}

TEST(NoteToggleTest, AnythingButTheTwoTypesIsOff) {
    EXPECT_EQ(NoteToggle(std::string_view("type1")).getState(), 1);
    EXPECT_EQ(NoteToggle(std::string_view("type2")).getState(), 2);
    for (const char* text : {"off", "type3", "", "Type1"})
        EXPECT_EQ(NoteToggle(std::string_view(text)).getState(), 0) << text;
    for (const char* text : {"off", "type1", "type2"})
        EXPECT_EQ(NoteToggle(std::string_view(text)).toXmlString(), text);
}

}
