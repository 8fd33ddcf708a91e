// How the parameters of a function are stored as attributes of its element.
#pragma once

#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlItem.h"
#include "Backend/core/xml/XmlWriting.h"

#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Backend::FunctionManagement {

// One parameter: the attribute's name and the member that holds the value.
template <class Owner, class Value>
struct Attribute {
    // missingValue: what a number reads as if the attribute is missing. An optional attribute is left out of the file
    // when its value is that.
    Attribute(const char* attributeName, Value Owner::*valueMember, Value missingValue = Value(),
              bool isLeftOut = false)
        : name(attributeName), member(valueMember), missing(std::move(missingValue)), isOptional(isLeftOut) {}

    const char* name;
    Value Owner::*member;
    Value missing;
    bool isOptional;
};

// Not every compiler deduces these of an aggregate on its own.
template <class Owner, class Value, class... More>
Attribute(const char*, Value Owner::*, More...) -> Attribute<Owner, Value>;

// Values that are items read a missing attribute as an empty text. Numbers keep their low bits.
template <class Owner, class Value>
Value readAttribute(const XmlElement& element, const Attribute<Owner, Value>& attribute) {
    if constexpr (std::is_integral_v<Value>) {
        using Bits = std::make_unsigned_t<Value>;
        return static_cast<Value>(static_cast<Bits>(element.getIntAttribute(attribute.name, attribute.missing)));
    } else if constexpr (std::is_base_of_v<XmlItem, Value>) {
        const std::string text = element.getAttribute(attribute.name);
        return Value(std::string_view(text));
    } else {
        return element.getAttribute(attribute.name);
    }
}

template <class Owner, class Value>
void writeAttribute(std::ostream& stream, const Attribute<Owner, Value>& attribute, const Value& value) {
    if (attribute.isOptional && value == attribute.missing)
        return;
    stream << getAttributeText(attribute.name, value);
}

}
