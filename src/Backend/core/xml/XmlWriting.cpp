#include "Backend/core/xml/XmlWriting.h"

#include "Backend/core/xml/XmlItem.h"
#include "Platform/xml/XmlText.h"

namespace Backend {

namespace {

std::string attribute(const std::string& name, const std::string& value) {
    return " " + name + "=\"" + value + "\"";
}

std::string withSpaceReferences(const std::string& text) {
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        switch (character) {
            case '\t': result += "&#9;"; break;
            case '\n': result += "&#10;"; break;
            case '\r': result += "&#13;"; break;
            default: result += character;
        }
    }
    return result;
}

}

std::string getXmlHeader() {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
}

std::string getIndentation(int depth) {
    return std::string(static_cast<std::size_t>(depth), '\t');
}

std::string getStartTagBegin(const std::string& name) {
    return "<" + name;
}

std::string getStartTag(const std::string& name) {
    return "<" + name + ">";
}

std::string getStartTagEnd() {
    return ">";
}

std::string getEmptyTagEnd() {
    return "/>";
}

std::string getEndTag(const std::string& name) {
    return "</" + name + ">";
}

std::string getAttributeText(const std::string& name, bool value) {
    return attribute(name, value ? "true" : "false");
}

std::string getAttributeText(const std::string& name, char value) {
    return getAttributeText(name, static_cast<signed char>(value));
}

std::string getAttributeText(const std::string& name, signed char value) {
    return getAttributeText(name, static_cast<int>(value));
}

std::string getAttributeText(const std::string& name, short value) {
    return getAttributeText(name, static_cast<int>(value));
}

std::string getAttributeText(const std::string& name, int value) {
    return attribute(name, std::to_string(value));
}

std::string getAttributeText(const std::string& name, const std::string& value) {
    return attribute(name, withSpaceReferences(escape(Platform::withXmlCharacters(value))));
}

std::string getAttributeText(const std::string& name, const char* value) {
    return getAttributeText(name, std::string(value));
}

std::string getAttributeText(const std::string& name, const XmlItem& value) {
    return attribute(name, value.toXmlString());
}

std::string escape(const std::string& text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char character : text) {
        switch (character) {
            case '<': escaped += "&lt;"; break;
            case '>': escaped += "&gt;"; break;
            case '&': escaped += "&amp;"; break;
            case '\'': escaped += "&apos;"; break;
            case '"': escaped += "&quot;"; break;
            default: escaped += character;
        }
    }
    return escaped;
}

}
