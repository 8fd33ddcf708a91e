#pragma once

#include <string>

namespace Backend {

// A value that is stored as the text of an attribute.
class XmlItem {
public:
    virtual ~XmlItem() = default;

    // The text. It is written as it is, so it holds nothing that XML would want escaped.
    virtual std::string toXmlString() const = 0;

protected:
    XmlItem() = default;
    XmlItem(const XmlItem&) = default;
    XmlItem& operator=(const XmlItem&) = default;
};

}
