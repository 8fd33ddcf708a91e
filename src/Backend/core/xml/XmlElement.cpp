#include "Backend/core/xml/XmlElement.h"

#include "Backend/core/xml/Text.h"
#include "Platform/xml/XmlReader.h"

namespace Backend {

namespace {

int childCount(const Platform::XmlNode* element) {
    return element ? static_cast<int>(element->children.size()) : 0;
}

void appendText(std::string& text, const Platform::XmlNode& node) {
    text += node.text;
    for (const Platform::XmlNode& child : node.children)
        appendText(text, child);
}

}

XmlElement::XmlElement(std::shared_ptr<const Platform::XmlNode> root)
    : m_document(std::move(root)), m_element(m_document.get()), m_childCount(childCount(m_element)) {}

std::string XmlElement::getName() const {
    return m_element ? m_element->name : std::string();
}

std::string XmlElement::getAttribute(const std::string& name) const {
    if (!m_element)
        return {};
    for (const auto& [attributeName, value] : m_element->attributes) {
        if (attributeName == name)
            return value;
    }
    return {};
}

bool XmlElement::getBoolAttribute(const std::string& name, bool defaultValue) const {
    return Text::readBool(getAttribute(name)).value_or(defaultValue);
}

int XmlElement::getIntAttribute(const std::string& name, int defaultValue) const {
    return Text::readInteger(getAttribute(name), defaultValue);
}

std::string XmlElement::getText() const {
    std::string text;
    if (m_element)
        appendText(text, *m_element);
    return std::string(Text::trim(text));
}

XmlElement XmlElement::begin() const {
    XmlElement cursor;
    if (!m_element)
        return cursor;
    cursor.m_document = m_document;
    cursor.m_siblings = &m_element->children;
    cursor.lookAt(0);
    return cursor;
}

XmlElement XmlElement::end() const {
    XmlElement marker;
    marker.m_childCount = m_childCount;
    return marker;
}

XmlElement& XmlElement::next() {
    if (m_siblings && m_index < static_cast<int>(m_siblings->size()))
        lookAt(m_index + 1);
    return *this;
}

bool XmlElement::operator==(const XmlElement& end) const {
    return !m_siblings || m_index == end.m_childCount;
}

void XmlElement::lookAt(int index) {
    m_index = index;
    m_element = nullptr;
    const auto position = static_cast<std::size_t>(index);
    if (position < m_siblings->size() && !(*m_siblings)[position].name.empty())
        m_element = &(*m_siblings)[position];
    m_childCount = childCount(m_element);
}

}
