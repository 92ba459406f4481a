/// Which look a row of a list has. Plain values, no windows.
#pragma once

namespace ovoui::lists
{

struct RowState
{
    bool selected = false;
    bool dropTarget = false;  ///< something is dragged over it
    bool listFocused = false; ///< the list has the focus
    bool alwaysShown = false; ///< the list shows its selection without the focus, too
};

/// Whether the row is drawn in the colours of a selection.
constexpr bool looksSelected(const RowState& row)
{
    return row.dropTarget || (row.selected && (row.listFocused || row.alwaysShown));
}

} // namespace ovoui::lists
