/// Rows of toolbar buttons. Plain values, no windows.
#pragma once

#include <span>
#include <vector>

namespace ovoui::toolbar
{

struct RowItem
{
    int width = 0; ///< in pixels
    bool separator = false;
    bool control = false; ///< a separator that keeps the place of an embedded control
    bool hidden = false;
    bool endsRow = false;

    friend bool operator==(const RowItem&, const RowItem&) = default;
};

struct RowsSize
{
    int width = 0;
    int height = 0;

    friend bool operator==(const RowsSize&, const RowsSize&) = default;
};

inline constexpr int kAnyWidth = 0x7FFFFFFF;

/// Breaks the items into rows no wider than `width`, at the last separator of a row if it has one, else
/// behind the last button that fits. A row has one button at least. Controls are kept with the buttons around
/// them.
void splitRows(std::span<RowItem> items, int width);

/// Every button in a row of its own.
void splitIntoColumn(std::span<RowItem> items);

/// The size of all rows as they are broken. A separator that ends a row takes no width; it stands as a gap
/// below it.
RowsSize sizeOfRows(std::span<const RowItem> items, int rowHeight);

/// A width at which the rows are no higher than `height`, or that of one row if none is low enough. It is the
/// least one for buttons alone; with separators, whose gaps come and go, another one may be a little less.
int widthForHeight(std::span<const RowItem> items, int rowHeight, int height);

/// The height of the gap that a separator at the end of a row leaves.
int gapBelow(int separatorWidth);

} // namespace ovoui::toolbar
