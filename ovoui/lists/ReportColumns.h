/// Not exported: the columns of any list in report view.
#pragma once

#include <afxcmn.h>

#include <numeric>
#include <string>
#include <vector>

namespace ovoui::lists
{

/// 0 without a header.
inline int columnCount(const CListCtrl& list)
{
    const HWND header = ListView_GetHeader(list.m_hWnd);
    return header ? Header_GetItemCount(header) : 0;
}

/// From left to right. Empty without a header.
inline std::vector<int> columnsAsShown(CListCtrl& list)
{
    std::vector<int> order(static_cast<std::size_t>(columnCount(list)));
    if (!order.empty() && !list.GetColumnOrderArray(order.data(), static_cast<int>(order.size())))
        std::iota(order.begin(), order.end(), 0);
    return order;
}

/// At most 259 characters.
inline std::wstring headingOf(const CListCtrl& list, int index)
{
    wchar_t text[260] = {};
    LVCOLUMN column{};
    column.mask = LVCF_TEXT;
    column.pszText = text;
    column.cchTextMax = static_cast<int>(std::size(text));
    return list.GetColumn(index, &column) ? column.pszText : L"";
}

} // namespace ovoui::lists
