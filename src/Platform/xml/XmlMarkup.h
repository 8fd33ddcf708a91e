#pragma once

#include "Platform/xml/XmlText.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace Platform {

// A tag of a document, or a comment, CDATA section or processing instruction.
struct XmlMarkup {
    enum class Kind { START_TAG, EMPTY_TAG, END_TAG, OTHER };

    // Whether an element begins here.
    bool isStart() const { return kind == Kind::START_TAG || kind == Kind::EMPTY_TAG; }

    // Of a tag.
    std::string_view name() const;

    Kind kind;
    std::string_view text;  // From "<" to ">".
    std::size_t position;   // Of the text in the document's.
    int line;               // On which it begins, from 1.
};

// Takes the markup of a document one by one, with lines, which the system's parsers don't all know. It believes that
// the document is well-formed: only one that readXml takes gives what it should. [any]
class XmlMarkupReader {
public:
    // The document must outlive the reader.
    explicit XmlMarkupReader(const DecodedXml& document) : m_text(document.text), m_line(document.firstLine) {}

    // Nothing at the end, or where the markup has none.
    std::optional<XmlMarkup> next();

private:
    // The length of the markup at the beginning of a text; npos if it doesn't end.
    static std::size_t lengthOf(std::string_view text);

    // Goes on to a position, which isn't before the present one.
    void moveTo(std::size_t position);

    std::string_view m_text;
    std::size_t m_position = 0;
    int m_line;
};

}
