#include "Backend/input/ButtonConfiguration.h"

#include "Backend/core/xml/ElementWriter.h"
#include "Backend/functions/FunctionFactory.h"
#include "Backend/functions/FunctionList.h"

#include <algorithm>

using namespace Backend;
using FunctionManagement::Function;
using FunctionManagement::FUNCTION_ROW;
using FunctionManagement::Functions::NoFunction;

namespace {

// Only the first child element counts. Comments and text are children too.
std::unique_ptr<Function> readSlot(const XmlElement& element, MirelIF& mirel) {
    for (auto child = element.begin(); child != element.end(); child.next())
        if (!child.getName().empty())
            return FunctionManagement::createFunction(child, mirel);
    return nullptr;
}

ButtonFunction readEntry(const XmlElement& element, MirelIF& mirel) {
    ButtonFunction entry;
    readAttributes(element, entry);
    for (auto child = element.begin(); child != element.end(); child.next()) {
        if (child.getName() == ButtonConfiguration::DOWN_TAG && !entry.downFunction)
            entry.downFunction = readSlot(child, mirel);
        else if (child.getName() == ButtonConfiguration::UP_TAG && !entry.upFunction)
            entry.upFunction = readSlot(child, mirel);
    }
    return entry;
}

void writeSlot(const ElementWriter& entry, const char* tag, const std::unique_ptr<Function>& function) {
    if (function)
        entry.begin(tag).write(*function);
}

bool isReal(const std::unique_ptr<Function>& function) {
    return function && function->getXmlTag() != FUNCTION_ROW<NoFunction>.xmlTag;
}

void addZoneRange(std::vector<Zones::Zone>& ranges, const std::unique_ptr<Function>& function) {
    if (!function)
        return;
    const Zones::Zone range = function->getZoneRange();
    if (!range.lowNote.isNote() || !range.highNote.isNote())
        return;
    const auto known = std::find_if(ranges.begin(), ranges.end(),
                                    [&range](const Zones::Zone& candidate) { return candidate.id == range.id; });
    if (known == ranges.end())
        ranges.push_back(range);
    else
        known->widen(range);
}

}

std::string ButtonConfiguration::getDownFunctionTag(int index) const {
    return getTag(index, &ButtonFunction::downFunction);
}

std::string ButtonConfiguration::getUpFunctionTag(int index) const {
    return getTag(index, &ButtonFunction::upFunction);
}

std::string ButtonConfiguration::getTag(int index, Slot slot) const {
    const Function* function = isIndex(index) ? (m_functions[static_cast<std::size_t>(index)].*slot).get() : nullptr;
    return function ? function->getXmlTag() : FUNCTION_ROW<NoFunction>.xmlTag;
}

void ButtonConfiguration::setDownFunction(std::unique_ptr<Function> function, int index) {
    setFunction(std::move(function), index, &ButtonFunction::downFunction);
}

void ButtonConfiguration::setUpFunction(std::unique_ptr<Function> function, int index) {
    setFunction(std::move(function), index, &ButtonFunction::upFunction);
}

void ButtonConfiguration::setFunction(std::unique_ptr<Function> function, int index, Slot slot) {
    if (index == getFunctionCount())
        m_functions.emplace_back();
    if (isIndex(index))
        m_functions[static_cast<std::size_t>(index)].*slot = std::move(function);
}

bool ButtonConfiguration::getKeepSending(int index) const {
    return isIndex(index) && m_functions[static_cast<std::size_t>(index)].keepSending;
}

void ButtonConfiguration::setKeepSending(int index, bool keepSending) {
    if (isIndex(index))
        m_functions[static_cast<std::size_t>(index)].keepSending = keepSending;
}

bool ButtonConfiguration::hasFunction() const {
    return std::any_of(m_functions.begin(), m_functions.end(), [](const ButtonFunction& entry) {
        return isReal(entry.downFunction) || isReal(entry.upFunction);
    });
}

void ButtonConfiguration::addZoneRanges(std::vector<Zones::Zone>& ranges) const {
    for (const ButtonFunction& entry : m_functions) {
        addZoneRange(ranges, entry.downFunction);
        addZoneRange(ranges, entry.upFunction);
    }
}

void ButtonConfiguration::readFunctions(const XmlElement& element, MirelIF& mirel) {
    for (auto child = element.begin(); child != element.end(); child.next())
        if (child.getName() == FUNCTION_TAG)
            m_functions.push_back(readEntry(child, mirel));
}

void ButtonConfiguration::writeFunctions(const ElementWriter& button) const {
    for (const ButtonFunction& entry : m_functions) {
        const ElementWriter element = button.begin(FUNCTION_TAG, entry);
        writeSlot(element, DOWN_TAG, entry.downFunction);
        writeSlot(element, UP_TAG, entry.upFunction);
    }
}

bool ButtonConfiguration::hasSameFunctions(const ButtonConfiguration& other) const {
    if (!hasFunction() && !other.hasFunction())
        return true;
    return std::equal(
        m_functions.begin(), m_functions.end(), other.m_functions.begin(), other.m_functions.end(),
        [](const ButtonFunction& left, const ButtonFunction& right) { return left.hasSameFunctions(right); });
}
