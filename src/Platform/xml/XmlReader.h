// The system's XML parser behind one small tree. Text is UTF-8.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Platform {

// A node of a document: an element, or (with an empty name) a run of text or CDATA, or (without text) a comment or a
// processing instruction. Runs of white space alone are left out.
struct XmlNode {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;  // In the order of the file.
    std::string text;  // Of a run of text only; an element's text is in its children.
    std::vector<XmlNode> children;
    int line = 0;  // Line of an element's start tag, from 1; 0 unless lines were requested.
};

// The most levels of elements a document may have, including the root; a deeper one counts as malformed.
inline constexpr int XML_MAX_DEPTH = 200;

// Other limits that no sane file reaches, so that a bad one can't use up memory or time: attributes of one element,
// elements, attributes, comments and CDATA of the document, and bytes of one tag, comment, CDATA or text.
inline constexpr std::size_t XML_MAX_ATTRIBUTES = 1000;
inline constexpr std::size_t XML_MAX_NODES = 2000000;
inline constexpr std::size_t XML_MAX_RUN = 8u << 20;

// [any] Reads a whole document: UTF-8, UTF-16 or, as its declaration says, ISO-8859-1, windows-1252 or US-ASCII. Null
// if it is not well-formed, not in its encoding, holds a DOCTYPE, is larger than Files::MAX_SIZE or beyond the limits
// above. External entities are never read. Since parsers differ in namespaces, there are none: namespace declarations
// are left out of the tree, and a name with a prefix other than "xml" is refused.
[[nodiscard]] std::unique_ptr<XmlNode> readXml(std::string_view document);

// [any] Like readXml, with the line of each element, for messages to the user.
[[nodiscard]] std::unique_ptr<XmlNode> readXmlWithLines(std::string_view document);

// Call these around a thread that reads XML often, to keep the system's parser ready. Not required for readXml.
void enterXmlThread();
void leaveXmlThread();

}
