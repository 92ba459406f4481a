// Internal: rows of toolbar buttons. Plain values, no windows.
#pragma once

#include "barlayout.h"

#include <span>

namespace afxdetail
{

struct ToolBarItem
{
    int width = 0;
    bool separator = false;
    bool hidden = false;
    bool lastOfRow = false;
};

/// Breaks the items into rows no wider than `width`, at a separator where there is one in the row; a row has
/// at least one button.
void wrapItems(std::span<ToolBarItem> items, int width);

/// The size of all rows. A separator at the end of a row takes no width but stands as a gap below the row.
Extent extentOf(std::span<const ToolBarItem> items, int rowHeight);

/// The narrowest width whose rows are no higher than `height`; the least possible height where none is.
int widthForHeight(std::span<const ToolBarItem> items, int rowHeight, int height);

} // namespace afxdetail
