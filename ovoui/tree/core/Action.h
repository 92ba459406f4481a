/// What the tree does on a click or a key, one step after the other. Plain values, no windows.
#pragma once

#include <algorithm>
#include <vector>

namespace ovoui::tree
{

/// The item aimed at is the one under the pointer, or the one that a key goes to.
enum class Action
{
    LeaveToTreeView, ///< the platform's tree view handles the message

    // The selection. The parent hears of each of these once.
    SelectAlone,      ///< the item becomes the caret and the only selected one; none is selected without one
    SelectForCertain, ///< the same, but it is selected even where the parent refuses it the caret
    Clear,            ///< nothing is selected any more
    SelectRange,      ///< from the anchor to the item, which becomes the caret; cleared without one
    AddRange,         ///< the same beside what is selected already; nothing without an item
    Add,              ///< the item is selected too
    Remove,           ///< the item is not selected any more
    ToggleCaret,      ///< the caret is selected, or not any more
    MoveCaret,        ///< the item becomes the caret; what is selected stays
    SelectAll,        ///< all displayed items are selected

    // The same as LeaveToTreeView; and if that moves the caret,
    FollowAlone, ///< the new caret becomes the only one selected
    FollowRange, ///< what lies from the anchor to the new caret becomes selected

    // What goes with it
    MoveAnchor, ///< the item, or the end of the tree beside which a click was, becomes the end of ranges
    ScrollTo,   ///< the item comes into view
    TakeFocus,
    AwaitDrag, ///< until it is clear whether this is a drag; the rules of the drag or of the release follow
    BeginDrag, ///< the parent is told
    SelectByBand, ///< the rows that the pointer goes over are selected, until the button goes up
    ToggleCheck,  ///< the check box of the item, or of the caret
    AskForMenu,
    EditLater, ///< the label is edited after the double-click time, if no other press comes

    // Commands
    DefaultAction,
    Delete,
    Rename,
    Redraw
};

using Actions = std::vector<Action>;

inline bool contains(const Actions& actions, Action action)
{
    return std::find(actions.begin(), actions.end(), action) != actions.end();
}

} // namespace ovoui::tree
