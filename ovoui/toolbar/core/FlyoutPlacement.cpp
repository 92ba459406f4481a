#include <ovoui/toolbar/core/FlyoutPlacement.h>

#include <algorithm>

namespace ovoui::toolbar
{

bool isHorizontal(const BarPosition& bar)
{
    return bar.floating ? bar.rows == 1 : !bar.atTheSide;
}

void breakFlyout(std::span<RowItem> entries, const FlyoutShape& shape, const RowsSize& room)
{
    if (shape.horizontal && shape.width <= room.width)
        return; // one row, as it is
    splitRows(entries, shape.horizontal ? room.width : 0);
    if (!shape.horizontal && sizeOfRows(entries, shape.rowHeight).height > room.height)
        splitRows(entries, widthForHeight(entries, shape.rowHeight, room.height));
}

CornerMark cornerMark(const frame::Box& button)
{
    constexpr int kLeast = 3;
    const int size = std::max(kLeast, button.height() / 6);
    const int margin = 1 + button.height() / 24;
    return {button.right - margin, button.bottom - margin, size};
}

frame::Box flyoutPlace(const frame::Box& button, int width, int height, bool horizontal, bool mirrored)
{
    int left = horizontal ? button.left : button.right;
    if (mirrored)
        left = (horizontal ? button.right : button.left) - width;
    const int top = horizontal ? button.bottom : button.top;
    return {left, top, left + width, top + height};
}

} // namespace ovoui::toolbar
