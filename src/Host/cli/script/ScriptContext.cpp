#include "Host/cli/script/ScriptContext.h"

#include "Backend/core/xml/XmlElement.h"

namespace Host::Cli {

using Backend::XmlDocument;

XmlDocument ScriptContext::readDocument() const {
    XmlDocument document(reader.readBlock(line), false);
    if (!document.hasRoot())
        arguments.fail("the block is not well-formed XML");
    return document;
}

XmlDocument ScriptContext::readDocument(const char* tag) const {
    XmlDocument document = readDocument();
    if (document.getRootElement().getName() != tag)
        arguments.fail(std::string("the block is not an element ") + tag);
    return document;
}

}
