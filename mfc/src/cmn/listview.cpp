// CListCtrl: columns, where things are, and looks.
#include <afxwin.h>
#include <afxcmn.h>

#include "ownedlist.h"

#include <detail/handleof.h>
#include <detail/send.h>

using afxdetail::controlFrom;
using afxdetail::handleOf;
using afxdetail::pack;
using afxdetail::send;

int CListCtrl::InsertColumn(int column, const LVCOLUMN* info)
{
    return send<int>(*this, LVM_INSERTCOLUMNW, column, info);
}

int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int subItem)
{
    LVCOLUMN info{};
    info.mask = LVCF_TEXT | LVCF_FMT;
    info.pszText = const_cast<LPTSTR>(heading);
    info.fmt = format;
    if (width != -1) {
        info.mask |= LVCF_WIDTH;
        info.cx = width;
    }
    if (subItem != -1) {
        info.mask |= LVCF_SUBITEM;
        info.iSubItem = subItem;
    }
    return InsertColumn(column, &info);
}

BOOL CListCtrl::DeleteColumn(int column)
{
    return send<BOOL>(*this, LVM_DELETECOLUMN, column);
}

BOOL CListCtrl::GetColumn(int column, LVCOLUMN* info) const
{
    return send<BOOL>(*this, LVM_GETCOLUMNW, column, info);
}

BOOL CListCtrl::SetColumn(int column, const LVCOLUMN* info)
{
    return send<BOOL>(*this, LVM_SETCOLUMNW, column, info);
}

int CListCtrl::GetColumnWidth(int column) const
{
    return send<int>(*this, LVM_GETCOLUMNWIDTH, column);
}

BOOL CListCtrl::SetColumnWidth(int column, int width)
{
    return send<BOOL>(*this, LVM_SETCOLUMNWIDTH, column, pack(width, 0));
}

BOOL CListCtrl::GetColumnOrderArray(LPINT order, int count)
{
    if (count == -1) {
        const CHeaderCtrl* header = GetHeaderCtrl();
        count = header ? header->GetItemCount() : -1;
    }
    return count != -1 && send<BOOL>(*this, LVM_GETCOLUMNORDERARRAY, count, order);
}

BOOL CListCtrl::SetColumnOrderArray(int count, LPINT order)
{
    return send<BOOL>(*this, LVM_SETCOLUMNORDERARRAY, count, order);
}

UINT CListCtrl::GetSelectedColumn() const
{
    return send<UINT>(*this, LVM_GETSELECTEDCOLUMN);
}

LRESULT CListCtrl::SetSelectedColumn(int column)
{
    return send(*this, LVM_SETSELECTEDCOLUMN, column);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    return controlFrom<CHeaderCtrl>(send<HWND>(*this, LVM_GETHEADER));
}

BOOL CListCtrl::GetItemRect(int index, LPRECT rect, UINT code) const
{
    rect->left = static_cast<LONG>(code); // the control expects the code here
    return send<BOOL>(*this, LVM_GETITEMRECT, index, rect);
}

BOOL CListCtrl::GetSubItemRect(int index, int subItem, int area, CRect& rect)
{
    rect.top = subItem; // the control expects these here
    rect.left = area;
    return send<BOOL>(*this, LVM_GETSUBITEMRECT, index, static_cast<LPRECT>(&rect));
}

