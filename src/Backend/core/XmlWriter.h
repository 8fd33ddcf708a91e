#pragma once
#include "Backend/core/XmlItem.h"
#include <string>
inline std::string getIndentation(int n) { return std::string(static_cast<std::size_t>(n), '\t'); }
inline std::string getXmlHeader() { return "<?xml version=\"1.0\" encoding=\"utf-8\"?>"; }
inline std::string getStartTagBegin(const std::string& n) { return "<" + n; }
inline std::string getStartTag(const std::string& n) { return "<" + n + ">"; }
inline std::string getStartTagEnd() { return ">"; }
inline std::string getEmptyTagEnd() { return "/>"; }
inline std::string getEndTag(const std::string& n) { return "</" + n + ">"; }
inline std::string escape(const std::string& s) { return s; }
inline std::string rawAtt(const std::string& n, const std::string& v) { return " " + n + "=\"" + v + "\""; }
inline std::string getAttributeText(const std::string& n, bool v) { return rawAtt(n, v ? "true" : "false"); }
inline std::string getAttributeText(const std::string& n, char v) { return rawAtt(n, std::to_string(v)); }
inline std::string getAttributeText(const std::string& n, int v) { return rawAtt(n, std::to_string(v)); }
inline std::string getAttributeText(const std::string& n, const std::string& v) { return rawAtt(n, escape(v)); }
inline std::string getAttributeText(const std::string& n, const XmlItem& v) { return rawAtt(n, v.toXmlString()); }
