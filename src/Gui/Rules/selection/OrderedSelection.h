#pragma once

#include "Gui/Rules/selection/Selection.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace Gui {

// The marks of things in an order: rows below one another, keys in the order of their table, cells row by row. A
// derived class says which of them can be marked, which lie in a range, and what to repaint when a mark changes. [gui]
template <class Id>
class OrderedSelection : public Selection<Id> {
public:
    // Clears all marks, without calling selectionChanged.
    void setItems(std::vector<Id> ids) {
        m_items.clear();
        for (Id& id : ids)
            m_items.push_back({std::move(id), {}});
        m_next = {};
    }

    bool isSelected(const Id& id, SelectionKind kind) const override {
        const auto item = find(id);
        return item != m_items.end() && item->marks[indexOf(kind)];
    }

    void setSelected(const Id& id, bool selected, SelectionKind kind) override {
        const auto item = find(id);
        if (item != m_items.end())
            mark(m_items[indexOf(item)], selected, kind);
    }

    void selectOnly(const Id& id, bool selected, SelectionKind kind) override {
        for (Item& item : m_items)
            mark(item, item.id == id && selected, kind);
    }

    bool selectRange(const Id& from, const Id& to, SelectionKind kind) override {
        if (find(from) == m_items.end() || find(to) == m_items.end())
            return false;
        const auto [first, last] = std::minmax({indexOf(find(from)), indexOf(find(to))});
        for (std::size_t i = 0; i < m_items.size(); ++i)
            mark(m_items[i], i >= first && i <= last, kind);
        return true;
    }

    std::optional<Id> firstSelected(SelectionKind kind) override { return nextSelected(true, kind); }

    bool anySelected(SelectionKind kind) const override {
        return std::any_of(m_items.begin(), m_items.end(),
                           [kind](const Item& item) { return item.marks[indexOf(kind)]; });
    }

    // After the last one it starts at the top again.
    std::optional<Id> nextSelected(bool restart, SelectionKind kind) override {
        std::size_t& next = m_next[indexOf(kind)];
        for (std::size_t i = restart ? 0 : next; i < m_items.size(); ++i)
            if (m_items[i].marks[indexOf(kind)]) {
                next = i + 1;
                return m_items[i].id;
            }
        next = 0;
        return std::nullopt;
    }

    // The marked ones, in order.
    std::vector<Id> getSelected(SelectionKind kind) const {
        std::vector<Id> ids;
        for (const Item& item : m_items)
            if (item.marks[indexOf(kind)])
                ids.push_back(item.id);
        return ids;
    }

    // All that can be marked.
    void selectAll(bool selected, SelectionKind kind) {
        for (Item& item : m_items)
            mark(item, selected, kind);
    }

    // Inverts every mark.
    void invert(SelectionKind kind) {
        for (Item& item : m_items)
            mark(item, !item.marks[indexOf(kind)], kind);
    }

protected:
    virtual bool canSelect(const Id&, SelectionKind) const { return true; }
    virtual void selectionChanged(const Id&, SelectionKind) {}

private:
    struct Item {
        Id id;
        std::array<bool, SELECTION_KINDS> marks{};
    };
    using Place = typename std::vector<Item>::const_iterator;

    static constexpr std::size_t indexOf(SelectionKind kind) { return static_cast<std::size_t>(kind); }
    std::size_t indexOf(Place place) const { return static_cast<std::size_t>(place - m_items.begin()); }

    Place find(const Id& id) const {
        return std::find_if(m_items.begin(), m_items.end(), [&id](const Item& item) { return item.id == id; });
    }

    void mark(Item& item, bool selected, SelectionKind kind) {
        bool& present = item.marks[indexOf(kind)];
        if (present == selected || (selected && !canSelect(item.id, kind)))
            return;
        present = selected;
        selectionChanged(item.id, kind);
    }

    std::vector<Item> m_items;
    std::array<std::size_t, SELECTION_KINDS> m_next{};
};

}
