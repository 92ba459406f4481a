// CTreeCtrl.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

CTreeCtrl::CTreeCtrl() = default;

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, WC_TREEVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CTreeCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_TREEVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item)
{
    return static_cast<BOOL>(SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)));
}

UINT CTreeCtrl::GetCount() const
{
    return static_cast<UINT>(SendMessage(TVM_GETCOUNT));
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_ROOT));
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_CHILD, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_PARENT, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_NEXT, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_PREVIOUS, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE));
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_PREVIOUSVISIBLE, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetLastVisibleItem() const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_LASTVISIBLE));
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_CARET));
}

HTREEITEM CTreeCtrl::GetDropHilightItem() const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, TVGN_DROPHILITE));
}

BOOL CTreeCtrl::GetItem(TVITEM* item) const
{
    return static_cast<BOOL>(SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::Select(HTREEITEM item, UINT code)
{
    return static_cast<BOOL>(SendMessage(TVM_SELECTITEM, code, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item)
{
    return static_cast<BOOL>(SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM item)
{
    return static_cast<BOOL>(SendMessage(TVM_SELECTITEM, TVGN_DROPHILITE, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM item)
{
    return static_cast<BOOL>(SendMessage(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item)
{
    return static_cast<BOOL>(SendMessage(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code)
{
    return static_cast<BOOL>(SendMessage(TVM_EXPAND, code, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SortChildren(HTREEITEM item)
{
    return static_cast<BOOL>(SendMessage(TVM_SORTCHILDREN, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB sort)
{
    return static_cast<BOOL>(SendMessage(TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(sort)));
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM item, BOOL after)
{
    return static_cast<BOOL>(SendMessage(TVM_SETINSERTMARK, static_cast<WPARAM>(after), reinterpret_cast<LPARAM>(item)));
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM item)
{
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(item)))));
}

BOOL CTreeCtrl::EndEditLabelNow(BOOL cancel)
{
    return static_cast<BOOL>(SendMessage(TVM_ENDEDITLABELNOW, static_cast<WPARAM>(cancel)));
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_GETEDITCONTROL))));
}

UINT CTreeCtrl::GetVisibleCount() const
{
    return static_cast<UINT>(SendMessage(TVM_GETVISIBLECOUNT));
}

UINT CTreeCtrl::GetIndent() const
{
    return static_cast<UINT>(SendMessage(TVM_GETINDENT));
}

void CTreeCtrl::SetIndent(UINT indent)
{
    SendMessage(TVM_SETINDENT, indent);
}

SHORT CTreeCtrl::GetItemHeight() const
{
    return static_cast<SHORT>(SendMessage(TVM_GETITEMHEIGHT));
}

SHORT CTreeCtrl::SetItemHeight(SHORT height)
{
    return static_cast<SHORT>(SendMessage(TVM_SETITEMHEIGHT, static_cast<WPARAM>(height)));
}

CImageList* CTreeCtrl::GetImageList(UINT type) const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TVM_GETIMAGELIST, type)));
}

CImageList* CTreeCtrl::SetImageList(CImageList* list, int type)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TVM_SETIMAGELIST, static_cast<WPARAM>(type), reinterpret_cast<LPARAM>(list->GetSafeHandle()))));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_GETTOOLTIPS))));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* tip)
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(tip->GetSafeHwnd())))));
}

COLORREF CTreeCtrl::GetBkColor() const
{
    return static_cast<COLORREF>(SendMessage(TVM_GETBKCOLOR));
}

COLORREF CTreeCtrl::SetBkColor(COLORREF colour)
{
    return static_cast<COLORREF>(SendMessage(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(colour)));
}

COLORREF CTreeCtrl::GetTextColor() const
{
    return static_cast<COLORREF>(SendMessage(TVM_GETTEXTCOLOR));
}

COLORREF CTreeCtrl::SetTextColor(COLORREF colour)
{
    return static_cast<COLORREF>(SendMessage(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(colour)));
}

COLORREF CTreeCtrl::GetLineColor() const
{
    return static_cast<COLORREF>(SendMessage(TVM_GETLINECOLOR));
}

COLORREF CTreeCtrl::SetLineColor(COLORREF colour)
{
    return static_cast<COLORREF>(SendMessage(TVM_SETLINECOLOR, 0, static_cast<LPARAM>(colour)));
}

COLORREF CTreeCtrl::GetInsertMarkColor() const
{
    return static_cast<COLORREF>(SendMessage(TVM_GETINSERTMARKCOLOR));
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF colour)
{
    return static_cast<COLORREF>(SendMessage(TVM_SETINSERTMARKCOLOR, 0, static_cast<LPARAM>(colour)));
}

DWORD CTreeCtrl::GetExtendedStyle() const
{
    return static_cast<DWORD>(SendMessage(TVM_GETEXTENDEDSTYLE));
}

