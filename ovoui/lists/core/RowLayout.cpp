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

RowRange rowsShown(int top, int whole, int count)
{
    return {top, std::min(top + whole + 1, count)};
}

} // namespace ovoui::lists
