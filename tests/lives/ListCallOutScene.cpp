#include "ListCallOutScene.h"

#include <testkit/Desktop.h>

#include <string>

namespace
{

constexpr int kMostRows = 9;

/// Of the row that was so many rows below the first one: "9 is a long text" and so on.
std::wstring textOf(int number)
{
    return std::to_wstring(kMostRows - number % kMostRows) + L" is a long text";
}

/// Where a row was at first. A virtual list's rows stay where they are.
int numberOf(const COVOListCtrlEx& list, int row)
{
    return list.GetStyle() & LVS_OWNERDATA ? row : list.GetItemText(row, 0).GetAt(4) - L'0';
}

} // namespace

void addColumns(COVOListCtrlEx& list)
{
    for (const wchar_t* heading : {L"Name", L"Text"})
        list.AddColumn(heading, list.GetHeaderCtrl()->GetItemCount(), -1, true,
                       LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM, LVCFMT_LEFT);
}

ListHost::ListHost()
    : RaisingParent({{static_cast<UINT>(LVN_GETDISPINFOW), "LVN_GETDISPINFO"},
                     {static_cast<UINT>(LVN_ITEMCHANGING), "LVN_ITEMCHANGING"},
                     {static_cast<UINT>(LVN_ITEMCHANGED), "LVN_ITEMCHANGED"},
                     {static_cast<UINT>(LVN_COLUMNCLICK), "LVN_COLUMNCLICK"},
                     {static_cast<UINT>(LVN_ODFINDITEMW), "LVN_ODFINDITEM"},
                     {static_cast<UINT>(LVN_KEYDOWN), "LVN_KEYDOWN"},
                     {static_cast<UINT>(HDN_DIVIDERDBLCLICKW), "HDN_DIVIDERDBLCLICK"}})
{
}

LRESULT ListHost::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = RaisingParent::WindowProc(message, wParam, lParam);
    if (message != WM_NOTIFY)
        return result;
    switch (reinterpret_cast<const NMHDR*>(lParam)->code) {
    case static_cast<UINT>(LVN_GETDISPINFOW):
        giveText(*reinterpret_cast<NMLVDISPINFOW*>(lParam));
        return result;
    case static_cast<UINT>(LVN_ODFINDITEMW):
        return rowWith(*reinterpret_cast<const NMLVFINDITEMW*>(lParam));
    default:
        return result;
    }
}

void ListHost::giveText(NMLVDISPINFOW& info)
{
    LVITEMW& item = info.item;
    if (!(item.mask & LVIF_TEXT))
        return;
    ++asked;
    const auto& list = *static_cast<COVOListCtrlEx*>(CWnd::FromHandle(info.hdr.hwndFrom));
    const std::wstring text = item.iSubItem == 1 ? textOf(numberOf(list, item.iItem)) : L"name";
    ::lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
}

LRESULT ListHost::rowWith(const NMLVFINDITEMW& wanted) const
{
    const auto& list = *static_cast<COVOListCtrlEx*>(CWnd::FromHandle(wanted.hdr.hwndFrom));
    for (int row = 0; row < list.GetItemCount(); ++row)
        if (textOf(row).find(wanted.lvfi.psz) != std::wstring::npos)
            return row;
    return -1;
}

ListCallOutScene::ListCallOutScene(DWORD style)
{
    list.Create(kChild | style, CRect(0, 0, 180, 150), &host, 1);
    addColumns(list);
    for (const int column : {0, 1})
        list.SetColumnWidth(column, kWidth);
    for (int row = 0; row < kRows && !(style & LVS_OWNERDATA); ++row) {
        list.InsertItem(row, (L"row " + std::to_wstring(row)).c_str());
        list.SetItemData(row, static_cast<DWORD_PTR>(row));
        list.SetItemText(row, 1, LPSTR_TEXTCALLBACK);
    }
    if (style & LVS_OWNERDATA)
        list.SetItemCount(kRows);
    list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ovo::testkit::present(host);
}

void ListCallOutScene::notifyOfHeading(UINT code, int column)
{
    NMHEADERW told{};
    told.hdr = {*list.GetHeaderCtrl(), 0, code};
    told.iItem = column;
    list.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&told));
}
