#pragma once

#include "Platform/xml/XmlReader.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

// Builds the tree from what a parser reports in document order, so that every parser gives the same tree.
class XmlTreeBuilder {
public:
    void startElement(std::string_view name);

    // Leaves out namespace declarations.
    void addAttribute(std::string_view name, std::string_view value);

    void endElement();

    // Text between two markups may arrive in several pieces.
    void addText(std::string_view text);

    // Adjacent sections are merged.
    void addCData(std::string_view text);

    // A comment or a processing instruction.
    void addOther();

    // The root; null if there was none.
    [[nodiscard]] std::unique_ptr<XmlNode> takeRoot();

private:
    void endTextRun();

    std::unique_ptr<XmlNode> m_root;
    std::vector<XmlNode*> m_path;  // From the root to the open element. Only the last one's children change.
    std::string m_text;            // The run that has not ended yet.
    bool m_afterCData = false;     // The open element's last child is a section that the next one continues.
};

}
