/// The rules of keys: what each leads to. Plain values, no windows.
#pragma once

#include <ovoui/tree/core/Action.h>

namespace ovoui::tree
{

// The platform's virtual keys
inline constexpr unsigned kVkBack = 0x08;
inline constexpr unsigned kVkReturn = 0x0D;
inline constexpr unsigned kVkSpace = 0x20;
inline constexpr unsigned kVkPageUp = 0x21;
inline constexpr unsigned kVkPageDown = 0x22;
inline constexpr unsigned kVkEnd = 0x23;
inline constexpr unsigned kVkHome = 0x24;
inline constexpr unsigned kVkLeft = 0x25;
inline constexpr unsigned kVkUp = 0x26;
inline constexpr unsigned kVkRight = 0x27;
inline constexpr unsigned kVkDown = 0x28;
inline constexpr unsigned kVkDelete = 0x2E;
inline constexpr unsigned kVkA = 'A';
inline constexpr unsigned kVkF2 = 0x71;
inline constexpr unsigned kVkF5 = 0x74;

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

/// The character of a key, by which the tree view searches among its items.
Actions characterTyped(wchar_t character, bool ctrl);

} // namespace ovoui::tree
