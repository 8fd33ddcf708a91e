#include "Host/cli/check/FunctionFormats.h"

#include "Backend/functions/Functions.h"
#include "Host/cli/check/FileCheck.h"

#include <algorithm>
#include <deque>
#include <type_traits>
#include <vector>

namespace Host::Cli {

using namespace Backend;
using namespace Backend::FunctionManagement;

namespace {

constexpr int HIGHEST_DATA_BYTE = 127;
constexpr int HIGHEST_DATA_WORD = 16383;
constexpr int HIGHEST_CHANNEL = 15;
constexpr std::string_view CHANNEL = "channel";

// How the value of a parameter is judged, by the type that the function keeps it in.
template <class Value>
AttributeRule ruleOf(const char* name, bool isOptional) {
    if constexpr (std::is_same_v<Value, char>)
        return number(isOptional ? -1 : 0, name == CHANNEL ? HIGHEST_CHANNEL : HIGHEST_DATA_BYTE);
    else if constexpr (std::is_same_v<Value, short>)
        return number(0, HIGHEST_DATA_WORD);
    else if constexpr (std::is_same_v<Value, Note>)
        return NOTE;
    else if constexpr (std::is_same_v<Value, RelativeFixedValue>)
        return AMOUNT;
    else if constexpr (std::is_same_v<Value, OnOffToggle>)
        return ON_OFF_TOGGLE;
    else if constexpr (std::is_same_v<Value, NoteToggle>)
        return NOTE_TOGGLE;
    else if constexpr (std::is_same_v<Value, SelectType>)
        return SELECT_TYPE;
    else if constexpr (std::is_same_v<Value, SelectControlType>)
        return SELECT_CONTROL_TYPE;
    else {
        static_assert(std::is_same_v<Value, std::string>);
        return ANY_TEXT;
    }
}

// What a missing attribute reads as, in its text form.
template <class Owner, class Value>
std::string missingText(const Attribute<Owner, Value>& attribute) {
    if constexpr (std::is_integral_v<Value>)
        return std::to_string(attribute.missing);
    else if constexpr (std::is_base_of_v<XmlItem, Value>)
        return Value(std::string_view()).toXmlString();
    else
        return {};
}

// The formats of all functions, with what they refer to.
class FunctionFormats {
public:
    FunctionFormats() {
        std::apply([this](const auto&... rows) { (add(rows), ...); }, FUNCTION_LIST);
    }

    const ElementFormat* find(std::string_view tag) const {
        const auto found = std::find_if(m_formats.begin(), m_formats.end(),
                                        [tag](const ElementFormat& format) { return tag == format.tag; });
        return found == m_formats.end() ? nullptr : &*found;
    }

private:
    template <class Function>
    void add(const FunctionRow<Function>& row) {
        auto& attributes = m_attributes.emplace_back();
        std::apply([&](const auto&... each) { (attributes.push_back(formatOf(each)), ...); }, Function::attributes());
        ElementFormat format{.tag = row.xmlTag, .attributes = attributes};
        if constexpr (std::is_same_v<Function, Functions::LoadComputerInputPreset>)
            format.more = &FileCheck::checkComputerInputPreset;
        else if constexpr (std::is_same_v<Function, Functions::LoadControlPreset>)
            format.more = &FileCheck::checkControlPreset;
        else if constexpr (std::is_same_v<Function, Functions::LoadLayerPreset>)
            format.more = &FileCheck::checkLayerPreset;
        m_formats.push_back(format);
    }

    template <class Owner, class Value>
    AttributeFormat formatOf(const Attribute<Owner, Value>& attribute) {
        const std::string& missing = m_texts.emplace_back(missingText(attribute));
        return {attribute.name, attribute.isOptional ? Written::SOMETIMES : Written::ALWAYS, missing.c_str(),
                ruleOf<Value>(attribute.name, attribute.isOptional)};
    }

    std::deque<std::string> m_texts;
    std::deque<std::vector<AttributeFormat>> m_attributes;
    std::vector<ElementFormat> m_formats;
};

}

const ElementFormat* findFunctionFormat(std::string_view tag) {
    static const FunctionFormats formats;
    return formats.find(tag);
}

}
