#pragma once

#include "Platform/xml/XmlReader.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

// Makes the tree from what a parser reports in the order of the document, so that every parser gives the same tree.
class XmlTreeBuilder {
public:
    void startElement(std::string_view name);

    // Declarations of namespaces are left out.
    void addAttribute(std::string_view name, std::string_view value);

    void endElement();

    // Text between two markups may come in several pieces.
    void addText(std::string_view text);

    // Neighbouring sections become one.
    void addCData(std::string_view text);

    // A comment or a processing instruction.
    void addOther();

    // The root; null if there was none.
    [[nodiscard]] std::unique_ptr<XmlNode> takeRoot();

private:
    void endTextRun();

    std::unique_ptr<XmlNode> m_root;
    std::vector<XmlNode*> m_path;  // From the root to the open element. Only the last one's children change.
    std::string m_text;            // Of the run that is not ended yet.
    bool m_afterCData = false;     // The open element's last child is a section that the next one continues.
};

}
