#pragma once

#include "Backend/core/xml/XmlDocument.h"
#include "Host/cli/script/ScriptArguments.h"
#include "Host/cli/script/ScriptDesk.h"
#include "Host/cli/script/ScriptReader.h"

namespace Host::Cli {

// What a command of a script works with.
struct ScriptContext {
    ScriptArguments& arguments;
    const ScriptLine& line;
    ScriptReader& reader;
    ScriptDesk& desk;

    // The block that follows the line, which must be well-formed. Throws ScriptError.
    Backend::XmlDocument readDocument() const;

    // Like readDocument(), for a document whose root must have this name.
    Backend::XmlDocument readDocument(const char* tag) const;
};

struct ScriptCommandRow {
    const char* name;
    void (*run)(const ScriptContext&);
};

}
