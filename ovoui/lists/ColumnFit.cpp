#include <ovoui/lists/ColumnFit.h>

#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/Platform.h>
#include <ovoui/lists/ListCells.h>
#include <ovoui/lists/ManyRows.h>
#include <ovoui/lists/ReportColumns.h>
#include <ovoui/lists/RowData.h>
#include <ovoui/lists/core/RowLayout.h>

#include <algorithm>

namespace ovoui::lists
{

namespace
{

bool isMeasuredByAllRows(const COVOListCtrlEx& list, int column)
{
    return platform().measuresEachRow && hasManyRows(list) &&
           (list.GetStyle() & LVS_TYPEMASK) == LVS_REPORT && column >= 0 && column < columnCount(list);
}

/// The column whose divider a notification tells of; -1 for other notifications.
int doubleClickedDivider(const COVOListCtrlEx& list, const NMHDR& header)
{
    const bool isDivider = header.code == static_cast<UINT>(HDN_DIVIDERDBLCLICKW) ||
                           header.code == static_cast<UINT>(HDN_DIVIDERDBLCLICKA);
    if (!isDivider || header.hwndFrom != ListView_GetHeader(list.m_hWnd))
        return -1;
    return reinterpret_cast<const NMHEADER&>(header).iItem;
}

} // namespace

std::optional<ColumnFit> ColumnFit::wanted(const COVOListCtrlEx& list, UINT message, WPARAM wParam,
                                           LPARAM lParam)
{
    std::optional<ColumnFit> fit;
    if (message == LVM_SETCOLUMNWIDTH) {
        const int width = static_cast<short>(LOWORD(lParam));
        const int column = static_cast<int>(wParam);
        const bool coversHeading = width == LVSCW_AUTOSIZE_USEHEADER;
        // The last column gets what is left of the window then, without measuring.
        if (width == LVSCW_AUTOSIZE || (coversHeading && column != columnCount(list) - 1))
            fit = ColumnFit(column, coversHeading);
    } else if (message == WM_NOTIFY) {
        fit = ColumnFit(doubleClickedDivider(list, *reinterpret_cast<const NMHDR*>(lParam)), false);
    }
    return fit && isMeasuredByAllRows(list, fit->m_column) ? fit : std::nullopt;
}

std::optional<int> ColumnFit::widestText(COVOListCtrlEx& list) const
{
    const Lifeline::Watch watch(list);
    CellText textOf;
    int widest = 0;
    const RowRange shown = rowsShown(list.GetTopIndex(), list.GetCountPerPage(), list.GetItemCount());
    for (int row = shown.first; row < shown.end; ++row) {
        const LPCWSTR text = textOf(list, row, m_column);
        if (!watch.alive())
            return std::nullopt;
        widest = std::max(widest, list.GetStringWidth(text));
    }
    if (m_coversHeading)
        widest = std::max(widest, list.GetStringWidth(headingOf(list, m_column).c_str()));
    return widest;
}

std::optional<int> ColumnFit::width(COVOListCtrlEx& list, int stateImageWidth) const
{
    const std::optional<int> text = widestText(list);
    if (!text || m_column >= columnCount(list))
        return std::nullopt;
    if (m_column != 0)
        return columnWidthFor(*text);
    const int row = list.GetTopIndex();
    const int beforeLabel = itemBox(list, row, LVIR_LABEL).left - itemBox(list, row, LVIR_BOUNDS).left;
    return labelColumnWidthFor(*text, beforeLabel, stateImageWidth);
}

} // namespace ovoui::lists
