#pragma once

#include <optional>

namespace Gui {

// The two independent marks that a thing on a screen can carry.
enum class SelectionKind {
    EDIT = 0,  // Its fields show in the settings.
    DATA = 1,  // Functions and moves that act on what is selected act on it.
};

inline constexpr int SELECTION_KINDS = 2;

// What the user can mark on a screen: layers, zones, keys or controls. Id names one of them. [gui]
template <class Id>
class Selection {
public:
    virtual ~Selection() = default;

    // False for a missing one.
    virtual bool isSelected(const Id& id, SelectionKind kind) const = 0;

    // Ignores what is missing or can't carry this mark.
    virtual void setSelected(const Id& id, bool selected, SelectionKind kind) = 0;

    // Takes the mark from all others, and gives it to this one or takes it from this one too.
    virtual void selectOnly(const Id& id, bool selected, SelectionKind kind) = 0;

    // Marks exactly the range from one to the other, in either order. False, with nothing changed, if there is no range
    // between the two.
    virtual bool selectRange(const Id& from, const Id& to, SelectionKind kind) = 0;

    // In the order of the screen. nextSelected continues after the one returned last, or from the start; after the last
    // one there is nothing.
    virtual std::optional<Id> firstSelected(SelectionKind kind) = 0;
    virtual bool anySelected(SelectionKind kind) const = 0;
    virtual std::optional<Id> nextSelected(bool restart, SelectionKind kind) = 0;
};

}
