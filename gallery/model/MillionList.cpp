#include "MillionList.h"

#include "ColourTable.h"
#include "Resolution.h"

#include <ovocor/Colour.h>
#include <ovoui/lists/ListFinder.h>

#include <algorithm>

BEGIN_MESSAGE_MAP(MillionList, COVOListCtrlEx)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, &MillionList::OnGetDispInfo)
    ON_NOTIFY_REFLECT(LVN_ODFINDITEM, &MillionList::OnFindItem)
END_MESSAGE_MAP()

namespace
{

constexpr int kColumn = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;

std::wstring textOf(int row, int column, DWORD entry)
{
    switch (column) {
    case 0:
        return L"Row " + std::to_wstring(row + 1);
    case 1:
        return std::to_wstring(static_cast<long long>(row + 1) * (row + 1));
    default:
        return hexOf(entry);
    }
}

} // namespace

bool MillionList::create(CWnd& parent)
{
    return CreateEx(WS_EX_CLIENTEDGE, WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_OWNERDATA | LVS_SHOWSELALWAYS,
                    CRect(), &parent, 1) != FALSE;
}

void MillionList::fill()
{
    UseRowColours(TRUE);
    AddColumn(L"Row", 0, -1, false, kColumn, LVCFMT_LEFT);
    AddColumn(L"Square", 1, -1, false, kColumn, LVCFMT_RIGHT);
    AddColumn(L"Colour", 2, -1, true, kColumn, LVCFMT_LEFT);
    for (int column = 0; column < 3; ++column)
        SetColumnWidth(column, scaled(m_hWnd, 110));
    SetItemCountEx(kRows);
}

/// Hues go round once in a thousand rows, and the colours fade in and out.
DWORD MillionList::rowColour(int item)
{
    const Colour colour = Colour::hls(Angle::degrees(0.36 * (item % 1000)), 0.5, 0.8);
    const DWORD alpha = static_cast<DWORD>(std::abs(item % 34 - 17) * 15);
    return static_cast<DWORD>(colour.colorref()) | alpha << 24;
}

void MillionList::OnGetDispInfo(NMHDR* header, LRESULT* result)
{
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
    if ((item.mask & LVIF_TEXT) && item.cchTextMax > 0)
        ::lstrcpynW(item.pszText, textOf(item.iItem, item.iSubItem, rowColour(item.iItem)).c_str(),
                    item.cchTextMax);
    *result = 0;
}

/// Finds what is written in a row's first two columns.
void MillionList::OnFindItem(NMHDR* header, LRESULT* result)
{
    const auto& wanted = *reinterpret_cast<NMLVFINDITEM*>(header);
    const std::wstring part = wanted.lvfi.psz;
    *result = -1;
    for (int i = 0; i < kRows && *result == -1; ++i) {
        const int row = (wanted.iStart + i) % kRows;
        if (containsText(textOf(row, 0, 0), part) || containsText(textOf(row, 1, 0), part))
            *result = row;
    }
}
