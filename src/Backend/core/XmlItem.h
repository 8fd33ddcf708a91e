#pragma once

#include <string>

// A value that is stored as the text of an XML attribute.
class XmlItem {
public:
    virtual ~XmlItem() = default;

    // [any] The text form. It never needs escaping.
    virtual std::string toXmlString() const = 0;

protected:
    XmlItem() = default;
    XmlItem(const XmlItem&) = default;
    XmlItem& operator=(const XmlItem&) = default;
};
