/// The rules of clicks: what a press, a release and a double click lead to. Plain values, no windows.
#pragma once

#include <ovoui/tree/core/Action.h>

namespace ovoui::tree
{

/// The keys that count.
enum class Held
{
    Nothing = 1,
    Ctrl = 2,
    Shift = 4,
    CtrlShift = 8
};

/// With Shift, Ctrl counts only where ranges can be added.
constexpr Held held(bool shift, bool ctrl, bool addsRanges = false)
{
    if (shift)
        return ctrl && addsRanges ? Held::CtrlShift : Held::Shift;
    return ctrl ? Held::Ctrl : Held::Nothing;
}

/// Where a click is, as far as the rules are concerned.
enum class Where
{
    Item = 1,      ///< on icon, label or state icon
    Beside = 2,    ///< in the row of an item, left or right of these
    Empty = 4,     ///< where there is no item
    Elsewhere = 8, ///< on the button that opens an item, or another part that the tree view looks after
    CheckBox = 16  ///< on the check box of an item
};

/// `flags` are those of the hit test. `hasCheckBox`: the item has one, which takes this button.
Where placeOfPress(bool hasItem, unsigned flags, bool hasCheckBox = false);
/// For releases and double clicks the row beside an item is the tree view's.
Where placeOfRelease(bool hasItem, unsigned flags, bool hasCheckBox = false);

struct ButtonPress
{
    Held held;
    Where where;
    bool selected; ///< the item is selected
};

/// A button goes down.
Actions pressed(const ButtonPress& press);

/// Whether a press has changed the selection already, so that its release leaves it alone.
bool isSettledBy(const Actions& press);

struct ButtonRelease
{
    Held held;
    Where where;   ///< of the press
    bool right;    ///< the right button
    bool settled;  ///< see isSettledBy
    bool editable; ///< the press was on the label of the caret, and labels can be edited
};

struct Drag
{
    Where where; ///< of the press
    bool right;  ///< the right button
    bool bands;  ///< a drag from where no item is selects by a band
};

/// The pointer moves off with the button down.
Actions dragged(const Drag& drag);

/// The button goes up again without a drag in between.
Actions releasedAfterPress(const ButtonRelease& release);

/// A release that comes as a message of its own: after a click with Shift, or a double click.
Actions released(const ButtonRelease& release);

struct DoubleClick
{
    Held held;
    Where where;
    bool onEmptySpace; ///< as the hit test says, whatever item there is
};

/// Of the left button.
Actions doubleClicked(const DoubleClick& click);

} // namespace ovoui::tree