int CListCtrl::HitTest(LVHITTESTINFO* info) const
{
    return send<int>(*this, LVM_HITTEST, 0, info);
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const
{
    LVHITTESTINFO info{};
    info.pt = point;
    const int index = HitTest(&info);
    if (flags)
        *flags = info.flags;
    return index;
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO info)
{
    return send<int>(*this, LVM_SUBITEMHITTEST, 0, info);
}

BOOL CListCtrl::GetItemPosition(int index, LPPOINT point) const
{
    return send<BOOL>(*this, LVM_GETITEMPOSITION, index, point);
}

BOOL CListCtrl::SetItemPosition(int index, POINT point)
{
    return send<BOOL>(*this, LVM_SETITEMPOSITION32, index, &point);
}

BOOL CListCtrl::GetItemSpacing(BOOL smallIcons, int* horizontal, int* vertical) const
{
    const DWORD spacing = send<DWORD>(*this, LVM_GETITEMSPACING, smallIcons);
    *horizontal = LOWORD(spacing);
    *vertical = HIWORD(spacing);
    return spacing != 0;
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    return CSize(send<DWORD>(*this, LVM_SETICONSPACING, 0, pack(cx, cy)));
}

CSize CListCtrl::SetIconSpacing(CSize size)
{
    return SetIconSpacing(size.cx, size.cy);
}

int CListCtrl::GetTopIndex() const
{
    return send<int>(*this, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const
{
    return send<int>(*this, LVM_GETCOUNTPERPAGE);
}

BOOL CListCtrl::GetOrigin(LPPOINT point) const
{
    return send<BOOL>(*this, LVM_GETORIGIN, 0, point);
}

BOOL CListCtrl::GetViewRect(LPRECT rect) const
{
    return send<BOOL>(*this, LVM_GETVIEWRECT, 0, rect);
}

CSize CListCtrl::ApproximateViewRect(CSize size, int count) const
{
    return CSize(send<DWORD>(*this, LVM_APPROXIMATEVIEWRECT, count, pack(size.cx, size.cy)));
}

int CListCtrl::GetStringWidth(LPCTSTR text) const
{
    return send<int>(*this, LVM_GETSTRINGWIDTHW, 0, text);
}

BOOL CListCtrl::EnsureVisible(int index, BOOL partialOk)
{
    return send<BOOL>(*this, LVM_ENSUREVISIBLE, index, partialOk);
}

BOOL CListCtrl::IsItemVisible(int index) const
{
    return send<BOOL>(*this, LVM_ISITEMVISIBLE, index);
}

BOOL CListCtrl::Scroll(CSize size)
{
    return send<BOOL>(*this, LVM_SCROLL, size.cx, size.cy);
}

BOOL CListCtrl::Arrange(UINT code)
{
    return send<BOOL>(*this, LVM_ARRANGE, code);
}

BOOL CListCtrl::RedrawItems(int first, int last)
{
    return send<BOOL>(*this, LVM_REDRAWITEMS, first, last);
}

BOOL CListCtrl::Update(int index)
{
    return send<BOOL>(*this, LVM_UPDATE, index);
}

UINT CListCtrl::GetNumberOfWorkAreas() const
{
    UINT count = 0;
    send(*this, LVM_GETNUMBEROFWORKAREAS, 0, &count);
    return count;
}

void CListCtrl::GetWorkAreas(int count, LPRECT rects) const
{
    send(*this, LVM_GETWORKAREAS, count, rects);
}

void CListCtrl::SetWorkAreas(int count, LPRECT rects)
{
    send(*this, LVM_SETWORKAREAS, count, rects);
}

CImageList* CListCtrl::GetImageList(int type) const
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, LVM_GETIMAGELIST, type));
}

CImageList* CListCtrl::SetImageList(CImageList* list, int type)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, LVM_SETIMAGELIST, type, handleOf(list)));
}

CImageList* CListCtrl::CreateDragImage(int index, LPPOINT point)
{
    return afxdetail::ownedList(send<HIMAGELIST>(*this, LVM_CREATEDRAGIMAGE, index, point));
}

COLORREF CListCtrl::GetBkColor() const
{
    return send<COLORREF>(*this, LVM_GETBKCOLOR);
}

BOOL CListCtrl::SetBkColor(COLORREF colour)
{
    return send<BOOL>(*this, LVM_SETBKCOLOR, 0, colour);
}

COLORREF CListCtrl::GetTextColor() const
{
    return send<COLORREF>(*this, LVM_GETTEXTCOLOR);
}

BOOL CListCtrl::SetTextColor(COLORREF colour)
{
    return send<BOOL>(*this, LVM_SETTEXTCOLOR, 0, colour);
}

COLORREF CListCtrl::GetTextBkColor() const
{
    return send<COLORREF>(*this, LVM_GETTEXTBKCOLOR);
}

BOOL CListCtrl::SetTextBkColor(COLORREF colour)
{
    return send<BOOL>(*this, LVM_SETTEXTBKCOLOR, 0, colour);
}

