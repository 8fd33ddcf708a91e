#include "Backend/input/controls/ControlMap.h"

#include "Backend/core/collections/HashMapIterator.h"
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/ListElement.h"

#include <algorithm>

namespace Backend::Controls {

namespace {

template <class Pointer, class Map>
std::vector<Pointer> sortByCell(Map& controls) {
    std::vector<Pointer> sorted;
    sorted.reserve(controls.size());
    for (auto& [cell, control] : controls)
        sorted.push_back(&control);
    std::sort(sorted.begin(), sorted.end(), [](Pointer left, Pointer right) { return left->cell < right->cell; });
    return sorted;
}

}

Control* ControlMap::find(const Cell& cell) {
    const auto entry = m_controls.find(cell);
    return entry == m_controls.end() ? nullptr : &entry->second;
}

std::unique_ptr<Component::IteratorIF<Control>> ControlMap::createIterator() {
    return std::make_unique<Component::HashMapIterator<Cell, Control>>(m_controls);
}

std::vector<Control*> ControlMap::inOrder() {
    return sortByCell<Control*>(m_controls);
}

std::vector<const Control*> ControlMap::inOrder() const {
    return sortByCell<const Control*>(m_controls);
}

void ControlMap::readXml(const XmlElement& element) {
    ListElement list;
    readAttributes(element, list);
    if (!list.merge)
        clear();
    for (auto child = element.begin(); child != element.end(); child.next())
        if (child.getName() == Control::TAG)
            set(Control(child));
}

void ControlMap::writeXml(std::ostream& stream, int indent, const std::vector<Cell>& selected) const {
    const ElementWriter element(stream, indent, TAG, ListElement{.merge = !selected.empty()});
    auto controls = inOrder();
    std::sort(controls.begin(), controls.end(), [](const Control* left, const Control* right) {
        return left->cell.toXmlString() < right->cell.toXmlString();
    });
    for (const Control* control : controls)
        if (selected.empty() || std::find(selected.begin(), selected.end(), control->cell) != selected.end())
            element.write(*control);
}

}
