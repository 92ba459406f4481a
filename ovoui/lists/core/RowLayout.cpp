#include <ovoui/lists/core/RowLayout.h>

#include <algorithm>

namespace ovoui::lists
{

Box rowBox(const Box& bounds, const Box& label, int clientWidth)
{
    return {label.left, bounds.top, std::max(bounds.right, clientWidth), bounds.bottom};
}

Box labelTextBox(const Box& label, int stateImageWidth)
{
    return {label.left, label.top, label.right - stateImageWidth, label.bottom};
}

Box cellAfter(const Box& before, int width)
{
    return {before.right, before.top, before.right + width, before.bottom};
}

Box textBox(const Box& cell, int inset)
{
    return {cell.left + inset, cell.top, cell.right - inset, cell.bottom};
}

int cellAt(const std::vector<Box>& cells, int x)
{
    const auto found = std::find_if(cells.begin(), cells.end(),
                                    [x](const Box& cell) { return cell.left <= x && x < cell.right; });
    return found == cells.end() ? -1 : static_cast<int>(found - cells.begin());
}

int rowAt(int y, int top, const Box& topRow, int count)
{
    if (topRow.height() <= 0 || y < topRow.top)
        return -1;
    const int row = top + (y - topRow.top) / topRow.height();
    return row < count ? row : -1;
}

RowRange rowsShown(int top, int whole, int count)
{
    return {top, std::min(top + whole + 1, count)};
}

} // namespace ovoui::lists
