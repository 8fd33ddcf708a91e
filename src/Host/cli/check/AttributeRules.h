// Judges the texts of attributes by the backend's own readers.
#pragma once

#include "Backend/core/xml/Attribute.h"

#include <string>

namespace Host::Cli {

struct AttributeRule;

// [any] What is wrong with a text, such as "is outside 0 to 127"; empty if nothing is. missing: the value the desk uses
// if the attribute is missing.
using Judge = std::string(const std::string& text, const std::string& missing, const AttributeRule& rule);

struct AttributeRule {
    Judge* judge;
    Backend::NumberRange range;  // Of numbers; of notes, -1 being no note.
};

Judge judgeNumber, judgeNothing, judgeBoolean, judgeFalseAlone, judgeKey, judgeNote, judgeAmount, judgeFraction,
    judgeNoteToggle, judgeOnOffToggle, judgeSelectType, judgeSelectControlType, judgeControlType, judgeCell,
    judgeMidiEvent;

// [any] Whether a text is just a whole number of 32 bits, apart from white space around it.
bool isWholeNumber(const std::string& text);

// [any] What is wrong with the text form of a sequence.
std::string judgeSequence(const std::string& text);

}
