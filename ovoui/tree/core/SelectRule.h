/// What is left to do when the tree view was asked to make an item the caret. Plain values, no windows.
#pragma once

#include <cstddef>

namespace ovoui::tree
{

/// The tree view's answer, seen from outside. All items but the wanted one were deselected before.
struct CaretAsked
{
    bool wanted = false;  ///< an item, not none
    bool reached = false; ///< it is the caret now
    bool stayed = false;  ///< the caret is what it was before
    unsigned selectedBefore = 0;
};

enum class AfterAsking
{
    Nothing,
    SelectAndTell, ///< the wanted item is selected, and the parent told
    Tell,
    Select, ///< the wanted item, if it is not selected
    Deselect
};

/// The tree view tells the parent of a caret that moves. Of one that stays it does not, and yet other items
/// may have been deselected. When the parent has refused the caret and none was, the item is not selected.
AfterAsking afterAsking(const CaretAsked& asked);

/// Whether an item that the parent may have refused is selected all the same: not when the parent has chosen
/// another caret instead.
bool selectsForCertain(bool caretReached, bool caretStayed);

/// Whether a caret that follows a key is left to the tree view alone, which tells the parent: where nothing
/// but the caret is selected, and no range is to be. `caretAlone`: the caret is the one item selected.
bool treeViewSelects(std::size_t selected, bool caretAlone, bool range);

/// Which way the message of a key goes on its way to a window in the tree.
enum class TreeKeyRoute
{
    ToEditor,     ///< at once, or a dialog around the tree would take Enter, Escape and Tab
    Accelerators, ///< the tree's accelerators are tried first
    PassOn
};

TreeKeyRoute treeKeyRoute(bool keyboard, bool editing, bool hasAccelerators);

} // namespace ovoui::tree