DWORD CTreeCtrl::SetExtendedStyle(DWORD mask, DWORD style)
{
    return static_cast<DWORD>(SendMessage(TVM_SETEXTENDEDSTYLE, static_cast<WPARAM>(mask), static_cast<LPARAM>(style)));
}

UINT CTreeCtrl::GetScrollTime() const
{
    return static_cast<UINT>(SendMessage(TVM_GETSCROLLTIME));
}

UINT CTreeCtrl::SetScrollTime(UINT time)
{
    return static_cast<UINT>(SendMessage(TVM_SETSCROLLTIME, time));
}

BOOL CTreeCtrl::SetAutoscrollInfo(UINT pixelsPerSecond, UINT updateTime)
{
    return static_cast<BOOL>(SendMessage(TVM_SETAUTOSCROLLINFO, pixelsPerSecond, static_cast<LPARAM>(updateTime)));
}

HTREEITEM CTreeCtrl::MapAccIdToItem(UINT id) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_MAPACCIDTOHTREEITEM, id));
}

UINT CTreeCtrl::MapItemToAccID(HTREEITEM item) const
{
    return static_cast<UINT>(SendMessage(TVM_MAPHTREEITEMTOACCID, reinterpret_cast<WPARAM>(item)));
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT insert)
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(insert)));
}

HTREEITEM CTreeCtrl::InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask,
                                LPARAM data, HTREEITEM parent, HTREEITEM after)
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
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, text, image, selectedImage, 0, 0, 0, parent, after);
}

BOOL CTreeCtrl::DeleteAllItems()
{
    return DeleteItem(TVI_ROOT);
}

namespace
{

TVITEM itemOf(HTREEITEM item, UINT mask, UINT stateMask = 0)
{
    TVITEM tv{};
    tv.mask = mask | TVIF_HANDLE;
    tv.hItem = item;
    tv.stateMask = stateMask;
    return tv;
}

} // namespace

BOOL CTreeCtrl::SetItem(TVITEM* item)
{
    return static_cast<BOOL>(SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                        UINT stateMask, LPARAM data)
{
    TVITEM tv = itemOf(item, mask, stateMask);
    tv.pszText = const_cast<LPTSTR>(text);
    tv.iImage = image;
    tv.iSelectedImage = selectedImage;
    tv.state = state;
    tv.lParam = data;
    return SetItem(&tv);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const
{
    TVITEM tv = itemOf(item, TVIF_CHILDREN);
    GetItem(&tv);
    return tv.cChildren;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    CString text;
    for (int room = 128;; room *= 2) {
        TVITEM tv = itemOf(item, TVIF_TEXT);
        tv.pszText = text.GetBuffer(room);
        tv.cchTextMax = room;
        if (!GetItem(&tv))
            tv.pszText[0] = 0;
        // The control may answer with a buffer of its own.
        const CString got(tv.pszText);
        if (got.GetLength() < room - 1) {
            text.ReleaseBuffer(0);
            return got;
        }
        text.ReleaseBuffer(0);
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCTSTR text)
{
    return SetItem(item, TVIF_TEXT, text, 0, 0, 0, 0, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const
{
    TVITEM tv = itemOf(item, TVIF_PARAM);
    GetItem(&tv);
    return static_cast<DWORD_PTR>(tv.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data)
{
    return SetItem(item, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(data));
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const
{
    // Unlike TVM_GETITEMSTATE, this works with every version of the control.
    TVITEM tv = itemOf(item, TVIF_STATE, mask);
    GetItem(&tv);
    return tv.state & mask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM item, UINT state, UINT mask)
{
    return SetItem(item, TVIF_STATE, nullptr, 0, 0, state, mask, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const
{
    TVITEM tv = itemOf(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    const BOOL found = GetItem(&tv);
    image = tv.iImage;
    selectedImage = tv.iSelectedImage;
    return found;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage)
{
    return SetItem(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, image, selectedImage, 0, 0, 0);
}

BOOL CTreeCtrl::GetCheck(HTREEITEM item) const
{
    return static_cast<BOOL>((GetItemState(item, TVIS_STATEIMAGEMASK) >> 12) - 1);
}

BOOL CTreeCtrl::SetCheck(HTREEITEM item, BOOL check)
{
    return SetItemState(item, INDEXTOSTATEIMAGEMASK(check ? 2 : 1), TVIS_STATEIMAGEMASK);
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
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(info)));
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const
{
    *reinterpret_cast<HTREEITEM*>(rect) = item;
    return static_cast<BOOL>(SendMessage(TVM_GETITEMRECT, static_cast<WPARAM>(textOnly), reinterpret_cast<LPARAM>(rect)));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM item)
{
    const auto list =
        reinterpret_cast<HIMAGELIST>(SendMessage(TVM_CREATEDRAGIMAGE, 0, reinterpret_cast<LPARAM>(item)));
    if (!list)
        return nullptr;
    auto* image = new CImageList;
    image->Attach(list);
    return image;
}
