#pragma once

#include "Host/cli/check/AttributeRules.h"

#include <cstdint>
#include <span>
#include <string>

namespace Platform {
struct XmlNode;
}

namespace Host::Cli {

struct ElementFormat;
class FileCheck;

// When the desk writes an attribute or a child. One that it always writes and that isn't there takes a default.
enum class Written {
    ALWAYS,
    WITH_CHILDREN,  // Always, but in an element without children, as that of a program that holds nothing yet.
    SOMETIMES,
};

struct AttributeFormat {
    const char* name;
    Written written;
    const char* missing;  // What the desk takes if it isn't there.
    AttributeRule rule;
};

// Which children count where only one does.
enum class Counts { ALL, FIRST, LAST };

struct ChildFormat {
    const ElementFormat* element;
    Written written = Written::SOMETIMES;
    Counts counts = Counts::ALL;
};

struct ElementFormat {
    const char* tag;
    std::span<const AttributeFormat> attributes = {};
    std::span<const ChildFormat> children = {};
    bool holdsFunction = false;     // Its child is the element of a function.
    bool firstChildCounts = false;  // And no other, whatever its tag.
    bool holdsText = false;
    const char* idAttribute = nullptr;  // What no two of its kind share; the later one wins.
    std::int64_t (*identity)(const std::string& id) = nullptr;
    void (FileCheck::*more)(const Platform::XmlNode& element) = nullptr;  // What is not said above.
};

}
