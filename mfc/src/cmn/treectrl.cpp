#include <afxwin.h>
#include <afxcmn.h>

#include "ownedlist.h"

#include <detail/handleof.h>
#include <detail/send.h>

#include <cstring>

using afxdetail::controlFrom;
using afxdetail::handleOf;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

CTreeCtrl::CTreeCtrl() = default;

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_TREEVIEWW, nullptr, style, rect, parent, id);
}

BOOL CTreeCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_TREEVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT insert)
{
    return send<HTREEITEM>(*this, TVM_INSERTITEMW, 0, insert);
}

HTREEITEM CTreeCtrl::InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                                UINT stateMask, LPARAM data, HTREEITEM parent, HTREEITEM after)
{
    TVINSERTSTRUCT insert{};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = mask;
    insert.item.pszText = const_cast<LPTSTR>(text);
    insert.item.iImage = image;
    insert.item.iSelectedImage = selectedImage;
    insert.item.state = state;
    insert.item.stateMask = stateMask;
    insert.item.lParam = data;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, HTREEITEM parent, HTREEITEM after)
{
    return InsertItem(TVIF_TEXT, text, 0, 0, 0, 0, 0, parent, after);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent, HTREEITEM after)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, text, image, selectedImage, 0, 0, 0,
                      parent, after);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item)
{
    return send<BOOL>(*this, TVM_DELETEITEM, 0, item);
}

BOOL CTreeCtrl::DeleteAllItems()
{
    return DeleteItem(TVI_ROOT);
}

UINT CTreeCtrl::GetCount() const
{
    return send<UINT>(*this, TVM_GETCOUNT);
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const
{
    return send<HTREEITEM>(*this, TVM_GETNEXTITEM, code, item);
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    return GetNextItem(nullptr, TVGN_ROOT);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_CHILD);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_PARENT);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_NEXT);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_PREVIOUS);
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const
{
    return GetNextItem(nullptr, TVGN_FIRSTVISIBLE);
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_NEXTVISIBLE);
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_PREVIOUSVISIBLE);
}

HTREEITEM CTreeCtrl::GetLastVisibleItem() const
{
    return GetNextItem(nullptr, TVGN_LASTVISIBLE);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    return GetNextItem(nullptr, TVGN_CARET);
}

HTREEITEM CTreeCtrl::GetDropHilightItem() const
{
    return GetNextItem(nullptr, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::Select(HTREEITEM item, UINT code)
{
    return send<BOOL>(*this, TVM_SELECTITEM, code, item);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item)
{
    return Select(item, TVGN_CARET);
}

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM item)
{
    return Select(item, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM item)
{
    return Select(item, TVGN_FIRSTVISIBLE);
}

UINT CTreeCtrl::GetSelectedCount()
{
    return send<UINT>(*this, TVM_GETSELECTEDCOUNT);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item)
{
    return send<BOOL>(*this, TVM_ENSUREVISIBLE, 0, item);
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code)
{
    return send<BOOL>(*this, TVM_EXPAND, code, item);
}

BOOL CTreeCtrl::SortChildren(HTREEITEM item)
{
    return send<BOOL>(*this, TVM_SORTCHILDREN, FALSE, item);
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB sort)
{
    return send<BOOL>(*this, TVM_SORTCHILDRENCB, FALSE, sort);
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM item, BOOL after)
{
    return send<BOOL>(*this, TVM_SETINSERTMARK, after, item);
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM item)
{
    return afxdetail::ownedList(send<HIMAGELIST>(*this, TVM_CREATEDRAGIMAGE, 0, item));
}

void CTreeCtrl::ShowInfoTip(HTREEITEM item)
{
    send(*this, TVM_SHOWINFOTIP, 0, item);
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM item)
{
    return controlFrom<CEdit>(send<HWND>(*this, TVM_EDITLABELW, 0, item));
}

BOOL CTreeCtrl::EndEditLabelNow(BOOL cancel)
{
    return send<BOOL>(*this, TVM_ENDEDITLABELNOW, cancel);
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return controlFrom<CEdit>(send<HWND>(*this, TVM_GETEDITCONTROL));
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* flags) const
{
    TVHITTESTINFO info{};
    info.pt = point;
    const HTREEITEM item = HitTest(&info);
    if (flags)
        *flags = info.flags;
    return item;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* info) const
{
    return send<HTREEITEM>(*this, TVM_HITTEST, 0, info);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const
{
    // The control expects the item where it puts the rectangle.
    std::memcpy(rect, &item, sizeof item);
    return send<BOOL>(*this, TVM_GETITEMRECT, textOnly, rect);
}

BOOL CTreeCtrl::GetItemPartRect(HTREEITEM item, int part, LPRECT rect) const
{
    TVGETITEMPARTRECTINFO info{item, rect, static_cast<TVITEMPART>(part)};
    return send<BOOL>(*this, TVM_GETITEMPARTRECT, 0, &info);
}

UINT CTreeCtrl::GetVisibleCount() const
{
    return send<UINT>(*this, TVM_GETVISIBLECOUNT);
}

UINT CTreeCtrl::GetIndent() const
{
    return send<UINT>(*this, TVM_GETINDENT);
}

void CTreeCtrl::SetIndent(UINT indent)
{
    send(*this, TVM_SETINDENT, indent);
}

SHORT CTreeCtrl::GetItemHeight() const
{
    return send<SHORT>(*this, TVM_GETITEMHEIGHT);
}

SHORT CTreeCtrl::SetItemHeight(SHORT height)
{
    return send<SHORT>(*this, TVM_SETITEMHEIGHT, height);
}

CImageList* CTreeCtrl::GetImageList(UINT type) const
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TVM_GETIMAGELIST, type));
}

