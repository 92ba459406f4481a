// CComboBox.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, L"COMBOBOX", nullptr, style | WS_CHILD, rect, parent, id);
}

int CComboBox::AddString(LPCTSTR text)
{
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CComboBox::InsertString(int index, LPCTSTR text)
{
    return static_cast<int>(SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::DeleteString(UINT index)
{
    return static_cast<int>(SendMessage(CB_DELETESTRING, index));
}

void CComboBox::ResetContent()
{
    SendMessage(CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attributes, LPCTSTR wildCard)
{
    return static_cast<int>(SendMessage(CB_DIR, attributes, reinterpret_cast<LPARAM>(wildCard)));
}

int CComboBox::InitStorage(int items, UINT bytes)
{
    return static_cast<int>(SendMessage(CB_INITSTORAGE, static_cast<WPARAM>(items), static_cast<LPARAM>(bytes)));
}

int CComboBox::GetCount() const
{
    return static_cast<int>(SendMessage(CB_GETCOUNT));
}

int CComboBox::FindString(int startAfter, LPCTSTR text) const
{
    return static_cast<int>(SendMessage(CB_FINDSTRING, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::FindStringExact(int startAfter, LPCTSTR text) const
{
    return static_cast<int>(SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::SelectString(int startAfter, LPCTSTR text)
{
    return static_cast<int>(SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::GetLBTextLen(int index) const
{
    return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(index)));
}

DWORD_PTR CComboBox::GetItemData(int index) const
{
    return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CComboBox::SetItemData(int index, DWORD_PTR data)
{
    return static_cast<int>(SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

void* CComboBox::GetItemDataPtr(int index) const
{
    return reinterpret_cast<void*>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CComboBox::SetItemDataPtr(int index, void* data)
{
    return static_cast<int>(SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(data)));
}

int CComboBox::GetCurSel() const
{
    return static_cast<int>(SendMessage(CB_GETCURSEL));
}

int CComboBox::SetCurSel(int index)
{
    return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index)));
}

DWORD CComboBox::GetEditSel() const
{
    return static_cast<DWORD>(SendMessage(CB_GETEDITSEL));
}

BOOL CComboBox::SetEditSel(int start, int end)
{
    return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELONG(start,end)));
}

BOOL CComboBox::LimitText(int chars)
{
    return static_cast<BOOL>(SendMessage(CB_LIMITTEXT, static_cast<WPARAM>(chars)));
}

void CComboBox::Cut()
{
    SendMessage(WM_CUT);
}

void CComboBox::Copy()
{
    SendMessage(WM_COPY);
}

void CComboBox::Paste()
{
    SendMessage(WM_PASTE);
}

void CComboBox::Clear()
{
    SendMessage(WM_CLEAR);
}

BOOL CComboBox::SetCueBanner(LPCTSTR text)
{
    return static_cast<BOOL>(SendMessage(CB_SETCUEBANNER, 0, reinterpret_cast<LPARAM>(text)));
}

void CComboBox::ShowDropDown(BOOL show)
{
    SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(show));
}

BOOL CComboBox::GetDroppedState() const
{
    return static_cast<BOOL>(SendMessage(CB_GETDROPPEDSTATE));
}

void CComboBox::GetDroppedControlRect(LPRECT rect) const
{
    SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(rect));
}

int CComboBox::GetDroppedWidth() const
{
    return static_cast<int>(SendMessage(CB_GETDROPPEDWIDTH));
}

int CComboBox::SetDroppedWidth(UINT width)
{
    return static_cast<int>(SendMessage(CB_SETDROPPEDWIDTH, width));
}

BOOL CComboBox::GetExtendedUI() const
{
    return static_cast<BOOL>(SendMessage(CB_GETEXTENDEDUI));
}

int CComboBox::SetExtendedUI(BOOL extended)
{
    return static_cast<int>(SendMessage(CB_SETEXTENDEDUI, static_cast<WPARAM>(extended)));
}

int CComboBox::GetItemHeight(int index) const
{
    return static_cast<int>(SendMessage(CB_GETITEMHEIGHT, static_cast<WPARAM>(index)));
}

int CComboBox::SetItemHeight(int index, UINT height)
{
    return static_cast<int>(SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(index), static_cast<LPARAM>(height)));
}

int CComboBox::GetTopIndex() const
{
    return static_cast<int>(SendMessage(CB_GETTOPINDEX));
}

int CComboBox::SetTopIndex(int index)
{
    return static_cast<int>(SendMessage(CB_SETTOPINDEX, static_cast<WPARAM>(index)));
}

int CComboBox::GetMinVisible() const
{
    return static_cast<int>(SendMessage(CB_GETMINVISIBLE));
}

BOOL CComboBox::SetMinVisibleItems(int count)
{
    return static_cast<BOOL>(SendMessage(CB_SETMINVISIBLE, static_cast<WPARAM>(count)));
}

UINT CComboBox::GetHorizontalExtent() const
{
    return static_cast<UINT>(SendMessage(CB_GETHORIZONTALEXTENT));
}

void CComboBox::SetHorizontalExtent(UINT extent)
{
    SendMessage(CB_SETHORIZONTALEXTENT, extent);
}

LCID CComboBox::GetLocale() const
{
    return static_cast<LCID>(SendMessage(CB_GETLOCALE));
}

LCID CComboBox::SetLocale(LCID locale)
{
    return static_cast<LCID>(SendMessage(CB_SETLOCALE, static_cast<WPARAM>(locale)));
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO info) const
{
    return static_cast<BOOL>(SendMessage(CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(info)));
}

int CComboBox::GetLBText(int index, LPTSTR text) const
{
    return static_cast<int>(SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

void CComboBox::GetLBText(int index, CString& text) const
{
    text.Empty();
    const int length = GetLBTextLen(index);
    if (length < 0)
        return;
    GetLBText(index, text.GetBuffer(length));
    text.ReleaseBuffer();
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
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
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    ASSERT(FALSE); // a sorted owner-drawn control overrides this
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}
