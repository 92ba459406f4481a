/// Where the parts of a row in a report list lie.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <vector>

namespace ovoui::lists
{

using frame::Box;

// Pixels between a cell's edges and its text, and what the text's width may not use.
constexpr int kLabelInset = 2;
constexpr int kLabelOffset = 4;
constexpr int kCellInset = 6;
constexpr int kCellOffset = 12;

/// What is filled for a row: from its label to the last column, or to the window's edge if that is further.
Box rowBox(const Box& bounds, const Box& label, int clientWidth);

/// The label as far as its text may go; a state image takes its width from the right.
Box labelTextBox(const Box& label, int stateImageWidth);

/// The cell right of another one.
Box cellAfter(const Box& before, int width);

/// A cell without its insets.
Box textBox(const Box& cell, int inset);

/// How wide a column is that shows a text of this extent whole.
constexpr int columnWidthFor(int extent)
{
    return extent + kCellOffset;
}

/// The same for the first column, whose label begins `beforeLabel` behind the column's left edge.
constexpr int labelColumnWidthFor(int extent, int beforeLabel, int stateImageWidth)
{
    return beforeLabel + columnWidthFor(extent) + stateImageWidth;
}

/// The cell of a row at a horizontal place; -1 beside the cells. Where cells overlap, the first one counts.
int cellAt(const std::vector<Box>& cells, int x);

/// The row at a vertical place, of `count` rows of which `top` is the first that is shown, in the box
/// `topRow`; -1 above and below the rows.
int rowAt(int y, int top, const Box& topRow, int count);

/// The rows from `first` to the one before `end`.
struct RowRange
{
    int first;
    int end;

    friend bool operator==(const RowRange&, const RowRange&) = default;
};

/// What is shown of `count` rows from the row `top` on, where `whole` of them have room: the one behind may
/// be cut.
RowRange rowsShown(int top, int whole, int count);

} // namespace ovoui::lists
