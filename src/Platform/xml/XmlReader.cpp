#include "Platform/xml/XmlReader.h"

#include "Platform/Files.h"
#include "Platform/xml/XmlMarkup.h"
#include "Platform/xml/XmlParser.h"
#include "Platform/xml/XmlText.h"

#include <new>

namespace Platform {

namespace {

// The tree holds elements in the order of their start tags.
void setLines(XmlNode& element, XmlMarkupReader& markups) {
    auto markup = markups.next();
    while (markup && !markup->isStart())
        markup = markups.next();
    if (markup)
        element.line = markup->line;
    for (XmlNode& child : element.children)
        if (!child.name.empty())
            setLines(child, markups);
}

std::unique_ptr<XmlNode> read(std::string_view document, bool withLines) {
    if (document.size() > Files::MAX_SIZE)
        return nullptr;
    try {
        const auto decoded = decodeXml(document);
        if (!decoded || decoded->text.empty() || !xmlKeepsLimits(decoded->text))
            return nullptr;
        auto root = parseXml(decoded->text);
        if (root && withLines) {
            XmlMarkupReader markups(*decoded);
            setLines(*root, markups);
        }
        return root;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}

std::unique_ptr<XmlNode> readXml(std::string_view document) {
    return read(document, false);
}

std::unique_ptr<XmlNode> readXmlWithLines(std::string_view document) {
    return read(document, true);
}

}
