// CTabCtrl.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::CTabCtrl() = default;

BOOL CTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, WC_TABCONTROLW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CTabCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_TABCONTROLW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CTabCtrl::DeleteItem(int index)
{
    return static_cast<BOOL>(SendMessage(TCM_DELETEITEM, static_cast<WPARAM>(index)));
}

BOOL CTabCtrl::DeleteAllItems()
{
    return static_cast<BOOL>(SendMessage(TCM_DELETEALLITEMS));
}

int CTabCtrl::GetItemCount() const
{
    return static_cast<int>(SendMessage(TCM_GETITEMCOUNT));
}

BOOL CTabCtrl::GetItem(int index, TCITEM* item) const
{
    return static_cast<BOOL>(SendMessage(TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

BOOL CTabCtrl::SetItem(int index, TCITEM* item)
{
    return static_cast<BOOL>(SendMessage(TCM_SETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

BOOL CTabCtrl::SetItemExtra(int bytes)
{
    return static_cast<BOOL>(SendMessage(TCM_SETITEMEXTRA, static_cast<WPARAM>(bytes)));
}

BOOL CTabCtrl::HighlightItem(int index, BOOL highlight)
{
    return static_cast<BOOL>(SendMessage(TCM_HIGHLIGHTITEM, static_cast<WPARAM>(index), highlight));
}

int CTabCtrl::GetCurSel() const
{
    return static_cast<int>(SendMessage(TCM_GETCURSEL));
}

int CTabCtrl::SetCurSel(int index)
{
    return static_cast<int>(SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(index)));
}

int CTabCtrl::GetCurFocus() const
{
    return static_cast<int>(SendMessage(TCM_GETCURFOCUS));
}

void CTabCtrl::SetCurFocus(int index)
{
    SendMessage(TCM_SETCURFOCUS, static_cast<WPARAM>(index));
}

void CTabCtrl::DeselectAll(BOOL excludeFocus)
{
    SendMessage(TCM_DESELECTALL, static_cast<WPARAM>(excludeFocus));
}

BOOL CTabCtrl::GetItemRect(int index, LPRECT rect) const
{
    return static_cast<BOOL>(SendMessage(TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

int CTabCtrl::HitTest(TCHITTESTINFO* info) const
{
    return static_cast<int>(SendMessage(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(info)));
}

void CTabCtrl::AdjustRect(BOOL larger, LPRECT rect)
{
    SendMessage(TCM_ADJUSTRECT, static_cast<WPARAM>(larger), reinterpret_cast<LPARAM>(rect));
}

int CTabCtrl::GetRowCount() const
{
    return static_cast<int>(SendMessage(TCM_GETROWCOUNT));
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return CSize(static_cast<DWORD>(SendMessage(TCM_SETITEMSIZE, 0, static_cast<LPARAM>(MAKELONG(size.cx, size.cy)))));
}

int CTabCtrl::SetMinTabWidth(int width)
{
    return static_cast<int>(SendMessage(TCM_SETMINTABWIDTH, 0, width));
}

void CTabCtrl::SetPadding(CSize size)
{
    SendMessage(TCM_SETPADDING, 0, static_cast<LPARAM>(MAKELONG(size.cx, size.cy)));
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TCM_GETIMAGELIST)));
}

CImageList* CTabCtrl::SetImageList(CImageList* list)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list->GetSafeHandle()))));
}

void CTabCtrl::RemoveImage(int image)
{
    SendMessage(TCM_REMOVEIMAGE, static_cast<WPARAM>(image));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TCM_GETTOOLTIPS))));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* tip)
{
    SendMessage(TCM_SETTOOLTIPS, reinterpret_cast<WPARAM>(tip->GetSafeHwnd()));
}

DWORD CTabCtrl::GetExtendedStyle()
{
    return static_cast<DWORD>(SendMessage(TCM_GETEXTENDEDSTYLE));
}

DWORD CTabCtrl::SetExtendedStyle(DWORD style, DWORD mask)
{
    return static_cast<DWORD>(SendMessage(TCM_SETEXTENDEDSTYLE, static_cast<WPARAM>(mask), static_cast<LPARAM>(style)));
}

LONG CTabCtrl::InsertItem(int index, TCITEM* item)
{
    return static_cast<LONG>(SendMessage(TCM_INSERTITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

LONG CTabCtrl::InsertItem(int index, LPCTSTR text)
{
    return InsertItem(TCIF_TEXT, index, text, 0, 0);
}

LONG CTabCtrl::InsertItem(int index, LPCTSTR text, int image)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, index, text, image, 0);
}

LONG CTabCtrl::InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data)
{
    return InsertItem(mask, index, text, image, data, 0, 0);
}

LONG CTabCtrl::InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data, DWORD state, DWORD stateMask)
{
    TCITEM item{};
    item.mask = mask;
    item.pszText = const_cast<LPTSTR>(text);
    item.iImage = image;
    item.lParam = data;
    item.dwState = state;
    item.dwStateMask = stateMask;
    return InsertItem(index, &item);
}

DWORD CTabCtrl::GetItemState(int index, DWORD mask) const
{
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = mask;
    GetItem(index, &item);
    return item.dwState & mask;
}

BOOL CTabCtrl::SetItemState(int index, DWORD mask, DWORD state)
{
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = mask;
    item.dwState = state;
    return SetItem(index, &item);
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}
