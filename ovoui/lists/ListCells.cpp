#include <ovoui/lists/ListCells.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/lists/ColumnShape.h>
#include <ovoui/lists/RowData.h>
#include <ovoui/lists/core/RowLayout.h>

using ovoui::frame::toBox;

namespace ovoui::lists
{

frame::Box itemBox(const COVOListCtrlEx& list, int row, UINT part)
{
    RECT rect{static_cast<LONG>(part), 0, 0, 0};
    return DirectList::ask(list, LVM_GETITEMRECT, row, rect) ? toBox(rect) : frame::Box();
}

frame::Box cellBox(COVOListCtrlEx& list, int row, int column, int width, const frame::Box& before,
                   bool followsOrder)
{
    CRect rect;
    if (column == 0)
        return itemBox(list, row, LVIR_LABEL);
    if (followsOrder && list.GetSubItemRect(row, column, LVIR_BOUNDS, rect))
        return toBox(rect);
    return cellAfter(before, width);
}

int ListCells::rowAt(int y) const
{
    const int top = m_list.GetTopIndex();
    const int count = m_list.GetItemCount();
    return lists::rowAt(y, top, itemBox(m_list, top, LVIR_BOUNDS), count);
}

std::vector<frame::Box> ListCells::cellsOf(int row) const
{
    const Lifeline::Watch watch(m_list);
    std::vector<frame::Box> cells;
    for (const ColumnShape& column : m_list.columnShapes()) {
        cells.push_back(cellBox(m_list, row, static_cast<int>(cells.size()), column.width,
                                cells.empty() ? frame::Box() : cells.back(), m_list.m_followsOrder));
        if (!watch.alive())
            return {};
    }
    return cells;
}

int ListCells::columnAt(int row, int x) const
{
    return cellAt(cellsOf(row), x);
}

std::optional<frame::Box> ListCells::textArea(int row, int column) const
{
    const std::vector<frame::Box> cells = cellsOf(row);
    if (cells.empty() || row >= m_list.GetItemCount() || column < 0 ||
        column >= static_cast<int>(cells.size()))
        return std::nullopt;
    const frame::Box& cell = cells[static_cast<std::size_t>(column)];
    return column == 0 ? labelTextBox(cell, m_list.m_stateImageWidth) : cell;
}

} // namespace ovoui::lists
