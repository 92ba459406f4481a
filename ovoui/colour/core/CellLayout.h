/// Where the cells of a grid of colours go. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>
#include <ovoui/colour/core/WheelKeys.h>

namespace ovoui::colour
{

/// Rows of `columns` cells, all of one size, that fill an area. Between two cells is a fifth of what a cell
/// takes up with its gap, in both directions.
struct CellLayout
{
    frame::Box area;
    int count = 0;
    int columns = 1; ///< at least 1

    int rows() const { return (count + columns - 1) / columns; }
    frame::Box cell(int index) const;
    /// The cell at a point; -1 for none.
    int at(int x, int y) const;
};

/// What a colour button drops: the grid, and below it a line that opens the dialog, where there is one. The
/// line counts as the cell after the last colour.
struct DropLayout
{
    /// Lengths in pixels.
    struct Lengths
    {
        int cell = 18; ///< a cell without its gap, both ways
        int margin = 6;
        int line = 20;     ///< the height of the line
        int lineWidth = 0; ///< what it needs: few columns do not cut its text
    };

    DropLayout(int count, int columns, bool hasLine, const Lengths& lengths);

    int width = 0;
    int height = 0;
    CellLayout cells;
    frame::Box line; ///< empty without one

    int last() const;
    frame::Box place(int index) const;
    int at(int x, int y) const;
    /// What a key leads to.
    int after(int index, WheelKey key) const;
};

/// Where to open what a button drops, in the coordinates of both rectangles: below the button and even with
/// its left side; above it where there is not enough room below, but more above; moved into the work area.
frame::Box dropPlace(const frame::Box& button, int width, int height, const frame::Box& workArea);

} // namespace ovoui::colour
