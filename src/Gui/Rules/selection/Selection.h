#pragma once

#include <optional>

namespace Gui {

// The two marks that one thing on a screen can carry, independent of each other.
enum class SelectionKind {
    EDIT = 0,  // Its fields show in the settings.
    DATA = 1,  // Functions and moves that act on what is selected act on it.
};

inline constexpr int SELECTION_KINDS = 2;

// What a screen lets the user mark: layers, zones, keys or controls. Id names one of them. [gui]
template <class Id>
class Selection {
public:
    virtual ~Selection() = default;

    // False for what isn't there.
    virtual bool isSelected(const Id& id, SelectionKind kind) const = 0;

    // Ignores what isn't there or can't carry this mark.
    virtual void setSelected(const Id& id, bool selected, SelectionKind kind) = 0;

    // Takes the mark from all others, and gives it to this one or takes it from it too.
    virtual void selectOnly(const Id& id, bool selected, SelectionKind kind) = 0;

    // Marks what lies from one to the other, either way round, and nothing else. False, with nothing changed, if no
    // range lies between the two.
    virtual bool selectRange(const Id& from, const Id& to, SelectionKind kind) = 0;

    // In the order of the screen. nextSelected goes on behind the one that was returned last, or from the start;
    // behind the last one there is nothing.
    virtual std::optional<Id> firstSelected(SelectionKind kind) = 0;
    virtual bool anySelected(SelectionKind kind) const = 0;
    virtual std::optional<Id> nextSelected(bool restart, SelectionKind kind) = 0;
};

}
