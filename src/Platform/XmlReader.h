// The system's XML parser behind one small tree. Text is UTF-8.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Platform {

// A node of a document: an element, or (with an empty name) a run of text or CDATA, or (without text) a comment.
struct XmlNode {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::string text;  // Of a run of text alone; an element's text stands in its children.
    std::vector<XmlNode> children;
};

// Elements below elements that a document may have; a deeper one is malformed to us.
inline constexpr int XML_MAX_DEPTH = 200;

// [any] Reads a whole document (UTF-8, or what its declaration says). Null if it is not well-formed, holds a DOCTYPE,
// is larger than Files::MAX_SIZE or nested deeper than XML_MAX_DEPTH. External entities are never read.
std::unique_ptr<XmlNode> readXml(std::string_view document);

// A thread that reads XML all the time keeps the system's parser ready between these two. Not required for readXml.
void enterXmlThread();
void leaveXmlThread();

}
