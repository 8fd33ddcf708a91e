#include "Host/cli/check/FileCheck.h"

#include "Backend/core/files/BankFile.h"
#include "Backend/core/files/PresetFolder.h"
#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/FunctionList.h"
#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/controls/ControlManager.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Backend/midi/sequences/SequencePresetManager.h"
#include "Host/cli/check/BankLines.h"
#include "Host/cli/check/FileFormats.h"
#include "Host/cli/check/FunctionFormats.h"
#include "Platform/xml/XmlReader.h"

#include <algorithm>
#include <unordered_map>

namespace Host::Cli {

using namespace Backend;
using Platform::XmlNode;

namespace {

constexpr const char* PRESET = "preset";

// The element as the backend reads it.
XmlElement asRead(const XmlNode& node) {
    return XmlElement(std::shared_ptr<const XmlNode>(std::shared_ptr<const XmlNode>(), &node));
}

bool isElement(const XmlNode& node) {
    return !node.name.empty();
}

bool hasElements(const XmlNode& node) {
    return std::any_of(node.children.begin(), node.children.end(), isElement);
}

const std::string* findAttribute(const XmlNode& element, std::string_view name) {
    for (const auto& [attributeName, value] : element.attributes)
        if (attributeName == name)
            return &value;
    return nullptr;
}

// In quotes, shortened if it is too long for a line.
std::string quote(std::string_view text) {
    constexpr std::size_t MAX_LENGTH = 60;
    if (text.size() <= MAX_LENGTH)
        return "\"" + std::string(text) + "\"";
    std::size_t length = MAX_LENGTH;
    while (length > 0 && Text::isInsideCharacter(text[length]))
        --length;  // Not in the middle of a character.
    return "\"" + std::string(text.substr(0, length)) + "...\"";
}

const ElementFormat* findChild(const ElementFormat& format, std::string_view tag) {
    if (format.holdsFunction)
        return findFunctionFormat(tag);
    for (const ChildFormat& child : format.children)
        if (tag == child.element->tag)
            return child.element;
    return nullptr;
}

Counts countsOf(const ElementFormat& format, const ElementFormat& child) {
    for (const ChildFormat& row : format.children)
        if (row.element == &child)
            return row.counts;
    return Counts::ALL;
}

// Whether the desk goes on looking for a function in a later element of this kind.
bool lacksFunction(const XmlNode& element, const ElementFormat& format) {
    if (!format.holdsFunction)
        return false;
    const auto first = std::find_if(element.children.begin(), element.children.end(), isElement);
    constexpr std::string_view NO_FUNCTION =
        FunctionManagement::FUNCTION_ROW<FunctionManagement::Functions::NoFunction>.xmlTag;
    return first == element.children.end() || first->name == NO_FUNCTION || !findFunctionFormat(first->name);
}

bool isExpected(Written written, const XmlNode& element) {
    return written == Written::ALWAYS || (written == Written::WITH_CHILDREN && hasElements(element));
}

}

std::string FileCheck::run() {
    const auto root = Platform::readXmlWithLines(m_content);
    if (!root)
        return "is not well-formed XML";
    const ElementFormat* format = findFileFormat(root->name);
    if (!format)
        return "is not a program, bank, preset or sequence but an element " + quote(root->name);
    checkElement(*root, *format);
    std::stable_sort(m_complaints.begin(), m_complaints.end(),
                     [](const Complaint& left, const Complaint& right) { return left.line < right.line; });
    return {};
}

// A text from the file may hold line ends, but a complaint is one line.
void FileCheck::complain(const XmlNode& element, const std::string& text) {
    std::string line = text;
    std::replace_if(
        line.begin(), line.end(), [](char character) { return static_cast<unsigned char>(character) < ' '; }, ' ');
    m_complaints.push_back({element.line, std::move(line)});
}

void FileCheck::checkElement(const XmlNode& element, const ElementFormat& format) {
    checkAttributes(element, format);
    checkMissing(element, format);
    if (format.more)
        (this->*format.more)(element);
    checkChildren(element, format);
}

void FileCheck::checkAttributes(const XmlNode& element, const ElementFormat& format) {
    const auto& attributes = format.attributes();
    for (const auto& [name, value] : element.attributes) {
        const auto known = std::find_if(attributes.begin(), attributes.end(),
                                        [&name = name](const AttributeFormat& row) { return name == row.name; });
        if (known == attributes.end()) {
            complain(element, "unknown attribute " + quote(name) + " of " + element.name + " is ignored");
            continue;
        }
        const std::string problem = known->rule.judge(value, known->missing, known->rule);
        if (problem.empty())
            continue;
        std::string text = name;
        text.append("=").append(quote(value)).append(" of ").append(element.name).append(" ").append(problem);
        complain(element, text);
    }
}

void FileCheck::checkMissing(const XmlNode& element, const ElementFormat& format) {
    for (const AttributeFormat& row : format.attributes())
        if (isExpected(row.written, element) && !findAttribute(element, row.name))
            complain(element, element.name + " lacks " + row.name + ", so " + quote(row.missing) + " is used");
    for (const ChildFormat& row : format.children) {
        const auto isThis = [&row](const XmlNode& child) { return child.name == row.element->tag; };
        if (isExpected(row.written, element) && std::none_of(element.children.begin(), element.children.end(), isThis))
            complain(element, element.name + " lacks " + row.element->tag + ", which counts as empty");
    }
}

void FileCheck::checkChildren(const XmlNode& element, const ElementFormat& format) {
    std::unordered_map<const ElementFormat*, int> firstLines;
    std::unordered_map<std::int64_t, int> ids;
    bool isOver = false;  // The child that counts was found; the rest are ignored.
    for (const XmlNode& child : element.children) {
        if (!isElement(child)) {
            if (!child.text.empty() && !format.holdsText)
                complain(element, "text in " + element.name + " is ignored: " + quote(Text::trim(child.text)));
            continue;
        }
        const ElementFormat* childFormat = findChild(format, child.name);
        if (!childFormat)
            complain(child, "unknown element " + quote(child.name) + " in " + element.name +
                                (format.holdsText ? "" : " is ignored"));
        else if (isOver)
            complain(child, child.name + " is ignored because " + element.name + " holds another element before it");
        isOver = isOver || (format.firstChildCounts && (childFormat || format.holdsFunction));
        if (!childFormat)
            continue;
        const Counts counts = countsOf(format, *childFormat);
        if (counts != Counts::ALL && !lacksFunction(child, *childFormat)) {
            const auto [first, isNew] = firstLines.try_emplace(childFormat, child.line);
            if (!isNew)
                complain(child, "there is a " + child.name + " on line " + std::to_string(first->second) +
                                    " already; the " + (counts == Counts::FIRST ? "first" : "last") + " one counts");
        }
        if (childFormat->identity) {
            const std::string* id = findAttribute(child, childFormat->attributes().front().name);
            const auto [first, isNew] = ids.try_emplace(childFormat->identity(id ? *id : std::string()), child.line);
            if (!isNew)
                complain(child, child.name + " " + quote(id ? *id : std::string()) + " replaces the one on line " +
                                    std::to_string(first->second));
            first->second = child.line;
        }
        checkElement(child, *childFormat);
    }
}

void FileCheck::checkPreset(const XmlNode& element, const char* kind, const char* folder, const char* extension) {
    const std::string name(Text::trim(asRead(element).getAttribute(PRESET)));
    if (!name.empty() && !m_presets.contains(folder, name, extension))
        complain(element, std::string("there is no ") + kind + " preset " + quote(name));
}

void FileCheck::checkComputerInputPreset(const XmlNode& element) {
    checkPreset(element, "computer input", ComputerInput::ComputerInputManager::PRESET_FOLDER, PresetFolder::EXTENSION);
}

void FileCheck::checkControlPreset(const XmlNode& element) {
    checkPreset(element, "control", Controls::ControlManager::PRESET_FOLDER, PresetFolder::EXTENSION);
}

void FileCheck::checkLayerPreset(const XmlNode& element) {
    checkPreset(element, "layer", Layers::LayerManager::PRESET_FOLDER, PresetFolder::EXTENSION);
}

void FileCheck::checkKeysOfProgram(const XmlNode& element) {
    checkComputerInputPreset(element);
    const std::string preset(Text::trim(asRead(element).getAttribute(PRESET)));
    const auto child = std::find_if(element.children.begin(), element.children.end(), isElement);
    if (!preset.empty() && child != element.children.end())
        complain(*child, "the keys are ignored because those of the preset " + quote(preset) + " are used");
}

void FileCheck::checkRangeOfControl(const XmlNode& element) {
    const Controls::Control control(asRead(element));
    const auto check = [&](const char* name, std::int32_t value) {
        const std::int32_t lowest = std::min(control.min, control.max);
        const std::int32_t highest = std::max(control.min, control.max);
        if (value < lowest || value > highest)
            complain(element, std::string(name) + "=\"" + std::to_string(value) + "\" of Control is outside its own " +
                                  std::to_string(lowest) + " to " + std::to_string(highest));
    };
    check("value", control.value);
    if (control.release != Controls::Control::STAYS)
        check("release", control.release);
}

void FileCheck::checkSequenceSetting(const XmlNode& element) {
    using SequenceManagement::Sequence;
    using SequenceManagement::SequencePresetManager;
    checkPreset(element, "sequence", SequencePresetManager::FOLDER, SequencePresetManager::EXTENSION);
    const std::string preset(Text::trim(asRead(element).getAttribute(PRESET)));
    const auto own = std::find_if(element.children.begin(), element.children.end(),
                                  [](const XmlNode& child) { return child.name == Sequence::TAG; });
    if (!preset.empty() && own != element.children.end())
        complain(*own, "the sequence is ignored because that of the preset " + quote(preset) + " is used");
}

void FileCheck::checkSequence(const XmlNode& element) {
    const std::string problem = judgeSequence(asRead(element).getText());
    if (!problem.empty())
        complain(element, "the sequence " + problem);
}

void FileCheck::checkFirstChildIsProgram(const XmlNode& element) {
    const auto program = std::find_if(element.children.begin(), element.children.end(),
                                      [](const XmlNode& child) { return child.name == BankFile::PROGRAM_TAG; });
    if (program != element.children.begin() && program != element.children.end())
        complain(*program, "the program is ignored because something precedes it");
}

void FileCheck::checkLinesOfBank(const XmlNode&) {
    Complaints complaints = checkBankLines(m_content);
    std::move(complaints.begin(), complaints.end(), std::back_inserter(m_complaints));
}

}
