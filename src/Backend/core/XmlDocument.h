#pragma once
#pragma GCC diagnostic ignored "-Wshadow"
#include "Backend/core/XmlElement.h"
#include "Platform/Files.h"
#include <memory>
class XmlDocument {
public:
    XmlDocument(const std::string& t, bool isPath) { if (isPath) { if (auto f = Platform::Files::read(t)) r = Platform::readXml(*f); } else r = Platform::readXml(t); }
    XmlElement getRootElement() const { return XmlElement(r.get(), nullptr, static_cast<std::size_t>(-1)); }
    bool isWellFormed() const { return r != nullptr; }
private:
    std::shared_ptr<Platform::XmlNode> r;
};
