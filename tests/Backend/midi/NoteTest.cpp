#include "Backend/midi/Note.h"

#include "Backend/midi/NoteRange.h"

#include <gtest/gtest.h>

#include <string>

namespace Backend {
namespace {

int numberOf(const char* text) {
    return Note(std::string_view(text)).getNumber();
}

TEST(NoteTest, EveryNoteReadsBackFromItsName) {
    for (int number = 0; number < 128; ++number) {
        const Note note(static_cast<std::uint8_t>(number));
        EXPECT_EQ(Note(note.toXmlString()), note) << note.toXmlString();
    }
}

TEST(NoteTest, NamesHaveTheirOctave) {
    EXPECT_EQ(getNoteName(0, true), "C-1");
    EXPECT_EQ(getNoteName(60, true), "C4");
    EXPECT_EQ(getNoteName(68, true), "G#4");
    EXPECT_EQ(getNoteName(127, true), "G9");
    const char* const pitches[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    for (int number = 0; number < 128; ++number)
        EXPECT_EQ(Note(static_cast<std::uint8_t>(number)).getNameWithoutOctave(), pitches[number % 12]);
}

TEST(NoteTest, NoNoteHasAnEmptyText) {
    EXPECT_EQ(Note().getNumber(), 255);
    EXPECT_EQ(Note().toXmlString(), "");
    EXPECT_EQ(Note(std::uint8_t{128}).toXmlString(), "");
    EXPECT_EQ(numberOf(""), 255);
}

TEST(NoteTest, TextGivesSomeNote) {
    struct Row {
        const char* text;
        int number;
    };
    const Row rows[] = {
        {"C-1", 0},           {"G9", 127}, {"C", 60},     {"Bb-1", 10}, {"c4", 60}, {"H2", 36},   {"A", 69},
        {"a#3", 58},          {"Db4", 61}, {"E#", 65},    {"68", 68},   {"0", 0},   {"127", 127}, {"300", 44},
        {"99999999999", 60},  {"C4x", 60}, {"Cx", 60},    {"abc", 68},  {" ", 60},  {"#4", 60},   {"Cb-1", 255},
        {"C99999999999", 60}, {"C+2", 36}, {"12abc", 12}, {"-5", 72},   {"C21", 8},
    };
    for (const Row& row : rows)
        EXPECT_EQ(numberOf(row.text), row.number) << '"' << row.text << '"';
}

TEST(NoteTest, AMegabyteOfTextIsReadLikeAnyOther) {
    EXPECT_EQ(Note(std::string(1 << 20, 'C')).getNumber(), 60);
    EXPECT_EQ(Note(std::string(1 << 20, '7')).getNumber(), 60);
}

TEST(NoteRangeTest, FoldsByWholeOctaves) {
    EXPECT_EQ(foldIntoNoteRange(-1), 11);
    EXPECT_EQ(foldIntoNoteRange(-12), 0);
    EXPECT_EQ(foldIntoNoteRange(-13), 11);
    EXPECT_EQ(foldIntoNoteRange(128), 116);
    EXPECT_EQ(foldIntoNoteRange(139), 127);
    EXPECT_EQ(foldIntoNoteRange(140), 116);
    EXPECT_EQ(foldIntoNoteRange(132), 120);

    for (const std::int32_t far : {INT32_MIN, INT32_MIN + 7, INT32_MAX, INT32_MAX - 7}) {
        const std::int32_t folded = foldIntoNoteRange(far);
        EXPECT_GE(folded, 0);
        EXPECT_LE(folded, 127);
        EXPECT_EQ((std::int64_t{far} - folded) % 12, 0);
    }

    for (std::int32_t note = 0; note < 128; ++note)
        EXPECT_EQ(foldIntoNoteRange(note), note);
}

}
}
