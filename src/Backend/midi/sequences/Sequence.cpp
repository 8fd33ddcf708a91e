#include "Backend/midi/sequences/Sequence.h"

#include "Backend/core/xml/Text.h"

namespace Backend::SequenceManagement {

namespace {

constexpr int MAX_PARTS = 3;

// Removes the text up to the next separator, and the separator, from the front of rest.
std::string_view takePiece(std::string_view& rest, char separator) {
    const auto end = rest.find(separator);
    const auto piece = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return piece;
}

void applyPart(std::string_view part, SequenceItem& item) {
    part = Text::trim(part);
    if (part.empty() || part == "-") {
        item.rest = true;
    } else if (part.front() == 'V' || part.front() == 'v') {
        item.velocityOffset = Text::readInteger(part.substr(1), item.velocityOffset);
    } else if (part.front() == 'L' || part.front() == 'l') {
        item.length = Text::readInteger(part.substr(1), item.length);
    } else {
        item.rest = false;
        item.noteOffset = Text::readInteger(part, item.noteOffset);
    }
}

// An empty text is one empty part, and therefore a rest.
SequenceItem parseItem(std::string_view text) {
    SequenceItem item;
    int parts = 0;
    do {
        applyPart(takePiece(text, ' '), item);
        ++parts;
    } while (!text.empty() && parts < MAX_PARTS);
    return item;
}

// An empty text is one empty item.
Sequence::Node parseNode(std::string_view text) {
    Sequence::Node node;
    do {
        node.push_back(parseItem(takePiece(text, '|')));
    } while (!text.empty());
    return node;
}

std::string itemText(const SequenceItem& item) {
    std::string text;
    if (item.rest) {
        text = "- ";
    } else {
        text = std::to_string(item.noteOffset) + " ";
        if (item.velocityOffset != 0)
            text += "V" + std::to_string(item.velocityOffset) + " ";
    }
    if (item.length != SequenceItem::DEFAULT_LENGTH)
        text += "L" + std::to_string(item.length) + " ";
    text.pop_back();
    return text;
}

}

Sequence::Sequence(std::string_view text) {
    text = Text::trim(text);
    while (!text.empty())
        m_nodes.push_back(parseNode(takePiece(text, ',')));
}

const Sequence::Node* Sequence::getCurrentNode() const {
    if (m_position < 0 || m_position > lastPosition())
        return nullptr;
    return &m_nodes[static_cast<std::size_t>(m_position)];
}

std::string Sequence::toString() const {
    std::string text;
    for (const Node& node : m_nodes) {
        if (&node != &m_nodes.front())
            text += ',';
        for (const SequenceItem& item : node) {
            if (&item != &node.front())
                text += '|';
            text += itemText(item);
        }
    }
    return text;
}

}
