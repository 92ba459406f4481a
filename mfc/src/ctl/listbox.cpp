// CListBox.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, L"LISTBOX", nullptr, style | WS_CHILD, rect, parent, id);
}

int CListBox::AddString(LPCTSTR text)
{
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CListBox::InsertString(int index, LPCTSTR text)
{
    return static_cast<int>(SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CListBox::DeleteString(UINT index)
{
    return static_cast<int>(SendMessage(LB_DELETESTRING, index));
}

void CListBox::ResetContent()
{
    SendMessage(LB_RESETCONTENT);
}

int CListBox::Dir(UINT attributes, LPCTSTR wildCard)
{
    return static_cast<int>(SendMessage(LB_DIR, attributes, reinterpret_cast<LPARAM>(wildCard)));
}

int CListBox::InitStorage(int items, UINT bytes)
{
    return static_cast<int>(SendMessage(LB_INITSTORAGE, static_cast<WPARAM>(items), static_cast<LPARAM>(bytes)));
}

int CListBox::GetCount() const
{
    return static_cast<int>(SendMessage(LB_GETCOUNT));
}

int CListBox::FindString(int startAfter, LPCTSTR text) const
{
    return static_cast<int>(SendMessage(LB_FINDSTRING, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CListBox::FindStringExact(int startAfter, LPCTSTR text) const
{
    return static_cast<int>(SendMessage(LB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CListBox::SelectString(int startAfter, LPCTSTR text)
{
    return static_cast<int>(SendMessage(LB_SELECTSTRING, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CListBox::GetTextLen(int index) const
{
    return static_cast<int>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(index)));
}

DWORD_PTR CListBox::GetItemData(int index) const
{
    return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CListBox::SetItemData(int index, DWORD_PTR data)
{
    return static_cast<int>(SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

void* CListBox::GetItemDataPtr(int index) const
{
    return reinterpret_cast<void*>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CListBox::SetItemDataPtr(int index, void* data)
{
    return static_cast<int>(SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(data)));
}

int CListBox::GetCurSel() const
{
    return static_cast<int>(SendMessage(LB_GETCURSEL));
}

int CListBox::SetCurSel(int index)
{
    return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(index)));
}

int CListBox::GetSel(int index) const
{
    return static_cast<int>(SendMessage(LB_GETSEL, static_cast<WPARAM>(index)));
}

int CListBox::SetSel(int index, BOOL select)
{
    return static_cast<int>(SendMessage(LB_SETSEL, static_cast<WPARAM>(select), index));
}

int CListBox::GetSelCount() const
{
    return static_cast<int>(SendMessage(LB_GETSELCOUNT));
}

int CListBox::GetSelItems(int room, LPINT indices) const
{
    return static_cast<int>(SendMessage(LB_GETSELITEMS, static_cast<WPARAM>(room), reinterpret_cast<LPARAM>(indices)));
}

int CListBox::SelItemRange(BOOL select, int first, int last)
{
    return static_cast<int>(SendMessage(LB_SELITEMRANGE, static_cast<WPARAM>(select), MAKELPARAM(first,last)));
}

void CListBox::SetAnchorIndex(int index)
{
    SendMessage(LB_SETANCHORINDEX, static_cast<WPARAM>(index));
}

int CListBox::GetAnchorIndex() const
{
    return static_cast<int>(SendMessage(LB_GETANCHORINDEX));
}

int CListBox::SetCaretIndex(int index, BOOL scroll)
{
    return static_cast<int>(SendMessage(LB_SETCARETINDEX, static_cast<WPARAM>(index), MAKELONG(!scroll,0)));
}

int CListBox::GetCaretIndex() const
{
    return static_cast<int>(SendMessage(LB_GETCARETINDEX));
}

int CListBox::GetTopIndex() const
{
    return static_cast<int>(SendMessage(LB_GETTOPINDEX));
}

int CListBox::SetTopIndex(int index)
{
    return static_cast<int>(SendMessage(LB_SETTOPINDEX, static_cast<WPARAM>(index)));
}

int CListBox::GetItemHeight(int index) const
{
    return static_cast<int>(SendMessage(LB_GETITEMHEIGHT, static_cast<WPARAM>(index)));
}

int CListBox::SetItemHeight(int index, UINT height)
{
    return static_cast<int>(SendMessage(LB_SETITEMHEIGHT, static_cast<WPARAM>(index), static_cast<LPARAM>(height)));
}

int CListBox::GetItemRect(int index, LPRECT rect) const
{
    return static_cast<int>(SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

DWORD CListBox::GetListBoxInfo() const
{
    return static_cast<DWORD>(SendMessage(LB_GETLISTBOXINFO));
}

void CListBox::SetColumnWidth(int width)
{
    SendMessage(LB_SETCOLUMNWIDTH, static_cast<WPARAM>(width));
}

int CListBox::GetHorizontalExtent() const
{
    return static_cast<int>(SendMessage(LB_GETHORIZONTALEXTENT));
}

void CListBox::SetHorizontalExtent(int extent)
{
    SendMessage(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(extent));
}

LCID CListBox::GetLocale() const
{
    return static_cast<LCID>(SendMessage(LB_GETLOCALE));
}

LCID CListBox::SetLocale(LCID locale)
{
    return static_cast<LCID>(SendMessage(LB_SETLOCALE, static_cast<WPARAM>(locale)));
}

int CListBox::GetText(int index, LPTSTR buffer) const
{
    return static_cast<int>(SendMessage(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer)));
}

void CListBox::GetText(int index, CString& text) const
{
    text.Empty();
    const int length = GetTextLen(index);
    if (length < 0)
        return;
    GetText(index, text.GetBuffer(length));
    text.ReleaseBuffer();
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const
{
    const LRESULT found = SendMessage(LB_ITEMFROMPOINT, 0, MAKELONG(point.x, point.y));
    outside = HIWORD(found) != 0;
    return LOWORD(found);
}

void CListBox::SetTabStops()
{
    SendMessage(LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& eachStop)
{
    return static_cast<BOOL>(SendMessage(LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&eachStop)));
}

BOOL CListBox::SetTabStops(int count, LPINT stops)
{
    return static_cast<BOOL>(SendMessage(LB_SETTABSTOPS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(stops)));
}

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
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        *result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    case WM_VKEYTOITEM:
        *result = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_CHARTOITEM:
        *result = CharToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    ASSERT(FALSE); // a sorted owner-drawn control overrides this
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}
