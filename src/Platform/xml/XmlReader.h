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
// processing instruction. Runs of text that are white space alone are left out.
struct XmlNode {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;  // In the order of the file.
    std::string text;  // Of a run of text alone; an element's text stands in its children.
    std::vector<XmlNode> children;
    int line = 0;  // Of an element's start tag, from 1; 0 unless lines were asked for.
};

// Levels of elements, the root's included, that a document may have; a deeper one is malformed to us.
inline constexpr int XML_MAX_DEPTH = 200;

// What else a sane file never reaches, so that a bad one can't take all memory or time: attributes of one element,
// elements, attributes, comments and CDATA of the document, and bytes of one tag, comment, CDATA or text.
inline constexpr std::size_t XML_MAX_ATTRIBUTES = 1000;
inline constexpr std::size_t XML_MAX_NODES = 2000000;
inline constexpr std::size_t XML_MAX_RUN = 8u << 20;

// [any] Reads a whole document: UTF-8, UTF-16, or as its declaration says ISO-8859-1, windows-1252 or US-ASCII. Null if
// it is not well-formed, not in its encoding, holds a DOCTYPE, is larger than Files::MAX_SIZE or beyond the limits
// above. External entities are never read. Parsers differ in namespaces, so there are none: declarations of namespaces
// are left out of the tree, and a name with a prefix other than "xml" is refused.
[[nodiscard]] std::unique_ptr<XmlNode> readXml(std::string_view document);

// [any] The same, and the line of each element, for who tells a user what stands where.
[[nodiscard]] std::unique_ptr<XmlNode> readXmlWithLines(std::string_view document);

// A thread that reads XML all the time keeps the system's parser ready between these two. Not required for readXml.
void enterXmlThread();
void leaveXmlThread();

}
