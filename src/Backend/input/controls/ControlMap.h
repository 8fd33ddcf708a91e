#pragma once

#include "Backend/core/collections/ElementCollection.h"
#include "Backend/input/controls/Control.h"

#include <memory>
#include <ostream>
#include <unordered_map>
#include <vector>

namespace Backend::Controls {

// The controls of a program by their cells.
class ControlMap : public Component::ElementCollection<Cell, Control> {
public:
    static constexpr const char* TAG = "Controls";

    // Null for a cell without a control.
    Control* find(const Cell& cell) override;

    std::unique_ptr<Component::IteratorIF<Control>> createIterator() override;

    std::size_t size() const { return m_controls.size(); }
    void clear() { m_controls.clear(); }

    // Adds a control, or replaces its cell's.
    void set(const Control& control) { m_controls.insert_or_assign(control.cell, control); }
    void remove(const Cell& cell) { m_controls.erase(cell); }

    // All controls, row by row from the left. Valid until a control is added or removed.
    std::vector<Control*> inOrder();
    std::vector<const Control*> inOrder() const;

    // Reads the controls of an element. Its merge attribute says whether they are added or replace all.
    void readXml(const XmlElement& element);

    // Writes the element on its own lines, indented by this many tabs, with the controls in the order of their texts:
    // all, or the selected ones to be merged.
    void writeXml(std::ostream& stream, int indent, const std::vector<Cell>& selected) const;

private:
    static constexpr std::size_t BUCKETS = 8;

    std::unordered_map<Cell, Control> m_controls{BUCKETS};
};

}
