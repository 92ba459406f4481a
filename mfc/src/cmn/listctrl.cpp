// CListCtrl.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CListCtrl::CListCtrl() = default;

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, WC_LISTVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CListCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_LISTVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CListCtrl::GetItemCount() const
{
    return static_cast<int>(SendMessage(LVM_GETITEMCOUNT));
}

void CListCtrl::SetItemCount(int count)
{
    SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(count));
}

BOOL CListCtrl::SetItemCountEx(int count, DWORD flags)
{
    return static_cast<BOOL>(SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), static_cast<LPARAM>(flags)));
}

BOOL CListCtrl::DeleteItem(int index)
{
    return static_cast<BOOL>(SendMessage(LVM_DELETEITEM, static_cast<WPARAM>(index)));
}

BOOL CListCtrl::DeleteAllItems()
{
    return static_cast<BOOL>(SendMessage(LVM_DELETEALLITEMS));
}

BOOL CListCtrl::GetItem(LVITEM* item) const
{
    return static_cast<BOOL>(SendMessage(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

UINT CListCtrl::GetItemState(int index, UINT mask) const
{
    return static_cast<UINT>(SendMessage(LVM_GETITEMSTATE, static_cast<WPARAM>(index), static_cast<LPARAM>(mask)));
}

UINT CListCtrl::GetCallbackMask() const
{
    return static_cast<UINT>(SendMessage(LVM_GETCALLBACKMASK));
}

BOOL CListCtrl::SetCallbackMask(UINT mask)
{
    return static_cast<BOOL>(SendMessage(LVM_SETCALLBACKMASK, mask));
}

int CListCtrl::GetNextItem(int index, int flags) const
{
    return static_cast<int>(SendMessage(LVM_GETNEXTITEM, static_cast<WPARAM>(index), flags));
}

int CListCtrl::FindItem(LVFINDINFO* info, int start) const
{
    return static_cast<int>(SendMessage(LVM_FINDITEMW, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(info)));
}

UINT CListCtrl::GetSelectedCount() const
{
    return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT));
}

int CListCtrl::GetSelectionMark()
{
    return static_cast<int>(SendMessage(LVM_GETSELECTIONMARK));
}

int CListCtrl::SetSelectionMark(int index)
{
    return static_cast<int>(SendMessage(LVM_SETSELECTIONMARK, 0, index));
}

int CListCtrl::GetHotItem()
{
    return static_cast<int>(SendMessage(LVM_GETHOTITEM));
}

int CListCtrl::SetHotItem(int index)
{
    return static_cast<int>(SendMessage(LVM_SETHOTITEM, static_cast<WPARAM>(index)));
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return static_cast<BOOL>(SendMessage(LVM_SORTITEMS, static_cast<WPARAM>(data), reinterpret_cast<LPARAM>(compare)));
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return static_cast<BOOL>(SendMessage(LVM_SORTITEMSEX, static_cast<WPARAM>(data), reinterpret_cast<LPARAM>(compare)));
}

BOOL CListCtrl::DeleteColumn(int column)
{
    return static_cast<BOOL>(SendMessage(LVM_DELETECOLUMN, static_cast<WPARAM>(column)));
}

BOOL CListCtrl::GetColumn(int column, LVCOLUMN* info) const
{
    return static_cast<BOOL>(SendMessage(LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(info)));
}

BOOL CListCtrl::SetColumn(int column, const LVCOLUMN* info)
{
    return static_cast<BOOL>(SendMessage(LVM_SETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(info)));
}

int CListCtrl::GetColumnWidth(int column) const
{
    return static_cast<int>(SendMessage(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

BOOL CListCtrl::SetColumnWidth(int column, int width)
{
    return static_cast<BOOL>(SendMessage(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MAKELPARAM(width,0)));
}

BOOL CListCtrl::SetColumnOrderArray(int count, LPINT order)
{
    return static_cast<BOOL>(SendMessage(LVM_SETCOLUMNORDERARRAY, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(order)));
}

UINT CListCtrl::GetSelectedColumn() const
{
    return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOLUMN));
}

LRESULT CListCtrl::SetSelectedColumn(int column)
{
    return SendMessage(LVM_SETSELECTEDCOLUMN, static_cast<WPARAM>(column));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER))));
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO info)
{
    return static_cast<int>(SendMessage(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(info)));
}

