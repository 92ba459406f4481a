/// What the mouse leads to in a palette that a button has dropped, and in a grid of colours. Plain values, no
/// windows.
#pragma once

namespace ovoui::colour
{

/// The palette has the mouse from the moment it opens.
enum class DropInput
{
    Move,
    Press,
    Release ///< of a click, or of a drag from the button
};

enum class DropAction
{
    Nothing,
    Point, ///< the cell gets the mark
    Choose,
    Close
};

/// `moved`: the pointer is elsewhere than when it was looked at last; a window that opens under a pointer at
/// rest is told of a move, which must not take the mark from the keys. `inside`: in the palette. `onCell`: on
/// a cell or the line below.
DropAction dropAction(DropInput input, bool moved, bool inside, bool onCell);

/// Whether a release in a grid chooses the cell that was pressed; -1 is none. The grid has `count` cells now.
bool choosesPressed(int pressed, int released, int count);

} // namespace ovoui::colour
