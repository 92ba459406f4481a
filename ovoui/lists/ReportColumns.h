/// Not exported: the columns of any list in report view.
#pragma once

#include <afxcmn.h>

#include <numeric>
#include <string>
#include <vector>

namespace ovoui::lists
{

/// From left to right. Empty without a header.
inline std::vector<int> columnsAsShown(CListCtrl& list)
{
    const CHeaderCtrl* const header = list.GetHeaderCtrl();
    std::vector<int> order(header ? static_cast<std::size_t>(header->GetItemCount()) : 0);
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
