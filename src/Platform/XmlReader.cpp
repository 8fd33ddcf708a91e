#include "Platform/XmlReader.h"

#include "Platform/Files.h"
#include "Platform/XmlParser.h"
#include "Platform/XmlText.h"

#include <new>

namespace Platform {

std::unique_ptr<XmlNode> readXml(std::string_view document) {
    if (document.size() > Files::MAX_SIZE)
        return nullptr;
    try {
        const auto text = decodeXml(document);
        if (!text || text->empty() || !xmlKeepsLimits(*text))
            return nullptr;
        return parseXml(*text);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}
