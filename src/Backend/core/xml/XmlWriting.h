// Pieces of XML text. Writers combine them, and add line ends and indentation (one tab per level) themselves.
#pragma once

#include <string>

namespace Backend {

class XmlItem;

std::string getXmlHeader();

// The tabs for this depth.
std::string getIndentation(int depth);

std::string getStartTagBegin(const std::string& name);

std::string getStartTag(const std::string& name);

std::string getStartTagEnd();

std::string getEmptyTagEnd();

std::string getEndTag(const std::string& name);

// A blank and name="value". Numbers are decimal; a character is written as the signed value of its byte. Strings are
// escaped, items are not. In strings, tabs and line ends become references, because only these survive a reader and
// leave the tag on one line, and what no document can hold (other control characters, invalid UTF-8) becomes U+FFFD.
std::string getAttributeText(const std::string& name, bool value);
std::string getAttributeText(const std::string& name, char value);
std::string getAttributeText(const std::string& name, signed char value);
std::string getAttributeText(const std::string& name, short value);
std::string getAttributeText(const std::string& name, int value);
std::string getAttributeText(const std::string& name, const std::string& value);
std::string getAttributeText(const std::string& name, const char* value);  // Otherwise it would be taken for a bool.
std::string getAttributeText(const std::string& name, const XmlItem& value);

// The text with "<", ">", "&" and both quotes as entities. All other bytes are unchanged.
std::string escape(const std::string& text);

}
