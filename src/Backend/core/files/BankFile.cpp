#include "Backend/core/files/BankFile.h"

#include "Backend/core/files/Program.h"
#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlWriting.h"
#include "Platform/Files.h"
#include "Platform/xml/XmlReader.h"
#include "Platform/xml/XmlText.h"

#include <algorithm>

namespace Backend::BankFile {

namespace {

constexpr std::string_view PROGRAM_START = "<Program ";
constexpr std::string_view PROGRAM_START_OF_LINE = "<Program";
constexpr std::string_view PROGRAM_END = "</Program>";
constexpr std::string_view BANK_END = "</Bank>";
constexpr std::string_view EMPTY_PROGRAM = "<Program name=\"Empty\">\n</Program>\n";

// Gives added text its own lines, even if the bank's last line has no end.
void addLines(std::string& bank, std::string_view lines) {
    const bool isLineOpen = !bank.empty() && bank.back() != '\n';
    bank += Platform::Files::withSystemLineEnds(isLineOpen ? "\n" + std::string(lines) : lines);
}

// Removes the first line, with its line end, from the text.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
    text.remove_prefix(line.size());
    return line;
}

bool contains(std::string_view line, std::string_view part) {
    return line.find(part) != std::string_view::npos;
}

std::string copyUpToProgram(std::string_view bank, int index) {
    std::string text;
    for (int programs = 0; !bank.empty();) {
        const std::string_view line = takeLine(bank);
        if (contains(line, PROGRAM_START) && ++programs > index)
            break;
        text += line;
    }
    return text;
}

std::string_view getAfterProgram(std::string_view bank, int index) {
    for (int programs = 0; programs <= index && !bank.empty();)
        if (contains(takeLine(bank), PROGRAM_END))
            ++programs;
    return bank;
}

}

std::vector<std::string> readProgramNames(const std::string& path) {
    const XmlDocument document(path, true);
    const XmlElement root = document.getRootElement();
    std::vector<std::string> names;
    for (auto child = root.begin(); child != root.end(); child.next())
        if (child.getName() == PROGRAM_TAG)
            names.push_back(Program(child).getName());
    return names;
}

std::optional<std::string> readBank(const std::string& path, std::string_view block) {
    auto bytes = Platform::Files::read(path);
    if (!bytes)
        return std::nullopt;
    const auto decoded = Platform::decodeXml(*bytes);
    const bool isAscii =
        std::all_of(block.begin(), block.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    if (!decoded || decoded->wasUtf8 || (isAscii && !decoded->wasUtf16))
        return bytes;
    return Platform::Files::withSystemLineEnds(getXmlHeader() + decoded->text + "\n");
}

bool remainsReadable(std::string_view oldBank, std::string_view newBank) {
    return Platform::readXml(newBank) || !Platform::readXml(oldBank);
}

std::string wrapProgram(const std::string& rootTag, const std::string& programBlock) {
    return getXmlHeader() + "\n\n" + getStartTag(rootTag) + "\n" + programBlock + getEndTag(rootTag) + "\n";
}

std::string replaceProgram(std::string_view bank, int index, std::string_view programBlock) {
    std::string text = copyUpToProgram(bank, index);
    addLines(text, programBlock);
    text += getAfterProgram(bank, index);
    return text;
}

std::optional<std::string> resize(std::string_view bank, int count, int size) {
    if (static_cast<std::int64_t>(size) - count > MAX_ADDED_PROGRAMS)
        return std::nullopt;
    std::string text;
    for (int programs = 0; !bank.empty();) {
        const std::string_view line = takeLine(bank);
        const std::string_view trimmed = Text::trim(line);
        if (trimmed == BANK_END || (trimmed.starts_with(PROGRAM_START_OF_LINE) && ++programs > size))
            break;
        text += line;
    }
    std::string added;
    for (int i = count; i < size; ++i)
        added += EMPTY_PROGRAM;
    added += getEndTag(BANK_TAG) + "\n";
    addLines(text, added);
    return text;
}

}
