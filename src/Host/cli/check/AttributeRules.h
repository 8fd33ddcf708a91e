// How the texts of attributes are judged: by the backend's own reading of them.
#pragma once

#include <cstdint>
#include <string>

namespace Host::Cli {

struct AttributeRule;

// [any] What is wrong with a text, as "is outside 0 to 127"; empty if nothing is. missing: what the desk takes where
// the attribute is missing.
using Judge = std::string(const std::string& text, const std::string& missing, const AttributeRule& rule);

struct AttributeRule {
    Judge* judge;

    // Of numbers.
    std::int32_t lowest = INT32_MIN;
    std::int32_t highest = INT32_MAX;
};

Judge judgeNumber, judgeNothing, judgeBoolean, judgeFalseAlone, judgeKey, judgeNote, judgeNoteOrNone, judgeAmount,
    judgeFraction, judgeNoteToggle, judgeOnOffToggle, judgeSelectType, judgeSelectControlType, judgeControlType,
    judgeCell, judgeMidiEvent;

constexpr AttributeRule number(std::int32_t lowest = INT32_MIN, std::int32_t highest = INT32_MAX) {
    return {judgeNumber, lowest, highest};
}

inline constexpr AttributeRule ANY_TEXT{judgeNothing};
inline constexpr AttributeRule BOOLEAN{judgeBoolean};
inline constexpr AttributeRule FALSE_ALONE{judgeFalseAlone};  // A flag that the desk writes and never looks at.
inline constexpr AttributeRule KEY{judgeKey};                 // Of the computer keyboard.
inline constexpr AttributeRule NOTE{judgeNote};
inline constexpr AttributeRule NOTE_OR_NONE{judgeNoteOrNone};  // Or nothing, for none.
inline constexpr AttributeRule AMOUNT{judgeAmount};            // +5, -5 or 5
inline constexpr AttributeRule FRACTION{judgeFraction};
inline constexpr AttributeRule NOTE_TOGGLE{judgeNoteToggle};
inline constexpr AttributeRule ON_OFF_TOGGLE{judgeOnOffToggle};
inline constexpr AttributeRule SELECT_TYPE{judgeSelectType};
inline constexpr AttributeRule SELECT_CONTROL_TYPE{judgeSelectControlType};
inline constexpr AttributeRule CONTROL_TYPE{judgeControlType};
inline constexpr AttributeRule CELL{judgeCell};
inline constexpr AttributeRule MIDI_EVENT{judgeMidiEvent};

// [any] Whether a text is a whole number of 32 bits and nothing else, but for white space around it.
bool isWholeNumber(const std::string& text);

// [any] What is wrong with the text form of a sequence.
std::string judgeSequence(const std::string& text);

}
