#include "Platform/xml/XmlMarkup.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr auto NONE = std::string_view::npos;

std::size_t lengthTo(std::string_view text, std::string_view end, std::size_t from) {
    const std::size_t found = text.find(end, from);
    return found == NONE ? NONE : found + end.size();
}

// A ">" in a value does not end the tag.
std::size_t lengthOfTag(std::string_view text) {
    char quote = '\0';
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (quote != '\0')
            quote = text[i] == quote ? '\0' : quote;
        else if (text[i] == '"' || text[i] == '\'')
            quote = text[i];
        else if (text[i] == '>')
            return i + 1;
    }
    return NONE;
}

XmlMarkup::Kind kindOf(std::string_view markup) {
    if (markup.starts_with("<!") || markup.starts_with("<?"))
        return XmlMarkup::Kind::OTHER;
    if (markup.starts_with("</"))
        return XmlMarkup::Kind::END_TAG;
    return markup.ends_with("/>") ? XmlMarkup::Kind::EMPTY_TAG : XmlMarkup::Kind::START_TAG;
}

}

std::string_view XmlMarkup::name() const {
    const std::size_t start = kind == Kind::END_TAG ? 2 : 1;
    return text.substr(start, text.find_first_of(" \t\r\n/>", start) - start);
}

std::size_t XmlMarkupReader::lengthOf(std::string_view text) {
    if (text.starts_with("<!--"))
        return lengthTo(text, "-->", 4);
    if (text.starts_with("<![CDATA["))
        return lengthTo(text, "]]>", 9);
    if (text.starts_with("<?"))
        return lengthTo(text, "?>", 2);
    return lengthOfTag(text);
}

void XmlMarkupReader::moveTo(std::size_t position) {
    const std::string_view passed = m_text.substr(m_position, position - m_position);
    m_line += static_cast<int>(std::count(passed.begin(), passed.end(), '\n'));
    m_position = position;
}

std::optional<XmlMarkup> XmlMarkupReader::next() {
    const std::size_t start = m_text.find('<', m_position);
    if (start == NONE)
        return std::nullopt;
    moveTo(start);
    const std::size_t length = lengthOf(m_text.substr(start));
    if (length == NONE)
        return std::nullopt;
    const std::string_view text = m_text.substr(start, length);
    const XmlMarkup markup{kindOf(text), text, start, m_line};
    moveTo(start + length);
    return markup;
}

}
