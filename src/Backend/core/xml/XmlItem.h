#pragma once

#include <string>

namespace Backend {

// A value that is stored as the text of an attribute.
class XmlItem {
public:
    virtual ~XmlItem() = default;

    // The text. It is written unchanged, so it must not need escaping in XML.
    virtual std::string toXmlString() const = 0;

protected:
    XmlItem() = default;
    XmlItem(const XmlItem&) = default;
    XmlItem& operator=(const XmlItem&) = default;
};

}
