// How the texts of attributes are judged: by the backend's own reading of them.
#pragma once

#include "Backend/core/xml/Attribute.h"

#include <string>

namespace Host::Cli {

struct AttributeRule;

// [any] What is wrong with a text, as "is outside 0 to 127"; empty if nothing is. missing: what the desk takes where
// the attribute is missing.
using Judge = std::string(const std::string& text, const std::string& missing, const AttributeRule& rule);

struct AttributeRule {
    Judge* judge;
    Backend::NumberRange range;  // Of numbers; of notes, -1 being no note.
};

Judge judgeNumber, judgeNothing, judgeBoolean, judgeFalseAlone, judgeKey, judgeNote, judgeAmount, judgeFraction,
    judgeNoteToggle, judgeOnOffToggle, judgeSelectType, judgeSelectControlType, judgeControlType, judgeCell,
    judgeMidiEvent;

// [any] Whether a text is a whole number of 32 bits and nothing else, but for white space around it.
bool isWholeNumber(const std::string& text);

// [any] What is wrong with the text form of a sequence.
std::string judgeSequence(const std::string& text);

}
