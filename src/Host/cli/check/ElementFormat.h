#pragma once

#include "Host/cli/check/AttributeFormats.h"

#include <cstdint>
#include <span>
#include <string>

namespace Platform {
struct XmlNode;
}

namespace Host::Cli {

struct ElementFormat;
class FileCheck;

using Backend::Written;

// Which children count if only one does.
enum class Counts { ALL, FIRST, LAST };

struct ChildFormat {
    const ElementFormat* element;
    Written written = Written::SOMETIMES;
    Counts counts = Counts::ALL;
};

struct ElementFormat {
    const char* tag;
    AttributeFormats* attributes = &noAttributes;
    std::span<const ChildFormat> children = {};
    bool holdsFunction = false;     // Its child is a function's element.
    bool firstChildCounts = false;  // All others are ignored, whatever their tags.
    bool holdsText = false;
    // Must differ among elements of its kind, by the text of the first attribute; the later one wins.
    std::int64_t (*identity)(const std::string& id) = nullptr;
    void (FileCheck::*more)(const Platform::XmlNode& element) = nullptr;  // Rules beyond those above.
};

}
