#include "Backend/core/xml/XmlDocument.h"

#include "Backend/core/trace/FileTrace.h"
#include "Platform/Files.h"
#include "Platform/xml/XmlReader.h"

namespace Backend {

namespace {

std::shared_ptr<const Platform::XmlNode> readRoot(const std::string& source, bool isPath) {
    if (!isPath)
        return Platform::readXml(source);
    const auto content = Platform::Files::read(source);
    auto root = content ? Platform::readXml(*content) : nullptr;
    if (!root)
        traceFile(source, content ? "is not usable XML" : "can't be read");
    return root;
}

}

XmlDocument::XmlDocument(const std::string& source, bool isPath) : m_root(readRoot(source, isPath)) {}

bool XmlDocument::hasRoot() const {
    return m_root != nullptr;
}

XmlElement XmlDocument::getRootElement() const {
    return XmlElement(m_root);
}

}