CImageList* CTreeCtrl::SetImageList(CImageList* list, int type)
{
    return CImageList::FromHandle(send<HIMAGELIST>(*this, TVM_SETIMAGELIST, type, handleOf(list)));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return controlFrom<CToolTipCtrl>(send<HWND>(*this, TVM_GETTOOLTIPS));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* tip)
{
    return controlFrom<CToolTipCtrl>(send<HWND>(*this, TVM_SETTOOLTIPS, handleOf(tip)));
}

COLORREF CTreeCtrl::GetBkColor() const
{
    return send<COLORREF>(*this, TVM_GETBKCOLOR);
}

COLORREF CTreeCtrl::SetBkColor(COLORREF colour)
{
    return send<COLORREF>(*this, TVM_SETBKCOLOR, 0, colour);
}

COLORREF CTreeCtrl::GetTextColor() const
{
    return send<COLORREF>(*this, TVM_GETTEXTCOLOR);
}

COLORREF CTreeCtrl::SetTextColor(COLORREF colour)
{
    return send<COLORREF>(*this, TVM_SETTEXTCOLOR, 0, colour);
}

COLORREF CTreeCtrl::GetLineColor() const
{
    return send<COLORREF>(*this, TVM_GETLINECOLOR);
}

COLORREF CTreeCtrl::SetLineColor(COLORREF colour)
{
    return send<COLORREF>(*this, TVM_SETLINECOLOR, 0, colour);
}

COLORREF CTreeCtrl::GetInsertMarkColor() const
{
    return send<COLORREF>(*this, TVM_GETINSERTMARKCOLOR);
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF colour)
{
    return send<COLORREF>(*this, TVM_SETINSERTMARKCOLOR, 0, colour);
}

DWORD CTreeCtrl::GetExtendedStyle() const
{
    return send<DWORD>(*this, TVM_GETEXTENDEDSTYLE);
}

DWORD CTreeCtrl::SetExtendedStyle(DWORD mask, DWORD style)
{
    return send<DWORD>(*this, TVM_SETEXTENDEDSTYLE, mask, style);
}

UINT CTreeCtrl::GetScrollTime() const
{
    return send<UINT>(*this, TVM_GETSCROLLTIME);
}

UINT CTreeCtrl::SetScrollTime(UINT time)
{
    return send<UINT>(*this, TVM_SETSCROLLTIME, time);
}

BOOL CTreeCtrl::SetAutoscrollInfo(UINT pixelsPerSecond, UINT updateTime)
{
    return send<BOOL>(*this, TVM_SETAUTOSCROLLINFO, pixelsPerSecond, updateTime);
}

HTREEITEM CTreeCtrl::MapAccIdToItem(UINT id) const
{
    return send<HTREEITEM>(*this, TVM_MAPACCIDTOHTREEITEM, id);
}

UINT CTreeCtrl::MapItemToAccID(HTREEITEM item) const
{
    return send<UINT>(*this, TVM_MAPHTREEITEMTOACCID, item);
}
