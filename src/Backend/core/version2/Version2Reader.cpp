#include "Backend/core/version2/Version2Reader.h"

#include "Backend/core/xml/Text.h"
#include "Platform/xml/XmlText.h"

#include <algorithm>

namespace Backend {

namespace {

constexpr std::string_view WHITE_SPACE = " \t\r\n\v\f";
constexpr std::string_view EMPTY_TEXT = "-";

}

Version2Reader::Version2Reader(std::string_view bytes) : m_text(Platform::utf8OrWindows1252(bytes)), m_rest(m_text) {
    readLine();
}

void Version2Reader::readLine() {
    m_isAtEnd = m_rest.empty();
    const std::size_t end = m_rest.find('\n');
    m_line = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    if (m_line.ends_with('\r'))
        m_line.remove_suffix(1);
}

void Version2Reader::skipBlankLines() {
    while (!m_isAtEnd && Text::trim(m_line).empty())
        nextLine();
}

std::string_view Version2Fields::next() {
    const std::size_t start = std::min(m_rest.find_first_not_of(WHITE_SPACE), m_rest.size());
    m_rest.remove_prefix(start);
    const std::size_t end = std::min(m_rest.find_first_of(WHITE_SPACE), m_rest.size());
    const std::string_view field = m_rest.substr(0, end);
    m_rest.remove_prefix(end);
    return field;
}

std::int32_t Version2Fields::nextNumber(std::int32_t defaultValue) {
    return Text::readInteger(next(), defaultValue);
}

std::string Version2Fields::nextText() {
    const std::string_view field = next();
    return field == EMPTY_TEXT ? std::string() : withBlanks(field);
}

std::string withBlanks(std::string_view text) {
    std::string result(text);
    std::replace(result.begin(), result.end(), '_', ' ');
    return result;
}

}
