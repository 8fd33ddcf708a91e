#include "Gui/Rules/values/ValueWheel.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include <string>

namespace Gui {
namespace {

constexpr const char* REFUSED = "(refused)";

struct Case {
    const char* text;
    int steps;
    bool large;
    ValueField field;
    const char* shown;
};

std::string turn(const Case& row) {
    return turnValue(row.text, row.steps, row.large, row.field).value_or(REFUSED);
}

void expectAll(std::initializer_list<Case> rows) {
    for (const Case& row : rows)
        EXPECT_EQ(turn(row), row.shown) << "\"" << row.text << "\" by " << row.steps;
}

ValueField between(std::intptr_t min, std::intptr_t max) {
    ValueField field;
    field.min = min;
    field.max = max;
    field.minIsZero = min == 0;
    field.maxIsZero = max == 0;
    return field;
}

ValueField with(bool ValueField::*option, ValueField field = {}) {
    field.*option = true;
    return field;
}

TEST(ValueWheel, CountsWholeNotches) {
    EXPECT_EQ(getWheelSteps(0x00780000), 1);
    EXPECT_EQ(getWheelSteps(0xff880000), -1);
    EXPECT_EQ(getWheelSteps(0x01e0000c), 4);
    EXPECT_EQ(getWheelSteps(0x00770000), 0);
    EXPECT_EQ(getWheelSteps(0xff890000), 0);
    EXPECT_EQ(getWheelSteps(0xff110000), -1);
    EXPECT_EQ(getWheelSteps(0x0078ffff), 1);
}

TEST(ValueWheel, MovesByOneOrTenOrTwelve) {
    const ValueField plain = between(0, 127);
    const ValueField twelve = with(&ValueField::jumpsByTwelve, plain);
    const ValueField note = with(&ValueField::isNote, plain);
    expectAll({{"5", 1, false, plain, "6"},
               {"5", -3, false, plain, "2"},
               {"5", 1, true, plain, "15"},
               {"25", -2, true, plain, "5"},
               {"5", 1, false, twelve, "6"},
               {"5", 1, true, twelve, "17"},
               {"C4", 1, false, note, "C#4"},
               {"C4", -1, false, note, "B3"},
               {"C4", 1, true, note, "C5"},
               {"C4", -5, true, note, "C-1"},
               {"60", 1, false, note, "C#4"}});
}

TEST(ValueWheel, RefusesWhatLeavesTheLimitsAndDoesNotCut) {
    const ValueField plain = between(0, 127);
    const ValueField note = with(&ValueField::isNote, plain);
    expectAll({{"127", 1, false, plain, REFUSED},
               {"120", 1, true, plain, REFUSED},
               {"0", -1, false, plain, REFUSED},
               {"9", -1, true, plain, REFUSED},
               {"126", 1, false, plain, "127"},
               {"1", -1, false, plain, "0"},
               {"20", -1, false, between(20, 250), REFUSED},
               {"250", 1, false, between(20, 250), REFUSED},
               {"249", 1, false, between(20, 250), "250"},
               {"300", -10, false, between(20, 250), REFUSED},
               {"G9", 1, false, note, REFUSED},
               {"C-1", -1, false, note, REFUSED},
               {"C9", 1, true, note, REFUSED}});
}

TEST(ValueWheel, ShowsSignsWhereTheFieldDoes) {
    const ValueField range = between(-12, 12);
    expectAll({{"+5", -1, false, range, "+4"},
               {"+1", -1, false, range, ""},
               {"", -1, false, range, "-1"},
               {"", 1, false, range, "+1"},
               {"-1", 1, false, range, ""},
               {"-1", 2, false, range, "+1"},
               {"-11", -1, false, range, "-12"},
               {"-12", -1, false, range, REFUSED},
               {"+12", 1, false, range, REFUSED},
               {" +5 ", -1, false, range, "+4"}});
}

TEST(ValueWheel, ShowsNoSignWhereTheFieldShowsNone) {
    const ValueField range = between(-12, 12);
    expectAll({{"5", -1, false, range, "4"},
               {"1", -1, false, range, "0"},
               {"0", -1, false, range, "-1"},
               {"", 1, false, between(0, 127), "1"},
               {"+5", 1, false, between(0, 127), "6"},
               {"+5", 1, false, between(1, 16), "6"},
               {"", 1, false, with(&ValueField::takesDigitsOnly), "1"},
               {"-5", 6, false, with(&ValueField::takesDigitsOnly, between(-12, 12)), "1"}});
}

TEST(ValueWheel, ShowsZeroAsTheFieldWants) {
    const ValueField blank = with(&ValueField::showsZeroAsBlank, between(0, 127));
    expectAll({{"1", -1, false, blank, ""},
               {"", 1, false, blank, "1"},
               {"", -1, false, blank, REFUSED},
               {"2", -1, false, blank, "1"},
               {"1", -1, false, between(0, 127), "0"}});
}

TEST(ValueWheel, TakesLimitsFromTheField) {
    ValueField zeroWins = between(1, 1);
    zeroWins.minIsZero = true;
    zeroWins.maxIsZero = false;
    ValueField maxZero = between(-5, 3);
    maxZero.maxIsZero = true;
    const ValueField none;
    expectAll({{"1", -1, false, zeroWins, "0"},
               {"0", -1, false, zeroWins, REFUSED},
               {"-1", 1, false, maxZero, ""},
               {"-1", 2, false, maxZero, REFUSED},
               {"126", 1, false, none, "127"},
               {"127", 1, false, none, REFUSED},
               {"-126", -1, false, none, "-127"},
               {"-127", -1, false, none, REFUSED},
               {"0", -1, false, with(&ValueField::takesDigitsOnly), REFUSED},
               {"127", 1, false, with(&ValueField::takesDigitsOnly), REFUSED}});
}

TEST(ValueWheel, SwapsLimitsInTheWrongOrder) {
    expectAll({{"9", 1, false, between(10, 2), "10"},
               {"10", 1, false, between(10, 2), REFUSED},
               {"3", -1, false, between(10, 2), "2"},
               {"2", -1, false, between(10, 2), REFUSED},
               {"200", 1, false, between(200, 0), REFUSED}});
}

TEST(ValueWheel, TakesNonsenseForZero) {
    expectAll({{"?", 1, false, between(0, 127), "1"},
               {"abc", 3, false, between(0, 127), "3"},
               {"12abc", 1, false, between(0, 127), "13"},
               {"99999999999999999999", 1, false, between(0, 127), "1"},
               {"   ", 1, false, between(-12, 12), "+1"},
               {"", 1, false, with(&ValueField::isNote, between(0, 127)), "C#-1"},
               {"", 1, false, with(&ValueField::isNote), "C#-1"}});
}

TEST(ValueWheel, NeverLeavesTheNotes) {
    const ValueField note = with(&ValueField::isNote);
    expectAll({{"C-1", -1, false, note, REFUSED}, {"G9", 1, false, note, REFUSED}, {"F#9", 1, false, note, "G9"}});
    const ValueField wide = with(&ValueField::isNote, between(-20, 300));
    expectAll({{"C-1", -1, false, wide, REFUSED}, {"G9", 1, false, wide, REFUSED}, {"F#9", 1, false, wide, "G9"}});
}

TEST(ValueWheel, BearsAnyNumberOfSteps) {
    expectAll(
        {{"2147483647", 273, true, between(0, 127), REFUSED}, {"-2147483648", -273, true, between(-12, 12), REFUSED}});
}

}
}
