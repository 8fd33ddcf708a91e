#include "Backend/input/KeyConfiguration.h"

#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlWriting.h"

namespace Backend::ComputerInput {

KeyConfiguration::KeyConfiguration(const XmlElement& element, MirelIF& mirel)
    : m_key(element.getAttribute("id")), m_global(element.getBoolAttribute("global", true)) {
    readFunctions(element, mirel);
}

void KeyConfiguration::writeXml(std::ostream& stream, int indent) const {
    stream << getIndentation(indent) << getStartTagBegin(TAG) << getAttributeText("id", m_key)
           << getAttributeText("global", m_global) << getStartTagEnd() << '\n';
    writeFunctions(stream, indent + 1);
    stream << getIndentation(indent) << getEndTag(TAG) << '\n';
}

}
