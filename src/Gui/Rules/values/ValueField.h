#pragma once

#include <cstdint>
#include <string_view>

namespace Gui {

// How an edit shows a value and what it accepts, according to its window's options.
struct ValueField {
    // The most characters read from a text.
    static constexpr int TEXT_LENGTH = 20;

    bool isNote = false;         // The name of a note.
    bool jumpsByTwelve = false;  // Large steps are octaves.
    bool showsZeroAsBlank = false;
    bool takesDigitsOnly = false;  // The edit accepts no sign.
    std::intptr_t min = 0;         // 0: none, unless minIsZero.
    std::intptr_t max = 0;
    bool minIsZero = false;
    bool maxIsZero = false;

    bool operator==(const ValueField&) const = default;
};

// [any] The number that a field shows: the one its text begins with, or the number of the note it names. 0 for an empty
// text and for one without a number.
std::int64_t readValue(std::string_view text, const ValueField& field);

}
