#include "Platform/xml/XmlTreeBuilder.h"

namespace Platform {

void XmlTreeBuilder::startElement(std::string_view name) {
    endTextRun();
    XmlNode* node = nullptr;
    if (m_path.empty()) {
        m_root = std::make_unique<XmlNode>();
        node = m_root.get();
    } else {
        node = &m_path.back()->children.emplace_back();
    }
    node->name = name;
    m_path.push_back(node);
}

void XmlTreeBuilder::addAttribute(std::string_view name, std::string_view value) {
    if (name != "xmlns" && !name.starts_with("xmlns:"))
        m_path.back()->attributes.emplace_back(name, value);
}

void XmlTreeBuilder::endElement() {
    endTextRun();
    m_path.pop_back();
}

void XmlTreeBuilder::addText(std::string_view text) {
    m_text += text;
    m_afterCData = m_afterCData && text.empty();
}

void XmlTreeBuilder::addCData(std::string_view text) {
    if (m_path.empty() || text.empty())
        return;
    if (m_afterCData) {
        m_path.back()->children.back().text += text;
        return;
    }
    endTextRun();
    m_path.back()->children.emplace_back().text = text;
    m_afterCData = true;
}

void XmlTreeBuilder::addOther() {
    endTextRun();
    if (!m_path.empty())
        m_path.back()->children.emplace_back();
}

std::unique_ptr<XmlNode> XmlTreeBuilder::takeRoot() {
    return std::move(m_root);
}

void XmlTreeBuilder::endTextRun() {
    if (!m_path.empty() && m_text.find_first_not_of(" \t\r\n") != std::string::npos)
        m_path.back()->children.emplace_back().text = std::move(m_text);
    m_text.clear();
    m_afterCData = false;
}

}
