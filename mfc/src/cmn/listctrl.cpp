#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::controlFrom;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

namespace
{

constexpr UINT kUnchecked = 1; // state images of check boxes
constexpr UINT kChecked = 2;

// A position is the index plus 1, so that the first item's is not NULL.
POSITION toPosition(int index)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(index) + 1);
}

int toIndex(POSITION position)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
}

} // namespace

CListCtrl::CListCtrl() = default;

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_LISTVIEWW, nullptr, style, rect, parent, id);
}

BOOL CListCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_LISTVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CListCtrl::GetItemCount() const
{
    return send<int>(*this, LVM_GETITEMCOUNT);
}

void CListCtrl::SetItemCount(int count)
{
    send(*this, LVM_SETITEMCOUNT, count);
}

BOOL CListCtrl::SetItemCountEx(int count, DWORD flags)
{
    return send<BOOL>(*this, LVM_SETITEMCOUNT, count, flags);
}

int CListCtrl::InsertItem(const LVITEM* item)
{
    return send<int>(*this, LVM_INSERTITEMW, 0, item);
}

int CListCtrl::InsertItem(int index, LPCTSTR text)
{
    return InsertItem(LVIF_TEXT, index, text, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int index, LPCTSTR text, int image)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, index, text, 0, 0, image, 0);
}

int CListCtrl::InsertItem(UINT mask, int index, LPCTSTR text, UINT state, UINT stateMask, int image,
                          LPARAM data)
{
    LVITEM item{};
    item.mask = mask;
    item.iItem = index;
    item.pszText = const_cast<LPTSTR>(text);
    item.state = state;
    item.stateMask = stateMask;
    item.iImage = image;
    item.lParam = data;
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int index)
{
    return send<BOOL>(*this, LVM_DELETEITEM, index);
}

BOOL CListCtrl::DeleteAllItems()
{
    return send<BOOL>(*this, LVM_DELETEALLITEMS);
}

BOOL CListCtrl::GetItem(LVITEM* item) const
{
    return send<BOOL>(*this, LVM_GETITEMW, 0, item);
}

BOOL CListCtrl::SetItem(const LVITEM* item)
{
    return send<BOOL>(*this, LVM_SETITEMW, 0, item);
}

BOOL CListCtrl::SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state,
                        UINT stateMask, LPARAM data)
{
    return SetItem(index, subItem, mask, text, image, state, stateMask, data, 0);
}

BOOL CListCtrl::SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state,
                        UINT stateMask, LPARAM data, int indent)
{
    LVITEM item{};
    item.mask = mask;
    item.iItem = index;
    item.iSubItem = subItem;
    item.pszText = const_cast<LPTSTR>(text);
    item.iImage = image;
    item.state = state;
    item.stateMask = stateMask;
    item.lParam = data;
    item.iIndent = indent;
    return SetItem(&item);
}

CString CListCtrl::GetItemText(int index, int subItem) const
{
    return afxdetail::textOfAnyLength(
        [=, this](LPTSTR buffer, int room) { return GetItemText(index, subItem, buffer, room); });
}

int CListCtrl::GetItemText(int index, int subItem, LPTSTR text, int room) const
{
    LVITEM item{};
    item.iSubItem = subItem;
    item.pszText = text;
    item.cchTextMax = room;
    *text = 0;
    return send<int>(*this, LVM_GETITEMTEXTW, index, &item);
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCTSTR text)
{
    LVITEM item{};
    item.iSubItem = subItem;
    item.pszText = const_cast<LPTSTR>(text);
    return send<BOOL>(*this, LVM_SETITEMTEXTW, index, &item);
}

DWORD_PTR CListCtrl::GetItemData(int index) const
{
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int index, DWORD_PTR data)
{
    return SetItem(index, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(data));
}

UINT CListCtrl::GetItemState(int index, UINT mask) const
{
    return send<UINT>(*this, LVM_GETITEMSTATE, index, mask);
}

BOOL CListCtrl::SetItemState(int index, LVITEM* item)
{
    return send<BOOL>(*this, LVM_SETITEMSTATE, index, item);
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask)
{
    LVITEM item{};
    item.state = state;
    item.stateMask = mask;
    return SetItemState(index, &item);
}

BOOL CListCtrl::GetCheck(int index) const
{
    return GetItemState(index, LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(kChecked);
}

BOOL CListCtrl::SetCheck(int index, BOOL check)
{
    return SetItemState(index, INDEXTOSTATEIMAGEMASK(check ? kChecked : kUnchecked), LVIS_STATEIMAGEMASK);
}

UINT CListCtrl::GetCallbackMask() const
{
    return send<UINT>(*this, LVM_GETCALLBACKMASK);
}

BOOL CListCtrl::SetCallbackMask(UINT mask)
{
    return send<BOOL>(*this, LVM_SETCALLBACKMASK, mask);
}

int CListCtrl::GetNextItem(int index, int flags) const
{
    return send<int>(*this, LVM_GETNEXTITEM, index, flags);
}

int CListCtrl::FindItem(LVFINDINFO* info, int start) const
{
    return send<int>(*this, LVM_FINDITEMW, start, info);
}

UINT CListCtrl::GetSelectedCount() const
{
    return send<UINT>(*this, LVM_GETSELECTEDCOUNT);
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return toPosition(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const
{
    const int index = toIndex(position);
    position = toPosition(GetNextItem(index, LVNI_SELECTED));
    return index;
}

int CListCtrl::GetSelectionMark()
{
    return send<int>(*this, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int index)
{
    return send<int>(*this, LVM_SETSELECTIONMARK, 0, index);
}

int CListCtrl::GetHotItem()
{
    return send<int>(*this, LVM_GETHOTITEM);
}

int CListCtrl::SetHotItem(int index)
{
    return send<int>(*this, LVM_SETHOTITEM, index);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return send<BOOL>(*this, LVM_SORTITEMS, data, compare);
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return send<BOOL>(*this, LVM_SORTITEMSEX, data, compare);
}

BOOL CListCtrl::GetNextItemIndex(PLVITEMINDEX index, int flags) const
{
    return send<BOOL>(*this, LVM_GETNEXTITEMINDEX, index, MAKELPARAM(flags, 0));
}

BOOL CListCtrl::SetItemIndexState(PLVITEMINDEX index, DWORD state, DWORD mask) const
{
    LVITEM item{};
    item.state = state;
    item.stateMask = mask;
    return SUCCEEDED(send<HRESULT>(*this, LVM_SETITEMINDEXSTATE, index, &item));
}

BOOL CListCtrl::GetItemIndexRect(PLVITEMINDEX index, int column, int type, LPRECT rect) const
{
    // The control expects what is asked where it puts the rectangle.
    rect->top = column;
    rect->left = type;
    return send<BOOL>(*this, LVM_GETITEMINDEXRECT, index, rect);
}

UINT CListCtrl::MapIndexToID(UINT index) const
{
    return send<UINT>(*this, LVM_MAPINDEXTOID, index);
}

UINT CListCtrl::MapIDToIndex(UINT id) const
{
    return send<UINT>(*this, LVM_MAPIDTOINDEX, id);
}

CEdit* CListCtrl::EditLabel(int index)
{
    return controlFrom<CEdit>(send<HWND>(*this, LVM_EDITLABELW, index));
}

void CListCtrl::CancelEditLabel()
{
    send(*this, LVM_CANCELEDITLABEL);
}

CEdit* CListCtrl::GetEditControl() const
{
    return controlFrom<CEdit>(send<HWND>(*this, LVM_GETEDITCONTROL));
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
