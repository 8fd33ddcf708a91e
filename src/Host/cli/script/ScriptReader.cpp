#include "Host/cli/script/ScriptReader.h"

#include "Backend/core/xml/Text.h"
#include "Host/cli/script/ScriptError.h"

namespace Host::Cli {

namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

std::vector<std::string> splitWords(std::string_view text, int lineNumber) {
    std::vector<std::string> words;
    bool inWord = false;
    bool inQuotes = false;
    for (const char character : text) {
        if (isBlank(character) && !inQuotes) {
            inWord = false;
            continue;
        }
        if (!inWord) {
            words.emplace_back();
            inWord = true;
        }
        if (character == '"')
            inQuotes = !inQuotes;
        else
            words.back() += character;
    }
    if (inQuotes)
        throw ScriptError(lineNumber, "a double quote is not closed");
    return words;
}

}

std::string_view ScriptReader::takeLine() {
    const auto end = m_rest.find('\n');
    std::string_view line = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    ++m_lineNumber;
    return line;
}

std::optional<ScriptLine> ScriptReader::nextCommand() {
    while (!m_rest.empty()) {
        const std::string_view line = takeLine();
        const std::string_view text = Backend::Text::trim(line);
        if (text.empty() || text.front() == '#')
            continue;
        return ScriptLine{m_lineNumber, splitWords(text, m_lineNumber)};
    }
    return std::nullopt;
}

std::string ScriptReader::readBlock(const ScriptLine& command) {
    std::string block;
    while (!m_rest.empty()) {
        const std::string_view line = takeLine();
        if (Backend::Text::trim(line) == ".")
            return block;
        block += line;
        block += '\n';
    }
    throw ScriptError(command.number, "the block of " + command.words.front() + " has no end");
}

}
