// What a click marks, the same on all screens.
#pragma once

#include "Gui/Rules/selection/Selection.h"

#include <optional>

namespace Gui {

// The keys held during a click.
struct ClickKeys {
    bool control = false;
    bool shift = false;
};

struct ClickOutcome {
    bool isDone = false;  // The marks are as the click wants them. Otherwise it was refused and changed nothing.
    bool isLast = false;  // What was clicked is now the last one clicked, from which a later range can begin.

    bool operator==(const ClickOutcome&) const = default;
};

// How ranges differ from screen to screen.
template <class Id>
struct RangeRule {
    std::optional<Id> start;        // Where a range begins; without one, Shift has no effect on what isn't marked yet.
    bool marksWithoutRange = true;  // If there is no range to something unmarked, mark that alone, or else refuse.
};

// Layers and zones: a range begins at the first marked one.
template <class Id>
RangeRule<Id> rangeFromFirst(Selection<Id>& selection, SelectionKind kind) {
    return {selection.firstSelected(kind), true};
}

// Keys and controls: a range begins at the last one clicked, if there is one.
template <class Id>
RangeRule<Id> rangeFromLast(const std::optional<Id>& last) {
    return {last, false};
}

template <class Id>
bool isMoreThanOneSelected(Selection<Id>& selection, SelectionKind kind) {
    return selection.nextSelected(true, kind) && selection.nextSelected(false, kind);
}

namespace SelectionClicks {

template <class Id>
ClickOutcome clickMarked(Selection<Id>& selection, const Id& id, SelectionKind kind, ClickKeys keys,
                         const RangeRule<Id>& range) {
    if (keys.control || !isMoreThanOneSelected(selection, kind)) {
        selection.setSelected(id, false, kind);
        return {true, false};
    }
    if (keys.shift)
        return {range.start && selection.selectRange(*range.start, id, kind), false};
    selection.selectOnly(id, true, kind);
    return {true, true};
}

template <class Id>
ClickOutcome clickUnmarked(Selection<Id>& selection, const Id& id, SelectionKind kind, ClickKeys keys,
                           const RangeRule<Id>& range) {
    if (!keys.control && keys.shift && range.start) {
        if (selection.selectRange(*range.start, id, kind))
            return {true, true};
        if (!range.marksWithoutRange)
            return {};
    } else if (!keys.control) {
        selection.selectOnly(id, true, kind);
        return {true, true};
    }
    selection.setSelected(id, true, kind);
    return {true, true};
}

}

// [gui] Carries out a click on one thing: alone, it marks only that thing or, if nothing else is marked, takes its mark
// away; with Control it inverts that thing's mark; with Shift it marks a range up to that thing.
template <class Id>
ClickOutcome clickSelection(Selection<Id>& selection, const Id& id, SelectionKind kind, ClickKeys keys,
                            const RangeRule<Id>& range) {
    return selection.isSelected(id, kind) ? SelectionClicks::clickMarked(selection, id, kind, keys, range)
                                          : SelectionClicks::clickUnmarked(selection, id, kind, keys, range);
}

}
