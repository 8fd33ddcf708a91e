#pragma once

#include "Backend/core/xml/Attribute.h"

#include <ostream>
#include <string>

namespace Backend {

// Writes one element. The start tag is written when this is made, the end tag when it goes; each has a line of its own,
// indented by tabs. What is written in between stands inside:
//     const ElementWriter layer(stream, indent, TAG, *this);
//     layer.write(sequenceSetting);
class ElementWriter {
public:
    // An element without attributes, indented by this many tabs. The stream must outlive this.
    [[nodiscard]] ElementWriter(std::ostream& stream, int indent, const std::string& tag);

    // An element with the attributes of its owner.
    template <class Owner>
    [[nodiscard]] ElementWriter(std::ostream& stream, int indent, const std::string& tag, const Owner& owner)
        : ElementWriter(stream, indent, tag, OpenStartTag()) {
        writeAttributes(stream, owner);
        endStartTag();
    }

    ElementWriter(const ElementWriter&) = delete;
    ElementWriter& operator=(const ElementWriter&) = delete;
    ~ElementWriter();

    // An element inside this one, with or without the attributes of an owner. It must be destroyed before this one.
    template <class... Owner>
    [[nodiscard]] ElementWriter begin(const std::string& tag, const Owner&... owner) const {
        return {m_stream, m_indent + 1, tag, owner...};
    }

    // Writes the element of an item by its writeXml(stream, indent).
    template <class Item>
    void write(const Item& item) const {
        item.writeXml(m_stream, m_indent + 1);
    }

    // Writes an element with attributes only: <tag name="value"/>
    template <class Owner>
    void writeEmpty(const std::string& tag, const Owner& owner) const;

    // Writes an element with only text in it, escaped, on one line.
    void writeText(const std::string& tag, const std::string& text) const;

    // For writers that need the stream and the depth of the children.
    std::ostream& getStream() const { return m_stream; }
    int getInnerIndent() const { return m_indent + 1; }

private:
    struct OpenStartTag {};

    ElementWriter(std::ostream& stream, int indent, const std::string& tag, OpenStartTag);
    void endStartTag() const;

    std::ostream& m_stream;
    int m_indent;
    std::string m_endLine;  // Made beforehand, so that the end allocates nothing that could fail.
};

// Writes an element with attributes only, on a line of its own, indented by this many tabs.
template <class Owner>
void writeEmptyElement(std::ostream& stream, int indent, const std::string& tag, const Owner& owner) {
    stream << getIndentation(indent) << getStartTagBegin(tag);
    writeAttributes(stream, owner);
    stream << getEmptyTagEnd() << '\n';
}

template <class Owner>
void ElementWriter::writeEmpty(const std::string& tag, const Owner& owner) const {
    writeEmptyElement(m_stream, m_indent + 1, tag, owner);
}

}
