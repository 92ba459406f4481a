#include <afxwin.h>

#include <detail/items.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_COMBOBOXW, nullptr, style, rect, parent, id);
}

int CComboBox::AddString(LPCTSTR text)
{
    return send<int>(*this, CB_ADDSTRING, 0, text);
}

int CComboBox::InsertString(int index, LPCTSTR text)
{
    return send<int>(*this, CB_INSERTSTRING, index, text);
}

int CComboBox::DeleteString(UINT index)
{
    return send<int>(*this, CB_DELETESTRING, index);
}

void CComboBox::ResetContent()
{
    send(*this, CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attributes, LPCTSTR wildCard)
{
    return send<int>(*this, CB_DIR, attributes, wildCard);
}

int CComboBox::InitStorage(int items, UINT bytes)
{
    return send<int>(*this, CB_INITSTORAGE, items, bytes);
}

int CComboBox::GetCount() const
{
    return send<int>(*this, CB_GETCOUNT);
}

int CComboBox::FindString(int startAfter, LPCTSTR text) const
{
    return send<int>(*this, CB_FINDSTRING, startAfter, text);
}

int CComboBox::FindStringExact(int startAfter, LPCTSTR text) const
{
    return send<int>(*this, CB_FINDSTRINGEXACT, startAfter, text);
}

int CComboBox::SelectString(int startAfter, LPCTSTR text)
{
    return send<int>(*this, CB_SELECTSTRING, startAfter, text);
}

int CComboBox::GetLBText(int index, LPTSTR text) const
{
    return send<int>(*this, CB_GETLBTEXT, index, text);
}

void CComboBox::GetLBText(int index, CString& text) const
{
    afxdetail::itemText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, text);
}

int CComboBox::GetLBTextLen(int index) const
{
    return send<int>(*this, CB_GETLBTEXTLEN, index);
}

DWORD_PTR CComboBox::GetItemData(int index) const
{
    return send<DWORD_PTR>(*this, CB_GETITEMDATA, index);
}

int CComboBox::SetItemData(int index, DWORD_PTR data)
{
    return send<int>(*this, CB_SETITEMDATA, index, data);
}

void* CComboBox::GetItemDataPtr(int index) const
{
    return reinterpret_cast<void*>(GetItemData(index));
}

int CComboBox::SetItemDataPtr(int index, void* data)
{
    return SetItemData(index, reinterpret_cast<DWORD_PTR>(data));
}

int CComboBox::GetCurSel() const
{
    return send<int>(*this, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int index)
{
    return send<int>(*this, CB_SETCURSEL, index);
}

DWORD CComboBox::GetEditSel() const
{
    return send<DWORD>(*this, CB_GETEDITSEL);
}

BOOL CComboBox::SetEditSel(int start, int end)
{
    return send<BOOL>(*this, CB_SETEDITSEL, 0, MAKELONG(start, end));
}

BOOL CComboBox::LimitText(int chars)
{
    return send<BOOL>(*this, CB_LIMITTEXT, chars);
}

void CComboBox::Cut()
{
    send(*this, WM_CUT);
}

void CComboBox::Copy()
{
    send(*this, WM_COPY);
}

void CComboBox::Paste()
{
    send(*this, WM_PASTE);
}

void CComboBox::Clear()
{
    send(*this, WM_CLEAR);
}

BOOL CComboBox::SetCueBanner(LPCTSTR text)
{
    return send<BOOL>(*this, CB_SETCUEBANNER, 0, text);
}

CString CComboBox::GetCueBanner() const
{
    constexpr int kRoom = 1024;
    CString text;
    const BOOL got = GetCueBanner(text.GetBuffer(kRoom), kRoom);
    text.ReleaseBuffer(got ? -1 : 0);
    return text;
}

BOOL CComboBox::GetCueBanner(LPTSTR text, int room) const
{
    return send<BOOL>(*this, CB_GETCUEBANNER, text, room);
}

void CComboBox::ShowDropDown(BOOL show)
{
    send(*this, CB_SHOWDROPDOWN, show);
}

BOOL CComboBox::GetDroppedState() const
{
    return send<BOOL>(*this, CB_GETDROPPEDSTATE);
}

void CComboBox::GetDroppedControlRect(LPRECT rect) const
{
    send(*this, CB_GETDROPPEDCONTROLRECT, 0, rect);
}

int CComboBox::GetDroppedWidth() const
{
    return send<int>(*this, CB_GETDROPPEDWIDTH);
}

int CComboBox::SetDroppedWidth(UINT width)
{
    return send<int>(*this, CB_SETDROPPEDWIDTH, width);
}

BOOL CComboBox::GetExtendedUI() const
{
    return send<BOOL>(*this, CB_GETEXTENDEDUI);
}

int CComboBox::SetExtendedUI(BOOL extended)
{
    return send<int>(*this, CB_SETEXTENDEDUI, extended);
}

int CComboBox::GetItemHeight(int index) const
{
    return send<int>(*this, CB_GETITEMHEIGHT, index);
}

int CComboBox::SetItemHeight(int index, UINT height)
{
    return send<int>(*this, CB_SETITEMHEIGHT, index, height);
}

int CComboBox::GetTopIndex() const
{
    return send<int>(*this, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int index)
{
    return send<int>(*this, CB_SETTOPINDEX, index);
}

int CComboBox::GetMinVisible() const
{
    return send<int>(*this, CB_GETMINVISIBLE);
}

BOOL CComboBox::SetMinVisibleItems(int count)
{
    return send<BOOL>(*this, CB_SETMINVISIBLE, count);
}

UINT CComboBox::GetHorizontalExtent() const
{
    return send<UINT>(*this, CB_GETHORIZONTALEXTENT);
}

void CComboBox::SetHorizontalExtent(UINT extent)
{
    send(*this, CB_SETHORIZONTALEXTENT, extent);
}

LCID CComboBox::GetLocale() const
{
    return send<LCID>(*this, CB_GETLOCALE);
}

LCID CComboBox::SetLocale(LCID locale)
{
    return send<LCID>(*this, CB_SETLOCALE, locale);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO info) const
{
    return send<BOOL>(*this, CB_GETCOMBOBOXINFO, 0, info);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return afxdetail::drawsItself(*this, message, lParam, result) ||
           CWnd::OnChildNotify(message, wParam, lParam, result);
}
