#include "Backend/input/KeyConfiguration.h"

#include "Backend/core/xml/ElementWriter.h"

namespace Backend::ComputerInput {

KeyConfiguration::KeyConfiguration(const XmlElement& element, MirelIF& mirel) {
    readAttributes(element, *this);
    readFunctions(element, mirel);
}

void KeyConfiguration::writeXml(std::ostream& stream, int indent) const {
    const ElementWriter key(stream, indent, TAG, *this);
    writeFunctions(key);
}

}