COLORREF CListCtrl::GetOutlineColor() const
{
    return send<COLORREF>(*this, LVM_GETOUTLINECOLOR);
}

COLORREF CListCtrl::SetOutlineColor(COLORREF colour)
{
    return send<COLORREF>(*this, LVM_SETOUTLINECOLOR, 0, colour);
}

BOOL CListCtrl::GetBkImage(LVBKIMAGE* image) const
{
    return send<BOOL>(*this, LVM_GETBKIMAGEW, 0, image);
}

BOOL CListCtrl::SetBkImage(LVBKIMAGE* image)
{
    return send<BOOL>(*this, LVM_SETBKIMAGEW, 0, image);
}

BOOL CListCtrl::SetBkImage(HBITMAP bitmap, BOOL tile, int xPercent, int yPercent)
{
    LVBKIMAGE image{};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP | (tile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.hbm = bitmap;
    image.xOffsetPercent = xPercent;
    image.yOffsetPercent = yPercent;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetBkImage(LPTSTR url, BOOL tile, int xPercent, int yPercent)
{
    LVBKIMAGE image{};
    image.ulFlags = LVBKIF_SOURCE_URL | (tile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.pszImage = url;
    image.xOffsetPercent = xPercent;
    image.yOffsetPercent = yPercent;
    return SetBkImage(&image);
}

DWORD CListCtrl::GetExtendedStyle()
{
    return send<DWORD>(*this, LVM_GETEXTENDEDLISTVIEWSTYLE);
}

DWORD CListCtrl::SetExtendedStyle(DWORD style)
{
    return send<DWORD>(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, style);
}

DWORD CListCtrl::GetView() const
{
    return send<DWORD>(*this, LVM_GETVIEW);
}

DWORD CListCtrl::SetView(int view)
{
    return send<DWORD>(*this, LVM_SETVIEW, view);
}

HCURSOR CListCtrl::GetHotCursor()
{
    return send<HCURSOR>(*this, LVM_GETHOTCURSOR);
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR cursor)
{
    return send<HCURSOR>(*this, LVM_SETHOTCURSOR, 0, cursor);
}

DWORD CListCtrl::GetHoverTime() const
{
    return send<DWORD>(*this, LVM_GETHOVERTIME);
}

DWORD CListCtrl::SetHoverTime(DWORD time)
{
    return send<DWORD>(*this, LVM_SETHOVERTIME, 0, time);
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return controlFrom<CToolTipCtrl>(send<HWND>(*this, LVM_GETTOOLTIPS));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* tip)
{
    return controlFrom<CToolTipCtrl>(send<HWND>(*this, LVM_SETTOOLTIPS, handleOf(tip)));
}

BOOL CListCtrl::SetInfoTip(PLVSETINFOTIP tip)
{
    return send<BOOL>(*this, LVM_SETINFOTIP, 0, tip);
}

CString CListCtrl::GetEmptyText() const
{
    constexpr int kRoom = 256;
    CString text;
    const BOOL got = send<BOOL>(*this, LVM_GETEMPTYTEXT, kRoom, text.GetBuffer(kRoom));
    text.ReleaseBuffer(got ? -1 : 0);
    return text;
}

BOOL CListCtrl::GetInsertMark(LPLVINSERTMARK mark) const
{
    return send<BOOL>(*this, LVM_GETINSERTMARK, 0, mark);
}

BOOL CListCtrl::SetInsertMark(LPLVINSERTMARK mark)
{
    return send<BOOL>(*this, LVM_SETINSERTMARK, 0, mark);
}

int CListCtrl::GetInsertMarkRect(LPRECT rect) const
{
    return send<int>(*this, LVM_GETINSERTMARKRECT, 0, rect);
}

COLORREF CListCtrl::GetInsertMarkColor() const
{
    return send<COLORREF>(*this, LVM_GETINSERTMARKCOLOR);
}

COLORREF CListCtrl::SetInsertMarkColor(COLORREF colour)
{
    return send<COLORREF>(*this, LVM_SETINSERTMARKCOLOR, 0, colour);
}

int CListCtrl::InsertMarkHitTest(LPPOINT point, LPLVINSERTMARK mark) const
{
    return send<int>(*this, LVM_INSERTMARKHITTEST, point, mark);
}
