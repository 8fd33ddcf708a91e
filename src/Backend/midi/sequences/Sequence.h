#pragma once

#include "Backend/midi/sequences/SequenceItem.h"

#include <string>
#include <string_view>
#include <vector>

namespace Backend::SequenceManagement {

// What an arpeggio steps through: nodes of one or more offsets each, and the position of the current node.
class Sequence {
public:
    using Node = std::vector<SequenceItem>;

    static constexpr const char* TAG = "Sequence";

    Sequence() = default;

    // Reads the text form: nodes separated by ",", items of a node by "|", the offsets of an item by blanks: a note
    // offset, "V" and a velocity offset, "L" and a length in ppq, or "-" for a rest. Unreadable parts keep their
    // defaults.
    explicit Sequence(std::string_view text);

    bool hasNodes() const { return !m_nodes.empty(); }
    const std::vector<Node>& getNodes() const { return m_nodes; }

    // [rt] Like everything that moves the position, [rt]: one node forward or back, wrapping at the ends. Requires a
    // sequence with nodes.
    std::int32_t getPosition() const { return m_position; }
    void setPosition(std::int32_t position) { m_position = position; }

    bool isAtFirstNode() const { return m_position == 0; }
    bool isAtLastNode() const { return m_position == lastPosition(); }

    // Moves one node forward or back, wrapping at the ends. Requires a sequence with nodes.
    void advance() { m_position = m_position >= lastPosition() ? 0 : m_position + 1; }
    void stepBack() { m_position = m_position <= 0 ? lastPosition() : m_position - 1; }

    // [rt] The items of the current node; null if the position is not that of a node.
    const Node* getCurrentNode() const;

    // The text form, in canonical spelling.
    std::string toString() const;

private:
    std::int32_t lastPosition() const { return static_cast<std::int32_t>(m_nodes.size()) - 1; }

    std::vector<Node> m_nodes;
    std::int32_t m_position = 0;
};

}
