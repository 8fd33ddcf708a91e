#pragma once

#include "Platform/xml/XmlReader.h"

#include <string>

namespace Platform {

// [any] Runs the system's parser on a document that decodeXml and xmlKeepsLimits accepted. Null if it is not
// well-formed.
[[nodiscard]] std::unique_ptr<XmlNode> parseXml(const std::string& text);

}
