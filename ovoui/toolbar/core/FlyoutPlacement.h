/// Where a flyout goes. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>
#include <ovoui/toolbar/core/ButtonRows.h>

#include <span>

namespace ovoui::toolbar
{

/// How a bar lies.
struct BarPosition
{
    bool floating = false;
    int rows = 1;           ///< of buttons; matters for a floating bar
    bool atTheSide = false; ///< docked left or right; matters for a docked bar
};

/// A floating bar is horizontal while it has one row, a docked one unless it is docked at the side.
bool isHorizontal(const BarPosition& bar);

/// Where the top left corner of a flyout of this size belongs: below the button of a horizontal bar, beside
/// that of a vertical one. In a mirrored bar it ends at the button's right edge, or at its left one.
frame::Box flyoutPlace(const frame::Box& button, int width, int height, bool horizontal,
                       bool mirrored = false);

/// A flyout before its entries are broken into rows.
struct FlyoutShape
{
    bool horizontal = false;
    int width = 0; ///< of all entries as they are
    int rowHeight = 0;
};

/// Breaks the entries of a flyout that is longer than the room for it into several rows, or columns.
void breakFlyout(std::span<RowItem> entries, const FlyoutShape& shape, const RowsSize& room);

/// A right-angled triangle of pixels: `size` rows above one another, the lowest as wide, each one pixel
/// shorter than the one below it. All end at the right.
struct CornerMark
{
    int right = 0; ///< exclusive
    int bottom = 0;
    int size = 0;

    friend bool operator==(const CornerMark&, const CornerMark&) = default;
};

/// The mark of a flyout in the lower right corner of its button, in proportion to the button's height.
CornerMark cornerMark(const frame::Box& button);

} // namespace ovoui::toolbar
