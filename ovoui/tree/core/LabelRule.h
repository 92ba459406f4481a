/// What becomes of a label that was edited. Plain values, no windows.
#pragma once

#include <string_view>

namespace ovoui::tree
{

/// Whether a node is renamed: not by what it has offered itself.
bool isRenamed(std::wstring_view offered, std::wstring_view typed);

/// What follows when a node has been renamed.
enum class AfterRename
{
    EditAgain, ///< the node has left its text as it was: the user is to correct what was typed
    TakeTyped, ///< the node has taken what was typed
    ShowNodes  ///< it has made something else of it
};

AfterRename afterRename(std::wstring_view before, std::wstring_view after, std::wstring_view typed);

/// What a message to the tree view is about to delete.
enum class ToBeDeleted
{
    Nothing,
    Everything,
    Item,    ///< with all below it
    Children ///< of an item that stays
};

/// What a message to the tree view says of that.
struct DeletingMessage
{
    bool destroysTree = false;
    bool deletes = false; ///< the item that it names, with all below it
    bool empties = false; ///< closes the item that it names for good
    bool all = false;     ///< the item named stands for all, or there is none
};

ToBeDeleted toBeDeleted(const DeletingMessage& message);

/// Whether the editor must be closed first, which must not outlive its item. `isItem`: the edited item is the
/// one that the message names; `isBelow`: it is somewhere below that.
bool closesEditor(ToBeDeleted what, bool isItem, bool isBelow);

} // namespace ovoui::tree
