#pragma once
#pragma GCC diagnostic ignored "-Wshadow"
#include "Platform/XmlReader.h"
#include "Backend/core/Text.h"
#include <string>
class XmlElement {
public:
    XmlElement(const Platform::XmlNode* n, const std::vector<Platform::XmlNode>* s, std::size_t i) : n(n), s(s), i(i) {}
    std::string getName() const { return n ? n->name : ""; }
    std::string getAttribute(const std::string& a) const { if (n) for (auto& [k, v] : n->attributes) if (k == a) return v; return ""; }
    bool getBoolAttribute(const std::string& a, bool d) const { auto t = getAttribute(a); if (t == "true" || t == "TRUE" || t == "yes" || t == "YES") return true; if (t == "false" || t == "FALSE" || t == "no" || t == "NO") return false; return d; }
    int getIntAttribute(const std::string& a, int d) const { return Backend::Text::readInteger(getAttribute(a), d); }
    std::string getText() const { std::string t; if (n) add(*n, t); return std::string(Backend::Text::trim(t)); }
    XmlElement begin() const { if (!n || n->children.empty()) return end(); return XmlElement(&n->children[0], &n->children, 0); }
    XmlElement end() const { return XmlElement(nullptr, nullptr, n ? n->children.size() : 0); }
    XmlElement& next() { ++i; n = i < s->size() ? &(*s)[i] : nullptr; return *this; }
    bool operator!=(const XmlElement& o) const { return i != o.i; }
private:
    static void add(const Platform::XmlNode& n, std::string& t) { t += n.text; for (auto& c : n.children) add(c, t); }
    const Platform::XmlNode* n; const std::vector<Platform::XmlNode>* s; std::size_t i;
};
