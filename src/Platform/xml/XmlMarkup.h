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

    // For a tag.
    std::string_view name() const;

    Kind kind;
    std::string_view text;  // From "<" to ">".
    std::size_t position;   // Its offset in the document's text.
    int line;               // Where it begins, from 1.
};

// Returns the markup of a document piece by piece, with line numbers, which not all system parsers report. It assumes
// that the document is well-formed: its results are meaningful only for one that readXml accepts. [any]
class XmlMarkupReader {
public:
    // The document must outlive the reader.
    explicit XmlMarkupReader(const DecodedXml& document) : m_text(document.text), m_line(document.firstLine) {}

    // Nothing at the end, or where the markup is broken.
    std::optional<XmlMarkup> next();

private:
    // The length of the markup at the start of a text; npos if it doesn't end.
    static std::size_t lengthOf(std::string_view text);

    // Advances to a position, which must not lie before the current one.
    void moveTo(std::size_t position);

    std::string_view m_text;
    std::size_t m_position = 0;
    int m_line;
};

}
