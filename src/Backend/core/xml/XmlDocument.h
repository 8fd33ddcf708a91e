#pragma once

#include "Backend/core/xml/XmlElement.h"

#include <memory>
#include <string>

namespace Platform {
struct XmlNode;
}

namespace Backend {

// A parsed document.
class XmlDocument {
public:
    // [any] Reads a file, or takes source as the text itself. A document that is missing, malformed or beyond the
    // reader's limits has no root.
    XmlDocument(const std::string& source, bool isPath);

    // [any] Whether there was a document to read.
    bool hasRoot() const;

    // [any] The root, or a missing element.
    XmlElement getRootElement() const;

private:
    std::shared_ptr<const Platform::XmlNode> m_root;
};

}
