/// The rules of keys: what each leads to. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/VirtualKeys.h>
#include <ovoui/tree/core/Action.h>

namespace ovoui::tree
{

using namespace keys;

struct KeyPress
{
    unsigned key;
    bool shift;
    bool ctrl;
    bool alt;
    bool hasCaret;            ///< there is a caret
    bool addsRanges = false;  ///< Ctrl+Shift adds a range to the selection
    bool hasCheckBox = false; ///< the caret has a check box
};

/// The item that a key goes to.
enum class Aim
{
    None,
    First, ///< the first of the tree
    Above, ///< the one displayed above the caret
    Below, ///< the one displayed below the caret
    Last,  ///< the last one displayed
    PageAbove,
    PageBelow
};

struct KeyRule
{
    Aim aim;
    Actions actions;
};

/// A key goes down. Where there is no item to go to, nothing is done.
KeyRule keyPressed(const KeyPress& press);

/// A key that goes down with Alt held comes as a message of its own kind.
Actions systemKeyPressed(unsigned key);

/// The character of a key, by which the tree view searches among its items. `ctrl`: Ctrl is held without Alt.
Actions characterTyped(wchar_t character, bool ctrl);

} // namespace ovoui::tree
