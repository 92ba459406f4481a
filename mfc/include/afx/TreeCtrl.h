// CTreeCtrl: items that open to show more items.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

class CEdit;
class CImageList;
class CToolTipCtrl;

/// A tree view control. Functions of type HTREEITEM give NULL when there is no such item, others FALSE on
/// failure. Image lists and tooltips given to the control stay the caller's; Set functions give those of
/// before.
class OVOMFC_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    CTreeCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Inserting and deleting
    HTREEITEM InsertItem(LPTVINSERTSTRUCT insert);
    HTREEITEM InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask,
                         LPARAM data, HTREEITEM parent, HTREEITEM after);
    HTREEITEM InsertItem(LPCTSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST);
    BOOL DeleteItem(HTREEITEM item); ///< With all below it.
    BOOL DeleteAllItems();
    UINT GetCount() const;

    // Walking
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const; ///< `code` is one of TVGN_.
    HTREEITEM GetRootItem() const;                          ///< The first item of the top level.
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const;
    HTREEITEM GetFirstVisibleItem() const; ///< The first one displayed in the window.
    HTREEITEM GetNextVisibleItem(HTREEITEM item) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM item) const;
    HTREEITEM GetLastVisibleItem() const; ///< The last expanded item, displayed or not.
    HTREEITEM GetSelectedItem() const;
    HTREEITEM GetDropHilightItem() const;
    BOOL ItemHasChildren(HTREEITEM item) const; ///< What the item says of itself.

    // Items
    BOOL GetItem(TVITEM* item) const;
    BOOL SetItem(TVITEM* item);
    BOOL SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                 UINT stateMask, LPARAM data);
    CString GetItemText(HTREEITEM item) const; ///< Of any length.
    BOOL SetItemText(HTREEITEM item, LPCTSTR text);
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    UINT GetItemState(HTREEITEM item, UINT mask) const;
    BOOL SetItemState(HTREEITEM item, UINT state, UINT mask);
    BOOL GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage);
    UINT GetItemStateEx(HTREEITEM item) const;
    BOOL SetItemStateEx(HTREEITEM item, UINT state);
    int GetItemExpandedImageIndex(HTREEITEM item) const;
    BOOL SetItemExpandedImageIndex(HTREEITEM item, int image);
    BOOL GetCheck(HTREEITEM item) const; ///< With TVS_CHECKBOXES.
    BOOL SetCheck(HTREEITEM item, BOOL check = TRUE);

    // Selecting, showing, opening
    BOOL Select(HTREEITEM item, UINT code); ///< TVGN_CARET, TVGN_DROPHILITE or TVGN_FIRSTVISIBLE.
    BOOL SelectItem(HTREEITEM item);        ///< NULL selects none.
    BOOL SelectDropTarget(HTREEITEM item);  ///< NULL highlights none.
    BOOL SelectSetFirstVisible(HTREEITEM item);
    UINT GetSelectedCount();
    BOOL EnsureVisible(HTREEITEM item);
    BOOL Expand(HTREEITEM item, UINT code); ///< TVE_ values.
    BOOL SortChildren(HTREEITEM item);      ///< NULL sorts the top level.
    BOOL SortChildrenCB(LPTVSORTCB sort);
    BOOL SetInsertMark(HTREEITEM item, BOOL after = TRUE); ///< NULL removes the mark.
    /// The caller deletes both the list and the object; NULL on failure.
    CImageList* CreateDragImage(HTREEITEM item);
    void ShowInfoTip(HTREEITEM item);

    // Editing labels
    CEdit* EditLabel(HTREEITEM item); ///< The temporary edit control, which must not be deleted.
    BOOL EndEditLabelNow(BOOL cancel);
    CEdit* GetEditControl() const; ///< NULL when no label is being edited.

    // Where things are
    HTREEITEM HitTest(CPoint point, UINT* flags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* info) const;
    BOOL GetItemRect(HTREEITEM item, LPRECT rect,
                     BOOL textOnly) const; ///< FALSE for an item that is not displayed.
    BOOL GetItemPartRect(HTREEITEM item, int part, LPRECT rect) const; ///< `part` is a TVGIPR_ value.
    UINT GetVisibleCount() const; ///< How many items fit into the window.

    // Looks
    UINT GetIndent() const;
    void SetIndent(UINT indent);
    SHORT GetItemHeight() const;
    SHORT SetItemHeight(SHORT height);
    CImageList* GetImageList(UINT type) const; ///< TVSIL_NORMAL or TVSIL_STATE.
    CImageList* SetImageList(CImageList* list, int type);
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* tip);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF colour);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF colour);
    COLORREF GetLineColor() const;
    COLORREF SetLineColor(COLORREF colour = CLR_DEFAULT);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF colour);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD mask, DWORD style);
    UINT GetScrollTime() const; ///< Milliseconds.
    UINT SetScrollTime(UINT time);
    BOOL SetAutoscrollInfo(UINT pixelsPerSecond, UINT updateTime);

    // Accessibility
    HTREEITEM MapAccIdToItem(UINT id) const;
    UINT MapItemToAccID(HTREEITEM item) const;
};
