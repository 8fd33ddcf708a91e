// What is known about the attributes of an element, from the rows by which the backend reads and writes them.
#pragma once

#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/input/Key.h"
#include "Backend/input/controls/ControlType.h"
#include "Backend/midi/Cell.h"
#include "Backend/midi/Fraction.h"
#include "Backend/midi/MidiMessage.h"
#include "Backend/midi/Note.h"
#include "Host/cli/check/AttributeRules.h"

#include <string>
#include <type_traits>
#include <vector>

namespace Host::Cli {

struct AttributeFormat {
    const char* name;
    Backend::Written written;  // One that is always written and that isn't there takes a default.
    std::string missing;       // What the desk takes if it isn't there.
    AttributeRule rule;
};

using AttributeFormats = const std::vector<AttributeFormat>&();

// How a value is judged, by its type. Every stored type must be listed here.
template <class Value>
inline constexpr Judge* JUDGE_OF = nullptr;
template <>
inline constexpr Judge* JUDGE_OF<bool> = judgeBoolean;
template <>
inline constexpr Judge* JUDGE_OF<char> = judgeNumber;
template <>
inline constexpr Judge* JUDGE_OF<short> = judgeNumber;
template <>
inline constexpr Judge* JUDGE_OF<std::int32_t> = judgeNumber;
template <>
inline constexpr Judge* JUDGE_OF<std::string> = judgeNothing;
template <>
inline constexpr Judge* JUDGE_OF<Backend::Note> = judgeNote;
template <>
inline constexpr Judge* JUDGE_OF<Backend::Fraction> = judgeFraction;
template <>
inline constexpr Judge* JUDGE_OF<Backend::MidiEngine::MidiMessage> = judgeMidiEvent;
template <>
inline constexpr Judge* JUDGE_OF<Backend::Controls::ControlType> = judgeControlType;
template <>
inline constexpr Judge* JUDGE_OF<Cell> = judgeCell;
template <>
inline constexpr Judge* JUDGE_OF<Key> = judgeKey;
template <>
inline constexpr Judge* JUDGE_OF<NoteToggle> = judgeNoteToggle;
template <>
inline constexpr Judge* JUDGE_OF<OnOffToggle> = judgeOnOffToggle;
template <>
inline constexpr Judge* JUDGE_OF<RelativeFixedValue> = judgeAmount;
template <>
inline constexpr Judge* JUDGE_OF<SelectControlType> = judgeSelectControlType;
template <>
inline constexpr Judge* JUDGE_OF<SelectType> = judgeSelectType;

// The text form of what a missing attribute reads as. An invalid key or event has no text.
template <class Owner, class Value>
std::string missingText(const Backend::Attribute<Owner, Value>& row) {
    if constexpr (std::is_same_v<Value, bool>)
        return row.missing ? "true" : "false";
    else if constexpr (std::is_integral_v<Value>)
        return std::to_string(row.missing);
    else if constexpr (std::is_same_v<Value, std::string>)
        return row.missing;
    else if constexpr (std::is_same_v<Value, Key> || std::is_same_v<Value, Backend::MidiEngine::MidiMessage>)
        return {};
    else
        return row.missing.toXmlString();
}

template <class Owner, class Value>
AttributeFormat formatOf(const Backend::Attribute<Owner, Value>& row) {
    static_assert(JUDGE_OF<Value> != nullptr);
    // A flag that can only be false is one that the desk writes but never reads.
    const bool isFalseAlone = std::is_same_v<Value, bool> && row.range.highest == 0;
    return {row.name, row.written, missingText(row), {isFalseAlone ? judgeFalseAlone : JUDGE_OF<Value>, row.range}};
}

// [any] The attributes of the class that reads an element.
template <class Owner>
const std::vector<AttributeFormat>& attributesOf() {
    static const std::vector<AttributeFormat> formats = [] {
        std::vector<AttributeFormat> rows;
        Backend::forEachAttribute<Owner>([&rows](const auto& row) { rows.push_back(formatOf(row)); });
        return rows;
    }();
    return formats;
}

// [any] No attributes.
inline const std::vector<AttributeFormat>& noAttributes() {
    static const std::vector<AttributeFormat> none;
    return none;
}

}