BOOL CListCtrl::GetItemPosition(int index, LPPOINT point) const
{
    return static_cast<BOOL>(SendMessage(LVM_GETITEMPOSITION, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(point)));
}

int CListCtrl::GetTopIndex() const
{
    return static_cast<int>(SendMessage(LVM_GETTOPINDEX));
}

int CListCtrl::GetCountPerPage() const
{
    return static_cast<int>(SendMessage(LVM_GETCOUNTPERPAGE));
}

BOOL CListCtrl::GetOrigin(LPPOINT point) const
{
    return static_cast<BOOL>(SendMessage(LVM_GETORIGIN, 0, reinterpret_cast<LPARAM>(point)));
}

BOOL CListCtrl::GetViewRect(LPRECT rect) const
{
    return static_cast<BOOL>(SendMessage(LVM_GETVIEWRECT, 0, reinterpret_cast<LPARAM>(rect)));
}

int CListCtrl::GetStringWidth(LPCTSTR text) const
{
    return static_cast<int>(SendMessage(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
}

BOOL CListCtrl::EnsureVisible(int index, BOOL partialOk)
{
    return static_cast<BOOL>(SendMessage(LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), partialOk));
}

BOOL CListCtrl::IsItemVisible(int index) const
{
    return static_cast<BOOL>(SendMessage(LVM_ISITEMVISIBLE, static_cast<WPARAM>(index)));
}

BOOL CListCtrl::Scroll(CSize size)
{
    return static_cast<BOOL>(SendMessage(LVM_SCROLL, static_cast<WPARAM>(size.cx), size.cy));
}

BOOL CListCtrl::Arrange(UINT code)
{
    return static_cast<BOOL>(SendMessage(LVM_ARRANGE, code));
}

BOOL CListCtrl::RedrawItems(int first, int last)
{
    return static_cast<BOOL>(SendMessage(LVM_REDRAWITEMS, static_cast<WPARAM>(first), last));
}

BOOL CListCtrl::Update(int index)
{
    return static_cast<BOOL>(SendMessage(LVM_UPDATE, static_cast<WPARAM>(index)));
}

CEdit* CListCtrl::EditLabel(int index)
{
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_EDITLABELW, static_cast<WPARAM>(index)))));
}

void CListCtrl::CancelEditLabel()
{
    SendMessage(LVM_CANCELEDITLABEL);
}

CEdit* CListCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETEDITCONTROL))));
}

CImageList* CListCtrl::GetImageList(int type) const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(LVM_GETIMAGELIST, static_cast<WPARAM>(type))));
}

CImageList* CListCtrl::SetImageList(CImageList* list, int type)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(LVM_SETIMAGELIST, static_cast<WPARAM>(type), reinterpret_cast<LPARAM>(list->GetSafeHandle()))));
}

COLORREF CListCtrl::GetBkColor() const
{
    return static_cast<COLORREF>(SendMessage(LVM_GETBKCOLOR));
}

BOOL CListCtrl::SetBkColor(COLORREF colour)
{
    return static_cast<BOOL>(SendMessage(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(colour)));
}

COLORREF CListCtrl::GetTextColor() const
{
    return static_cast<COLORREF>(SendMessage(LVM_GETTEXTCOLOR));
}

BOOL CListCtrl::SetTextColor(COLORREF colour)
{
    return static_cast<BOOL>(SendMessage(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(colour)));
}

COLORREF CListCtrl::GetTextBkColor() const
{
    return static_cast<COLORREF>(SendMessage(LVM_GETTEXTBKCOLOR));
}

BOOL CListCtrl::SetTextBkColor(COLORREF colour)
{
    return static_cast<BOOL>(SendMessage(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(colour)));
}

DWORD CListCtrl::GetExtendedStyle()
{
    return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE));
}

DWORD CListCtrl::SetExtendedStyle(DWORD style)
{
    return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
}

DWORD CListCtrl::GetView() const
{
    return static_cast<DWORD>(SendMessage(LVM_GETVIEW));
}

DWORD CListCtrl::SetView(int view)
{
    return static_cast<DWORD>(SendMessage(LVM_SETVIEW, static_cast<WPARAM>(view)));
}

