#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handleof.h>
#include <detail/send.h>

using afxdetail::handleOf;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_HEADERW, nullptr, style, rect, parent, id);
}

BOOL CHeaderCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_HEADERW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CHeaderCtrl::GetItemCount() const
{
    return send<int>(*this, HDM_GETITEMCOUNT);
}

int CHeaderCtrl::InsertItem(int position, HDITEM* item)
{
    return send<int>(*this, HDM_INSERTITEMW, position, item);
}

BOOL CHeaderCtrl::DeleteItem(int position)
{
    return send<BOOL>(*this, HDM_DELETEITEM, position);
}

BOOL CHeaderCtrl::GetItem(int position, HDITEM* item) const
{
    return send<BOOL>(*this, HDM_GETITEMW, position, item);
}

BOOL CHeaderCtrl::SetItem(int position, HDITEM* item)
{
    return send<BOOL>(*this, HDM_SETITEMW, position, item);
}

int CHeaderCtrl::GetFocusedItem() const
{
    return send<int>(*this, HDM_GETFOCUSEDITEM);
}

BOOL CHeaderCtrl::SetFocusedItem(int index)
{
    return send<BOOL>(*this, HDM_SETFOCUSEDITEM, 0, index);
}

int CHeaderCtrl::OrderToIndex(int order) const
{
    return send<int>(*this, HDM_ORDERTOINDEX, order);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT order, int count)
{
    return send<BOOL>(*this, HDM_GETORDERARRAY, count, order);
}

BOOL CHeaderCtrl::SetOrderArray(int count, LPINT order)
{
    return send<BOOL>(*this, HDM_SETORDERARRAY, count, order);
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* layout)
{
    return send<BOOL>(*this, HDM_LAYOUT, 0, layout);
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO info)
{
    return send<int>(*this, HDM_HITTEST, 0, info);
}

BOOL CHeaderCtrl::GetItemRect(int index, LPRECT rect) const
{
    return send<BOOL>(*this, HDM_GETITEMRECT, index, rect);
}

BOOL CHeaderCtrl::GetItemDropDownRect(int index, LPRECT rect) const
{
    return send<BOOL>(*this, HDM_GETITEMDROPDOWNRECT, index, rect);
}

BOOL CHeaderCtrl::GetOverflowRect(LPRECT rect) const
{
    return send<BOOL>(*this, HDM_GETOVERFLOWRECT, 0, rect);
}

int CHeaderCtrl::SetHotDivider(CPoint point)
{
    return send<int>(*this, HDM_SETHOTDIVIDER, TRUE, afxdetail::pack(point.x, point.y));
}

int CHeaderCtrl::SetHotDivider(int index)
{
    return send<int>(*this, HDM_SETHOTDIVIDER, FALSE, index);
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, HDM_GETIMAGELIST));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* list)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, HDM_SETIMAGELIST, 0, handleOf(list)));
}

CImageList* CHeaderCtrl::CreateDragImage(int index)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, HDM_CREATEDRAGIMAGE, index));
}

int CHeaderCtrl::GetBitmapMargin() const
{
    return send<int>(*this, HDM_GETBITMAPMARGIN);
}

int CHeaderCtrl::SetBitmapMargin(int width)
{
    return send<int>(*this, HDM_SETBITMAPMARGIN, width);
}

int CHeaderCtrl::SetFilterChangeTimeout(DWORD milliseconds)
{
    return send<int>(*this, HDM_SETFILTERCHANGETIMEOUT, 0, milliseconds);
}

BOOL CHeaderCtrl::EditFilter(int column, BOOL discardChanges)
{
    return send<BOOL>(*this, HDM_EDITFILTER, column, afxdetail::pack(discardChanges, 0));
}

BOOL CHeaderCtrl::ClearFilter(int column)
{
    return send<BOOL>(*this, HDM_CLEARFILTER, column);
}

BOOL CHeaderCtrl::ClearAllFilters()
{
    return ClearFilter(-1);
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
