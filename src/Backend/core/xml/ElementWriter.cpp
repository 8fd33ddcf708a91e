#include "Backend/core/xml/ElementWriter.h"

namespace Backend {

ElementWriter::ElementWriter(std::ostream& stream, int indent, const std::string& tag)
    : ElementWriter(stream, indent, tag, OpenStartTag()) {
    endStartTag();
}

ElementWriter::ElementWriter(std::ostream& stream, int indent, const std::string& tag, OpenStartTag)
    : m_stream(stream), m_indent(indent), m_endLine(getIndentation(indent) + getEndTag(tag) + "\n") {
    m_stream << getIndentation(indent) << getStartTagBegin(tag);
}

ElementWriter::~ElementWriter() {
    m_stream << m_endLine;
}

void ElementWriter::writeText(const std::string& tag, const std::string& text) const {
    m_stream << getIndentation(m_indent + 1) << getStartTag(tag) << escape(text) << getEndTag(tag) << '\n';
}

void ElementWriter::endStartTag() const {
    m_stream << getStartTagEnd() << '\n';
}

}
