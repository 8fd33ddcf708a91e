#include "Host/cli/check/AttributeRules.h"

#include "Backend/core/xml/Text.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/input/Key.h"
#include "Backend/input/controls/ControlType.h"
#include "Backend/midi/Cell.h"
#include "Backend/midi/Fraction.h"
#include "Backend/midi/MidiMessage.h"
#include "Backend/midi/Note.h"

#include <algorithm>
#include <string_view>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MidiMessage;

namespace {

constexpr int GRID_SIZE = 16;
constexpr int LOWEST_OCTAVE = -1;
constexpr int HIGHEST_OCTAVE = 9;
constexpr std::int32_t NO_NOTE = -1;
constexpr std::string_view DIGITS = "0123456789";

std::string isRead(const std::string& value) {
    return "is read as \"" + value + "\"";
}

std::string isTaken(const std::string& what, const std::string& missing) {
    return "is not a " + what + ", so \"" + missing + "\" is used";
}

std::string isOutside(const NumberRange& range) {
    if (range.highest == INT32_MAX)
        return "is below " + std::to_string(range.lowest);
    return "is outside " + std::to_string(range.lowest) + " to " + std::to_string(range.highest);
}

std::string withoutBlanks(std::string text) {
    std::erase_if(text, [](char character) { return character == ' ' || character == '\t'; });
    return text;
}

// An item must write exactly what it was read from.
template <class Item>
std::string judgeItem(const std::string& text) {
    const std::string read = Item(std::string_view(text)).toXmlString();
    return read == Text::trim(text) ? std::string() : isRead(read);
}

// "G#3", or a number.
bool isNoteText(std::string_view text) {
    if (text.find_first_not_of(DIGITS) == std::string_view::npos)
        return !text.empty() && Text::readInteger(text, Note::NONE) < 128;
    if (std::string_view("ABCDEFGabcdefg").find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    if (text.starts_with('#') || text.starts_with('b'))
        text.remove_prefix(1);
    if (text.empty())
        return true;
    const std::int32_t octave = Text::readInteger(text, LOWEST_OCTAVE - 1);
    return isWholeNumber(std::string(text)) && octave >= LOWEST_OCTAVE && octave <= HIGHEST_OCTAVE;
}

std::string judgeCellInGrid(const Cell& cell) {
    const bool isInGrid =
        cell.getRow() >= 0 && cell.getRow() < GRID_SIZE && cell.getColumn() >= 0 && cell.getColumn() < GRID_SIZE;
    return isInGrid ? std::string() : "is not a cell from 0,0 to 15,15";
}

// One offset of an item; its letter decides how it is read.
bool isSequencePart(std::string_view part) {
    if (part.empty() || part == "-")
        return true;
    const bool hasLetter = std::string_view("VvLl").find(part.front()) != std::string_view::npos;
    return isWholeNumber(std::string(hasLetter ? part.substr(1) : part));
}

std::string judgeSequenceItem(std::string_view item) {
    constexpr int MAX_PARTS = 3;
    for (int parts = 0; !item.empty(); ++parts) {
        if (parts == MAX_PARTS)
            return "holds more than three offsets in one item; the rest are ignored";
        const std::size_t end = std::min(item.find(' '), item.size());
        const std::string_view part = Text::trim(item.substr(0, end));
        if (!isSequencePart(part))
            return "holds \"" + std::string(part) + "\", which can't be read";
        item.remove_prefix(std::min(end + 1, item.size()));
    }
    return {};
}

}

std::string judgeNothing(const std::string&, const std::string&, const AttributeRule&) {
    return {};
}

std::string judgeBoolean(const std::string& text, const std::string& missing, const AttributeRule&) {
    return Text::readBool(text) ? std::string() : "is neither true nor false, so \"" + missing + "\" is used";
}

std::string judgeFalseAlone(const std::string& text, const std::string&, const AttributeRule&) {
    return Text::readBool(text) == false ? std::string() : "has no effect; the desk reads it as false";
}

// A key without a name is written as "Unknown", and one of the built-in keys has none.
std::string judgeKey(const std::string& text, const std::string&, const AttributeRule&) {
    const Key key{std::string_view(text)};
    if (key.getCode() != Key::NO_KEY || text.empty() || text == key.toXmlString())
        return {};
    return "is not the name of a key, so no key triggers it";
}

std::string judgeNote(const std::string& text, const std::string& missing, const AttributeRule& rule) {
    const Note note{std::string_view(text)};
    if (text.empty())
        return rule.range.contains(NO_NOTE) ? std::string() : isTaken("note", missing);
    if (isNoteText(text) && note.isNote())
        return {};
    return "is not a note from C-1 to G9; it " + isRead(note.toXmlString());
}

std::string judgeAmount(const std::string& text, const std::string&, const AttributeRule&) {
    return Text::trim(text).empty() || isWholeNumber(text) ? std::string() : "is not an amount such as +5, -5 or 5";
}

std::string judgeFraction(const std::string& text, const std::string&, const AttributeRule&) {
    const std::string read = Fraction(std::string_view(text)).toXmlString();
    std::string plain = withoutBlanks(text);
    std::replace_if(
        plain.begin(), plain.end(), [](char character) { return character == '/' || character == '\\'; }, '_');
    return read == plain || read == plain + "_1" ? std::string() : isRead(read);
}

std::string judgeCell(const std::string& text, const std::string&, const AttributeRule&) {
    const Cell cell{std::string_view(text)};
    std::string problem = judgeCellInGrid(cell);
    if (!problem.empty())
        return problem;
    return cell.toXmlString() == withoutBlanks(text) ? std::string() : isRead(cell.toXmlString());
}

std::string judgeSelectType(const std::string& text, const std::string& missing, const AttributeRule&) {
    const SelectType type{std::string_view(text)};
    if (type.getMode() != SelectType::SPECIFIC)
        return {};
    return judgeNumber(text, missing, {judgeNumber, {0, INT32_MAX}});
}

std::string judgeSelectControlType(const std::string& text, const std::string& missing, const AttributeRule& rule) {
    const SelectControlType type{std::string_view(text)};
    if (type.getMode() != SelectControlType::SPECIFIC || text == Cell().toXmlString())
        return {};  // The desk also writes a cell that nobody has chosen yet.
    return judgeCell(text, missing, rule);
}

std::string judgeMidiEvent(const std::string& text, const std::string&, const AttributeRule&) {
    const MidiMessage event(text);
    if (!event.isValid())
        return "is not a MIDI event";
    if (event.getD1() < 0)
        return "has a number outside 0 to 127";
    return event.toXmlString() == text ? std::string() : isRead(event.toXmlString());
}

std::string judgeNoteToggle(const std::string& text, const std::string&, const AttributeRule&) {
    return judgeItem<NoteToggle>(text);
}

std::string judgeOnOffToggle(const std::string& text, const std::string&, const AttributeRule&) {
    return judgeItem<OnOffToggle>(text);
}

std::string judgeControlType(const std::string& text, const std::string&, const AttributeRule&) {
    return judgeItem<Controls::ControlType>(text);
}

bool isWholeNumber(const std::string& text) {
    std::string_view rest = Text::trim(text);
    if (!Text::readInteger(rest))
        return false;
    if (rest.front() == '+' || rest.front() == '-')
        rest.remove_prefix(1);
    return rest.find_first_not_of(DIGITS) == std::string_view::npos;
}

std::string judgeNumber(const std::string& text, const std::string& missing, const AttributeRule& rule) {
    const auto value = Text::readInteger(text);
    if (!value)
        return isTaken("number of 32 bits", missing);
    if (!rule.range.contains(*value))
        return isOutside(rule.range);
    return isWholeNumber(text) ? std::string() : isRead(std::to_string(*value));
}

std::string judgeSequence(const std::string& text) {
    std::string_view rest = Text::trim(text);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of(",|"), rest.size());
        std::string problem = judgeSequenceItem(rest.substr(0, end));
        if (!problem.empty())
            return problem;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return {};
}

}
