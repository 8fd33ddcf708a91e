#include "Backend/midi/Cell.h"
#include "Backend/midi/Fraction.h"
#include "Backend/midi/TimeInterval.h"
#include "Backend/midi/TimeIntervalType.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace Backend {
namespace {

TEST(FractionTest, TextGivesAFractionInRange) {
    struct Row {
        const char* text;
        const char* fraction;
    };

    const Row rows[] = {
        {"1_1", "1/1"},   {"1/1", "1/1"},
        {"1\\1", "1/1"},  {"3", "3/1"},
        {"3_4", "3/4"},   {"0/500", "1/99"},
        {"", "1/1"},      {"x/y", "1/1"},
        {"-3/-4", "1/1"}, {"7x_8y", "7/8"},
        {"2_3/4", "2/4"}, {"2_3\\4", "2/4"},
        {" 5/ 6", "5/6"}, {"99999999999/2", "99/2"},
        {"/", "1/1"},
    };

    for (const Row& row : rows)
        EXPECT_EQ(Fraction(std::string_view(row.text)).toString(), row.fraction) << row.text;
}

TEST(FractionTest, HasAFormForXmlAndOneForDisplay) {
    EXPECT_EQ(Fraction().toXmlString(), "1_1");
    EXPECT_EQ(Fraction(3, 4).toXmlString(), "3_4");
    EXPECT_EQ(Fraction(3, 4).toString(), "3/4");
    EXPECT_EQ(Fraction(0, 100), Fraction(1, 99));
}

struct LengthRow {
    int index;
    std::int32_t ppq;
    const char* name;
};

constexpr LengthRow LENGTHS[] = {
    {1, 20, "1/64 Triplet"},  {2, 40, "1/32 Triplet"}, {3, 60, "1/32"},
    {4, 80, "1/16 Triplet"},  {5, 120, "1/16"},        {6, 160, "1/8 Triplet"},
    {7, 180, "1/16 Dotted"},  {8, 240, "1/8"},         {9, 320, "1/4 Triplet"},
    {10, 360, "1/8 Dotted"},  {11, 480, "1/4"},        {12, 640, "1/2 Triplet"},
    {13, 720, "1/4 Dotted"},  {14, 960, "1/2"},        {15, 1280, "Whole Triplet"},
    {16, 1440, "1/2 Dotted"}, {17, 1920, "Whole"},     {18, 2880, "Whole Dotted"},
    {19, 3840, "2 Whole"},    {20, 7680, "4 Whole"},   {21, 15360, "8 Whole"},
    {22, 30720, "16 Whole"},
};

TEST(TimeIntervalTest, EachLengthHasItsNameAndIndex) {
    for (const LengthRow& row : LENGTHS) {
        EXPECT_EQ(TimeInterval(row.ppq).toString(), row.name);
        EXPECT_EQ(TimeInterval(row.ppq).getIndex(), row.index) << row.name;
        EXPECT_EQ(TimeInterval(row.ppq).getNearestIndex(), row.index) << row.name;
        EXPECT_EQ(TimeInterval::fromIndex(row.index).getPpq(), row.ppq) << row.name;
    }
}

TEST(TimeIntervalTest, AnyOtherLengthIsItsNumber) {
    EXPECT_EQ(TimeInterval(500).toString(), "500");
    EXPECT_EQ(TimeInterval(500).getIndex(), 0);
    EXPECT_EQ(TimeInterval(0).toString(), "0");
    EXPECT_EQ(TimeInterval(-7).toString(), "-7");
}

TEST(TimeIntervalTest, NearestIndexRoundsUpAndEndsAtTheLongest) {
    EXPECT_EQ(TimeInterval(500).getNearestIndex(), 12);
    EXPECT_EQ(TimeInterval(20).getNearestIndex(), 1);
    EXPECT_EQ(TimeInterval(-1000).getNearestIndex(), 1);
    EXPECT_EQ(TimeInterval(21).getNearestIndex(), 2);
    EXPECT_EQ(TimeInterval(15361).getNearestIndex(), 22);
    EXPECT_EQ(TimeInterval(2000000000).getNearestIndex(), 22);
}

TEST(TimeIntervalTest, AnIndexOutsideTheTableGivesAQuarter) {
    for (const int index : {-1, 0, 23})
        EXPECT_EQ(TimeInterval::fromIndex(index).getPpq(), 480);
}

TEST(TimeIntervalTypeTest, HasTwoTexts) {
    EXPECT_EQ(TimeIntervalType().toXmlString(), "noteInterval");
    EXPECT_EQ(TimeIntervalType(TimeIntervalType::ppq).toXmlString(), "ppq");
    EXPECT_EQ(TimeIntervalType(static_cast<TimeIntervalType::Mode>(7)).toXmlString(), "noteInterval");
}

TEST(CellTest, TextGivesTheCoordinatesThatCanBeRead) {
    struct Row {
        const char* text;
        const char* cell;
    };
    const Row rows[] = {
        {"2,5", "2,5"},  {" 2 , 5 ", "2,5"}, {"3", "3,-1"},    {"", "-1,-1"},      {",4", "-1,4"},
        {"x,4", "-1,4"}, {"2,", "2,-1"},     {"2,5,7", "2,5"}, {"-3,-4", "-3,-4"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Cell(std::string_view(row.text)).toXmlString(), row.cell) << '"' << row.text << '"';
}

TEST(CellTest, OneNumberDecidesEqualityOrderAndHash) {
    EXPECT_EQ(Cell(2, 5), Cell(2, 5));
    EXPECT_NE(Cell(2, 5), Cell(5, 2));
    EXPECT_EQ(Cell(0, 1 << 16), Cell(1, 0));
    EXPECT_LT(Cell(1, 9), Cell(2, 0));
    std::unordered_set<Cell> cells = {Cell(1, 2), Cell(1, 2), Cell(2, 1)};
    EXPECT_EQ(cells.size(), 2u);
}

}
}
