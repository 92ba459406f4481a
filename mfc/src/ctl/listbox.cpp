#include <afxwin.h>

#include <detail/items.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_LISTBOXW, nullptr, style, rect, parent, id);
}

int CListBox::AddString(LPCTSTR text)
{
    return send<int>(*this, LB_ADDSTRING, 0, text);
}

int CListBox::InsertString(int index, LPCTSTR text)
{
    return send<int>(*this, LB_INSERTSTRING, index, text);
}

int CListBox::DeleteString(UINT index)
{
    return send<int>(*this, LB_DELETESTRING, index);
}

void CListBox::ResetContent()
{
    send(*this, LB_RESETCONTENT);
}

int CListBox::Dir(UINT attributes, LPCTSTR wildCard)
{
    return send<int>(*this, LB_DIR, attributes, wildCard);
}

int CListBox::InitStorage(int items, UINT bytes)
{
    return send<int>(*this, LB_INITSTORAGE, items, bytes);
}

int CListBox::GetCount() const
{
    return send<int>(*this, LB_GETCOUNT);
}

int CListBox::FindString(int startAfter, LPCTSTR text) const
{
    return send<int>(*this, LB_FINDSTRING, startAfter, text);
}

int CListBox::FindStringExact(int startAfter, LPCTSTR text) const
{
    return send<int>(*this, LB_FINDSTRINGEXACT, startAfter, text);
}

int CListBox::SelectString(int startAfter, LPCTSTR text)
{
    return send<int>(*this, LB_SELECTSTRING, startAfter, text);
}

int CListBox::GetText(int index, LPTSTR buffer) const
{
    return send<int>(*this, LB_GETTEXT, index, buffer);
}

void CListBox::GetText(int index, CString& text) const
{
    afxdetail::itemText(*this, LB_GETTEXTLEN, LB_GETTEXT, index, text);
}

int CListBox::GetTextLen(int index) const
{
    return send<int>(*this, LB_GETTEXTLEN, index);
}

DWORD_PTR CListBox::GetItemData(int index) const
{
    return send<DWORD_PTR>(*this, LB_GETITEMDATA, index);
}

int CListBox::SetItemData(int index, DWORD_PTR data)
{
    return send<int>(*this, LB_SETITEMDATA, index, data);
}

void* CListBox::GetItemDataPtr(int index) const
{
    return reinterpret_cast<void*>(GetItemData(index));
}

int CListBox::SetItemDataPtr(int index, void* data)
{
    return SetItemData(index, reinterpret_cast<DWORD_PTR>(data));
}

int CListBox::GetCurSel() const
{
    return send<int>(*this, LB_GETCURSEL);
}

int CListBox::SetCurSel(int index)
{
    return send<int>(*this, LB_SETCURSEL, index);
}

int CListBox::GetSel(int index) const
{
    return send<int>(*this, LB_GETSEL, index);
}

int CListBox::SetSel(int index, BOOL select)
{
    return send<int>(*this, LB_SETSEL, select, index);
}

int CListBox::GetSelCount() const
{
    return send<int>(*this, LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int room, LPINT indices) const
{
    return send<int>(*this, LB_GETSELITEMS, room, indices);
}

int CListBox::SelItemRange(BOOL select, int first, int last)
{
    return send<int>(*this, LB_SELITEMRANGE, select, afxdetail::pack(first, last));
}

void CListBox::SetAnchorIndex(int index)
{
    send(*this, LB_SETANCHORINDEX, index);
}

int CListBox::GetAnchorIndex() const
{
    return send<int>(*this, LB_GETANCHORINDEX);
}

int CListBox::SetCaretIndex(int index, BOOL scroll)
{
    return send<int>(*this, LB_SETCARETINDEX, index, scroll);
}

int CListBox::GetCaretIndex() const
{
    return send<int>(*this, LB_GETCARETINDEX);
}

int CListBox::GetTopIndex() const
{
    return send<int>(*this, LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int index)
{
    return send<int>(*this, LB_SETTOPINDEX, index);
}

int CListBox::GetItemHeight(int index) const
{
    return send<int>(*this, LB_GETITEMHEIGHT, index);
}

int CListBox::SetItemHeight(int index, UINT height)
{
    return send<int>(*this, LB_SETITEMHEIGHT, index, height);
}

int CListBox::GetItemRect(int index, LPRECT rect) const
{
    return send<int>(*this, LB_GETITEMRECT, index, rect);
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const
{
    const DWORD item = send<DWORD>(*this, LB_ITEMFROMPOINT, 0, afxdetail::pack(point.x, point.y));
    outside = HIWORD(item) != 0;
    return LOWORD(item);
}

DWORD CListBox::GetListBoxInfo() const
{
    return send<DWORD>(*this, LB_GETLISTBOXINFO);
}

void CListBox::SetColumnWidth(int width)
{
    send(*this, LB_SETCOLUMNWIDTH, width);
}

int CListBox::GetHorizontalExtent() const
{
    return send<int>(*this, LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int extent)
{
    send(*this, LB_SETHORIZONTALEXTENT, extent);
}

void CListBox::SetTabStops()
{
    send(*this, LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& eachStop)
{
    return send<BOOL>(*this, LB_SETTABSTOPS, 1, &eachStop);
}

BOOL CListBox::SetTabStops(int count, LPINT stops)
{
    return send<BOOL>(*this, LB_SETTABSTOPS, count, stops);
}

LCID CListBox::GetLocale() const
{
    return send<LCID>(*this, LB_GETLOCALE);
}

LCID CListBox::SetLocale(LCID locale)
{
    return send<LCID>(*this, LB_SETLOCALE, locale);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CListBox::VKeyToItem(UINT, UINT)
{
    return -1;
}

int CListBox::CharToItem(UINT, UINT)
{
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    switch (message) {
    case WM_VKEYTOITEM:
        *result = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_CHARTOITEM:
        *result = CharToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    default:
        return afxdetail::drawsItself(*this, message, lParam, result) ||
               CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}
