#include "Gui/Rules/values/ValuePicker.h"

#include "Backend/midi/Note.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace Gui {
namespace {

ValueField between(std::intptr_t min, std::intptr_t max) {
    ValueField field;
    field.min = min;
    field.max = max;
    return field;
}

TEST(ValuePicker, ListsAllNotesWithTheirNumbers) {
    ValueField field;
    field.isNote = true;
    const auto picker = makeValuePicker("C4", field);
    ASSERT_TRUE(picker);
    ASSERT_EQ(picker->choices.size(), 128u);
    EXPECT_EQ(picker->choices[0], (ValuePicker::Choice{"C-1 (0)", "C-1"}));
    EXPECT_EQ(picker->choices[60], (ValuePicker::Choice{"C4 (60)", "C4"}));
    EXPECT_EQ(picker->choices[127], (ValuePicker::Choice{"G9 (127)", "G9"}));
    for (std::size_t number = 0; number < picker->choices.size(); ++number)
        EXPECT_EQ(Backend::Note(picker->choices[number].text).getNumber(), number);
    EXPECT_EQ(picker->current, 60);
}

TEST(ValuePicker, ListsNotesWhateverTheLimits) {
    ValueField field = between(-5, 2000);
    field.isNote = true;
    EXPECT_EQ(makeValuePicker("", field)->choices.size(), 128u);
}

TEST(ValuePicker, MarksNoNoteForNone) {
    ValueField field;
    field.isNote = true;
    for (const char* text : {"", " "})
        EXPECT_EQ(makeValuePicker(text, field)->current, ValuePicker::NOTHING);
    EXPECT_EQ(makeValuePicker("C-1", field)->current, 0);
}

TEST(ValuePicker, MarksNoNoteBeyondTheLast) {
    ValueField field;
    field.isNote = true;
    EXPECT_EQ(makeValuePicker("200", field)->current, ValuePicker::NOTHING);
}

TEST(ValuePicker, ListsTheValuesWithinTheLimits) {
    const auto picker = makeValuePicker("18", between(16, 20));
    ASSERT_TRUE(picker);
    ASSERT_EQ(picker->choices.size(), 5u);
    EXPECT_EQ(picker->choices.front(), (ValuePicker::Choice{"16", "16"}));
    EXPECT_EQ(picker->choices.back(), (ValuePicker::Choice{"20", "20"}));
    EXPECT_EQ(picker->current, 2);
}

TEST(ValuePicker, MarksNothingOutsideTheLimits) {
    EXPECT_EQ(makeValuePicker("15", between(16, 20))->current, ValuePicker::NOTHING);
    EXPECT_EQ(makeValuePicker("21", between(16, 20))->current, ValuePicker::NOTHING);
    EXPECT_EQ(makeValuePicker("?", between(16, 20))->current, ValuePicker::NOTHING);
}

TEST(ValuePicker, StartsAtOneWhereZeroIsBlank) {
    ValueField field = between(0, 127);
    EXPECT_EQ(makeValuePicker("", field)->choices.front().text, "0");
    field.showsZeroAsBlank = true;
    EXPECT_EQ(makeValuePicker("", field)->choices.front().text, "1");
    EXPECT_EQ(makeValuePicker("", field)->choices.size(), 127u);
    EXPECT_EQ(makeValuePicker("", field)->current, ValuePicker::NOTHING);
    field.min = 3;
    EXPECT_EQ(makeValuePicker("", field)->choices.front().text, "3");
}

struct Limits {
    std::intptr_t min;
    std::intptr_t max;
    bool minIsZero;
    bool maxIsZero;
    bool hasList;
};

TEST(ValuePicker, HasNoListWithoutLimitsOrForTooMany) {
    constexpr Limits ROWS[] = {
        {1, 500, false, false, true},    // 499 apart.
        {0, 500, false, false, false},   // 500 apart.
        {0, 499, false, false, true},    //
        {1, 501, false, false, false},   //
        {-1, 10, false, false, false},   // Below 0.
        {-12, 12, false, false, false},  //
        {INTPTR_MIN, 10, false, false, false},
        {1, INTPTR_MAX, false, false, false},
        {-5, 0, false, false, false},  //
        {0, 0, false, false, false},   // No limits.
        {0, -1, false, false, false},  //
        {5, 0, false, false, false},   //
        {0, 1, false, false, true},    //
        {7, 5, false, false, false},   // Nothing between them.
        {1, 500, true, false, false},  // The limits of 0 win.
        {-5, 10, true, false, true},   //
        {1, 10, false, true, false},   //
    };
    for (const Limits& row : ROWS) {
        ValueField field = between(row.min, row.max);
        field.minIsZero = row.minIsZero;
        field.maxIsZero = row.maxIsZero;
        EXPECT_EQ(makeValuePicker("1", field).has_value(), row.hasList) << row.min << " to " << row.max;
    }
}

}
}
