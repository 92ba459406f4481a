#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handleof.h>
#include <detail/send.h>

using afxdetail::handleOf;
using afxdetail::pack;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::CTabCtrl() = default;

BOOL CTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_TABCONTROLW, nullptr, style, rect, parent, id);
}

BOOL CTabCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_TABCONTROLW, nullptr, style | WS_CHILD, rect, parent, id);
}

LONG CTabCtrl::InsertItem(int index, TCITEM* item)
{
    return send<LONG>(*this, TCM_INSERTITEMW, index, item);
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

LONG CTabCtrl::InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data, DWORD state,
                          DWORD stateMask)
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

BOOL CTabCtrl::DeleteItem(int index)
{
    return send<BOOL>(*this, TCM_DELETEITEM, index);
}

BOOL CTabCtrl::DeleteAllItems()
{
    return send<BOOL>(*this, TCM_DELETEALLITEMS);
}

int CTabCtrl::GetItemCount() const
{
    return send<int>(*this, TCM_GETITEMCOUNT);
}

BOOL CTabCtrl::GetItem(int index, TCITEM* item) const
{
    return send<BOOL>(*this, TCM_GETITEMW, index, item);
}

BOOL CTabCtrl::SetItem(int index, TCITEM* item)
{
    return send<BOOL>(*this, TCM_SETITEMW, index, item);
}

BOOL CTabCtrl::SetItemExtra(int bytes)
{
    return send<BOOL>(*this, TCM_SETITEMEXTRA, bytes);
}

DWORD CTabCtrl::GetItemState(int index, DWORD mask) const
{
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = mask;
    return GetItem(index, &item) ? item.dwState & mask : 0;
}

BOOL CTabCtrl::SetItemState(int index, DWORD mask, DWORD state)
{
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = mask;
    item.dwState = state;
    return SetItem(index, &item);
}

BOOL CTabCtrl::HighlightItem(int index, BOOL highlight)
{
    return send<BOOL>(*this, TCM_HIGHLIGHTITEM, index, pack(highlight, 0));
}

int CTabCtrl::GetCurSel() const
{
    return send<int>(*this, TCM_GETCURSEL);
}

int CTabCtrl::SetCurSel(int index)
{
    return send<int>(*this, TCM_SETCURSEL, index);
}

int CTabCtrl::GetCurFocus() const
{
    return send<int>(*this, TCM_GETCURFOCUS);
}

void CTabCtrl::SetCurFocus(int index)
{
    send(*this, TCM_SETCURFOCUS, index);
}

void CTabCtrl::DeselectAll(BOOL excludeFocus)
{
    send(*this, TCM_DESELECTALL, excludeFocus);
}

BOOL CTabCtrl::GetItemRect(int index, LPRECT rect) const
{
    return send<BOOL>(*this, TCM_GETITEMRECT, index, rect);
}

int CTabCtrl::HitTest(TCHITTESTINFO* info) const
{
    return send<int>(*this, TCM_HITTEST, 0, info);
}

void CTabCtrl::AdjustRect(BOOL larger, LPRECT rect)
{
    send(*this, TCM_ADJUSTRECT, larger, rect);
}

int CTabCtrl::GetRowCount() const
{
    return send<int>(*this, TCM_GETROWCOUNT);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return CSize(send<DWORD>(*this, TCM_SETITEMSIZE, 0, pack(size.cx, size.cy)));
}

int CTabCtrl::SetMinTabWidth(int width)
{
    return send<int>(*this, TCM_SETMINTABWIDTH, 0, width);
}

void CTabCtrl::SetPadding(CSize size)
{
    send(*this, TCM_SETPADDING, 0, pack(size.cx, size.cy));
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* list)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TCM_SETIMAGELIST, 0, handleOf(list)));
}

void CTabCtrl::RemoveImage(int image)
{
    send(*this, TCM_REMOVEIMAGE, image);
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return afxdetail::controlFrom<CToolTipCtrl>(send<HWND>(*this, TCM_GETTOOLTIPS));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* tip)
{
    send(*this, TCM_SETTOOLTIPS, handleOf(tip));
}

DWORD CTabCtrl::GetExtendedStyle()
{
    return send<DWORD>(*this, TCM_GETEXTENDEDSTYLE);
}

DWORD CTabCtrl::SetExtendedStyle(DWORD style, DWORD mask)
{
    return send<DWORD>(*this, TCM_SETEXTENDEDSTYLE, mask, style);
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