HCURSOR CListCtrl::GetHotCursor()
{
    return reinterpret_cast<HCURSOR>(SendMessage(LVM_GETHOTCURSOR));
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR cursor)
{
    return reinterpret_cast<HCURSOR>(SendMessage(LVM_SETHOTCURSOR, 0, reinterpret_cast<LPARAM>(cursor)));
}

DWORD CListCtrl::GetHoverTime() const
{
    return static_cast<DWORD>(SendMessage(LVM_GETHOVERTIME));
}

DWORD CListCtrl::SetHoverTime(DWORD time)
{
    return static_cast<DWORD>(SendMessage(LVM_SETHOVERTIME, 0, static_cast<LPARAM>(time)));
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETTOOLTIPS))));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* tip)
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(tip->GetSafeHwnd())))));
}

int CListCtrl::InsertItem(const LVITEM* item)
{
    return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

int CListCtrl::InsertItem(int index, LPCTSTR text)
{
    return InsertItem(LVIF_TEXT, index, text, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int index, LPCTSTR text, int image)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, index, text, 0, 0, image, 0);
}

int CListCtrl::InsertItem(UINT mask, int index, LPCTSTR text, UINT state, UINT stateMask, int image, LPARAM data)
{
    LVITEM item{};
    item.mask = mask;
    item.iItem = index;
    item.pszText = const_cast<LPTSTR>(text);
    item.state = state;
    item.stateMask = stateMask;
    item.iImage = image;
    item.lParam = data;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItem(const LVITEM* item)
{
    return static_cast<BOOL>(SendMessage(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CListCtrl::SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask,
                        LPARAM data)
{
    return SetItem(index, subItem, mask, text, image, state, stateMask, data, 0);
}

BOOL CListCtrl::SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask,
                        LPARAM data, int indent)
{
    LVITEM item{};
    item.mask = mask;
    item.iItem = index;
    item.iSubItem = subItem;
    item.pszText = const_cast<LPTSTR>(text);
    item.iImage = image;
    item.state = state;
    item.stateMask = stateMask;
    item.lParam = data;
    item.iIndent = indent;
    return SetItem(&item);
}

int CListCtrl::GetItemText(int index, int subItem, LPTSTR text, int room) const
{
    LVITEM item{};
    item.iSubItem = subItem;
    item.pszText = text;
    item.cchTextMax = room;
    return static_cast<int>(SendMessage(LVM_GETITEMTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
}

CString CListCtrl::GetItemText(int index, int subItem) const
{
    CString text;
    for (int room = 128;; room *= 2) {
        const int length = GetItemText(index, subItem, text.GetBuffer(room), room);
        text.ReleaseBuffer(length);
        if (length < room - 1)
            return text;
    }
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCTSTR text)
{
    return SetItem(index, subItem, LVIF_TEXT, text, 0, 0, 0, 0);
}

DWORD_PTR CListCtrl::GetItemData(int index) const
{
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int index, DWORD_PTR data)
{
    return SetItem(index, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(data));
}

BOOL CListCtrl::SetItemState(int index, LVITEM* item)
{
    return static_cast<BOOL>(SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask)
{
    LVITEM item{};
    item.state = state;
    item.stateMask = mask;
    return SetItemState(index, &item);
}

int CListCtrl::InsertColumn(int column, const LVCOLUMN* info)
{
    return static_cast<int>(SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(info)));
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

BOOL CListCtrl::GetItemRect(int index, LPRECT rect, UINT code) const
{
    rect->left = static_cast<LONG>(code);
    return static_cast<BOOL>(SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

BOOL CListCtrl::GetSubItemRect(int index, int subItem, int area, CRect& rect)
{
    RECT asked{area, subItem, 0, 0};
    const BOOL found = static_cast<BOOL>(
        SendMessage(LVM_GETSUBITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&asked)));
    if (found)
        rect = asked;
    return found;
}

int CListCtrl::HitTest(LVHITTESTINFO* info) const
{
    return static_cast<int>(SendMessage(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(info)));
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

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    // One more than the index, so that NULL is free to mean none.
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED) + 1));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const
{
    const int index = static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
    position = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(index, LVNI_SELECTED) + 1));
    return index;
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn control overrides this
}
