// How the values of a class are stored as the attributes of its element. A class states this once, in rows: its static
// attributes() returns a tuple of Attribute, in the order in which they are written. Reading, writing, equality and
// `mirel check` all work from these rows.
#pragma once

#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlItem.h"
#include "Backend/core/xml/XmlWriting.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace Backend {

// The numbers that make sense for an attribute. Reading also accepts others, which `mirel check` reports.
struct NumberRange {
    std::int32_t lowest = INT32_MIN;
    std::int32_t highest = INT32_MAX;

    constexpr bool contains(std::int32_t number) const { return number >= lowest && number <= highest; }
};

inline constexpr NumberRange ANY_NUMBER{};

// When an attribute is present in its element.
enum class Written {
    ALWAYS,
    WITH_CHILDREN,   // Always; but files have elements without children that lack it, such as an empty program.
    SOMETIMES,       // Always; but elements that come from elsewhere, such as an import, lack it.
    UNLESS_MISSING,  // Unless its value is that of a missing attribute.
};

// Numbers must state their range, so that none is forgotten.
template <class Value>
concept StatesRange = std::is_integral_v<Value> && !std::is_same_v<Value, bool>;

// One value: the attribute's name and the member that holds it.
template <class Owner, class Value>
struct Attribute {
    using Reader = Value(const std::string& text);

    // missing: the value if the attribute is missing, or can't be read as a flag or a number.
    Attribute(const char* attributeName, Value Owner::*valueMember, std::type_identity_t<Value> missingValue,
              NumberRange numbers, Written when = Written::ALWAYS)
        : name(attributeName), member(valueMember), missing(std::move(missingValue)), range(numbers), written(when) {}

    // A missing text or item reads as an empty one does unless missing says otherwise.
    Attribute(const char* attributeName, Value Owner::*valueMember,
              std::type_identity_t<Value> missingValue = Value(std::string()),
              Written when = Written::ALWAYS) requires(!StatesRange<Value>)
        : Attribute(attributeName, valueMember, std::move(missingValue), ANY_NUMBER, when) {}

    // An item that is not read by its own rule. A missing attribute reads as an empty text.
    Attribute(const char* attributeName, Value Owner::*valueMember,
              Reader* itemReader) requires(std::is_base_of_v<XmlItem, Value>)
        : Attribute(attributeName, valueMember, itemReader(std::string())) {
        reader = itemReader;
    }

    const char* name;
    Value Owner::*member;
    Value missing;
    NumberRange range;  // Of numbers; of notes, -1 being no note; of flags, 0 and 1.
    Written written;
    Reader* reader = nullptr;
};

// Flags take the missing value for any text that is neither true nor false. Numbers keep their low bits.
template <class Owner, class Value>
Value readAttribute(const XmlElement& element, const Attribute<Owner, Value>& attribute) {
    if constexpr (std::is_same_v<Value, bool>) {
        return element.getBoolAttribute(attribute.name, attribute.missing);
    } else if constexpr (std::is_integral_v<Value>) {
        using Bits = std::make_unsigned_t<Value>;
        return static_cast<Value>(static_cast<Bits>(element.getIntAttribute(attribute.name, attribute.missing)));
    } else {
        const std::string text = element.getAttribute(attribute.name);
        if (attribute.reader)
            return attribute.reader(text);
        return text.empty() ? attribute.missing : Value(text);
    }
}

template <class Owner, class Value>
void writeAttribute(std::ostream& stream, const Attribute<Owner, Value>& attribute, const Value& value) {
    if (attribute.written != Written::UNLESS_MISSING || !(value == attribute.missing))
        stream << getAttributeText(attribute.name, value);
}

// Calls action with each row of a class, in order.
template <class Owner, class Action>
void forEachAttribute(Action action) {
    std::apply([&](const auto&... rows) { (action(rows), ...); }, Owner::attributes());
}

// Reads all values from the owner's element.
template <class Owner>
void readAttributes(const XmlElement& element, Owner& owner) {
    forEachAttribute<Owner>([&](const auto& row) { owner.*row.member = readAttribute(element, row); });
}

template <class Owner>
void writeAttributes(std::ostream& stream, const Owner& owner) {
    forEachAttribute<Owner>([&](const auto& row) { writeAttribute(stream, row, owner.*row.member); });
}

template <class Owner>
bool haveEqualAttributes(const Owner& left, const Owner& right) {
    bool equal = true;
    forEachAttribute<Owner>([&](const auto& row) { equal = equal && left.*row.member == right.*row.member; });
    return equal;
}

}
