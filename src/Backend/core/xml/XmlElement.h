#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Platform {
struct XmlNode;
}

namespace Backend {

// An element of a parsed document and at the same time a cursor over the children of its parent:
//     for (XmlElement child = parent.begin(); child != parent.end(); child.next())
// Every child is a position, also a comment or a text; those have an empty name and are skipped by it. A cheap value
// that keeps its document alive. Without an element (no document, no child, not an element) all reads give the empty
// string or the default.
class XmlElement {
public:
    // A missing element.
    XmlElement() = default;

    // The root of a document; a missing element for null.
    explicit XmlElement(std::shared_ptr<const Platform::XmlNode> root);

    // The tag's name.
    std::string getName() const;

    // The value; empty if there is no such attribute.
    std::string getAttribute(const std::string& name) const;

    // Exactly "true", "TRUE", "yes", "YES" or one of their opposites; the default for anything else.
    bool getBoolAttribute(const std::string& name, bool defaultValue) const;

    // The number at the start of the value; the default if there is none or it doesn't fit 32 bits.
    int getIntAttribute(const std::string& name, int defaultValue) const;

    // All text inside the element, including nested elements, without white space at both ends.
    std::string getText() const;

    // The first child; equal to end() if there is none.
    XmlElement begin() const;

    // The end to compare a cursor over the children with.
    XmlElement end() const;

    // Moves a cursor to the next child or to the end, where it stays. A root does not move.
    XmlElement& next();

    // Whether this cursor has reached an end; other elements can't be compared. A root is always at the end.
    bool operator==(const XmlElement& end) const;

private:
    void lookAt(int index);

    std::shared_ptr<const Platform::XmlNode> m_document;
    const Platform::XmlNode* m_element = nullptr;                // Null on a child that is not an element.
    const std::vector<Platform::XmlNode>* m_siblings = nullptr;  // The children the cursor walks over; null for a root.
    int m_index = -1;                                            // In m_siblings; -1 for a root and for end().
    int m_childCount = 0;                                        // Of the element; for end() of the parent.
};

}
