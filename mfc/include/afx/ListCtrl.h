// CListCtrl: items shown as icons, a list or rows of columns.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

class CEdit;
class CHeaderCtrl;
class CImageList;
class CToolTipCtrl;

/// A list view control. Indices count from 0 and are -1 on failure, other results FALSE. Tooltips given to
/// the control stay the caller's, and so do image lists of a control with the style LVS_SHAREIMAGELISTS;
/// without it the control destroys them with itself: Detach them then. Set functions give what was there
/// before.
class OVOMFC_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Items
    int GetItemCount() const;
    void SetItemCount(int count); ///< For virtual lists the count, for others a hint.
    BOOL SetItemCountEx(int count, DWORD flags = LVSICF_NOINVALIDATEALL);
    int InsertItem(const LVITEM* item);
    int InsertItem(int index, LPCTSTR text);
    int InsertItem(int index, LPCTSTR text, int image);
    int InsertItem(UINT mask, int index, LPCTSTR text, UINT state, UINT stateMask, int image, LPARAM data);
    BOOL DeleteItem(int index);
    BOOL DeleteAllItems();
    BOOL GetItem(LVITEM* item) const;
    BOOL SetItem(const LVITEM* item);
    BOOL SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask,
                 LPARAM data);
    BOOL SetItem(int index, int subItem, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask,
                 LPARAM data, int indent);
    CString GetItemText(int index, int subItem) const; ///< Of any length.
    int GetItemText(int index, int subItem, LPTSTR text, int room) const;
    BOOL SetItemText(int index, int subItem, LPCTSTR text);
    DWORD_PTR GetItemData(int index) const;
    BOOL SetItemData(int index, DWORD_PTR data);
    UINT GetItemState(int index, UINT mask) const;
    BOOL SetItemState(int index, LVITEM* item);
    BOOL SetItemState(int index, UINT state, UINT mask);
    BOOL GetCheck(int index) const; ///< With LVS_EX_CHECKBOXES.
    BOOL SetCheck(int index, BOOL check = TRUE);
    UINT GetCallbackMask() const;
    BOOL SetCallbackMask(UINT mask);

    // Searching, selecting, sorting
    int GetNextItem(int index, int flags) const; ///< LVNI_ bits; -1 starts.
    int FindItem(LVFINDINFO* info, int start = -1) const;
    UINT GetSelectedCount() const;
    POSITION GetFirstSelectedItemPosition() const; ///< NULL when nothing is selected.
    int GetNextSelectedItem(POSITION& position) const;
    int GetSelectionMark();
    int SetSelectionMark(int index);
    int GetHotItem();
    int SetHotItem(int index);
    BOOL SortItems(PFNLVCOMPARE compare, DWORD_PTR data);   ///< Compares item data.
    BOOL SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data); ///< Compares indices.
    BOOL GetNextItemIndex(PLVITEMINDEX index, int flags) const;
    BOOL SetItemIndexState(PLVITEMINDEX index, DWORD state, DWORD mask) const;
    BOOL GetItemIndexRect(PLVITEMINDEX index, int column, int type, LPRECT rect) const;
    UINT MapIndexToID(UINT index) const;
    UINT MapIDToIndex(UINT id) const;

    // Columns
    int InsertColumn(int column, const LVCOLUMN* info);
    int InsertColumn(int column, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    BOOL DeleteColumn(int column);
    BOOL GetColumn(int column, LVCOLUMN* info) const;
    BOOL SetColumn(int column, const LVCOLUMN* info);
    int GetColumnWidth(int column) const; ///< Pixels.
    BOOL SetColumnWidth(int column, int width);
    BOOL GetColumnOrderArray(LPINT order, int count = -1); ///< -1 stands for the number of columns.
    BOOL SetColumnOrderArray(int count, LPINT order);
    UINT GetSelectedColumn() const;
    LRESULT SetSelectedColumn(int column);
    CHeaderCtrl* GetHeaderCtrl(); ///< NULL outside report view.

    // Where things are, in client pixels
    BOOL GetItemRect(int index, LPRECT rect, UINT code) const; ///< LVIR_ code.
    BOOL GetSubItemRect(int index, int subItem, int area, CRect& rect);
    int HitTest(LVHITTESTINFO* info) const;
    int HitTest(CPoint point, UINT* flags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO info);
    BOOL GetItemPosition(int index, LPPOINT point) const;
    BOOL SetItemPosition(int index, POINT point);
    BOOL GetItemSpacing(BOOL smallIcons, int* horizontal, int* vertical) const;
    CSize SetIconSpacing(int cx, int cy); ///< Gives the spacing of before.
    CSize SetIconSpacing(CSize size);
    int GetTopIndex() const;
    int GetCountPerPage() const;
    BOOL GetOrigin(LPPOINT point) const;
    BOOL GetViewRect(LPRECT rect) const;
    CSize ApproximateViewRect(CSize size = CSize(-1, -1), int count = -1) const;
    int GetStringWidth(LPCTSTR text) const;
    BOOL EnsureVisible(int index, BOOL partialOk);
    BOOL IsItemVisible(int index) const;
    BOOL Scroll(CSize size);
    BOOL Arrange(UINT code);
    BOOL RedrawItems(int first, int last);
    BOOL Update(int index);
    UINT GetNumberOfWorkAreas() const;
    void GetWorkAreas(int count, LPRECT rects) const;
    void SetWorkAreas(int count, LPRECT rects);

    // Editing labels
    CEdit* EditLabel(int index); ///< The control's own edit control, which must not be deleted.
    void CancelEditLabel();
    CEdit* GetEditControl() const; ///< NULL when no label is being edited.

    // Looks
    CImageList* GetImageList(int type) const; ///< LVSIL_ type.
    CImageList* SetImageList(CImageList* list, int type);
    CImageList* CreateDragImage(int index,
                                LPPOINT point); ///< The caller deletes both the list and the object.
    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF colour);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF colour);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF colour);
    COLORREF GetOutlineColor() const;
    COLORREF SetOutlineColor(COLORREF colour);
    BOOL GetBkImage(LVBKIMAGE* image) const;
    BOOL SetBkImage(LVBKIMAGE* image);
    BOOL SetBkImage(HBITMAP bitmap, BOOL tile = TRUE, int xPercent = 0, int yPercent = 0);
    BOOL SetBkImage(LPTSTR url, BOOL tile = TRUE, int xPercent = 0, int yPercent = 0);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD style);
    DWORD GetView() const;
    DWORD SetView(int view);
    HCURSOR GetHotCursor();
    HCURSOR SetHotCursor(HCURSOR cursor);
    DWORD GetHoverTime() const; ///< Milliseconds, -1 for the system's.
    DWORD SetHoverTime(DWORD time = static_cast<DWORD>(-1));
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* tip);
    BOOL SetInfoTip(PLVSETINFOTIP tip);
    CString GetEmptyText() const; ///< What an empty list shows; at most 255 characters.
    BOOL GetInsertMark(LPLVINSERTMARK mark) const;
    BOOL SetInsertMark(LPLVINSERTMARK mark);
    int GetInsertMarkRect(LPRECT rect) const;
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF colour);
    int InsertMarkHitTest(LPPOINT point, LPLVINSERTMARK mark) const;

    // Tiles and groups
    BOOL GetTileInfo(PLVTILEINFO info) const;
    BOOL SetTileInfo(PLVTILEINFO info);
    BOOL GetTileViewInfo(PLVTILEVIEWINFO info) const;
    BOOL SetTileViewInfo(PLVTILEVIEWINFO info);
    LRESULT EnableGroupView(BOOL enable);
    BOOL IsGroupViewEnabled() const;
    LRESULT InsertGroup(int index, PLVGROUP group);
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED group);
    LRESULT MoveGroup(int groupId, int index);
    void MoveItemToGroup(int item, int groupId);
    LRESULT RemoveGroup(int groupId);
    void RemoveAllGroups();
    BOOL HasGroup(int groupId) const;
    int GetGroupCount() const;
    int GetFocusedGroup() const;
    int GetGroupInfo(int groupId, PLVGROUP group) const;
    BOOL GetGroupInfoByIndex(int index, PLVGROUP group) const;
    int SetGroupInfo(int groupId, PLVGROUP group);
    void GetGroupMetrics(PLVGROUPMETRICS metrics) const;
    void SetGroupMetrics(PLVGROUPMETRICS metrics);
    BOOL GetGroupRect(int groupId, LPRECT rect, int type = LVGGR_GROUP) const;
    UINT GetGroupState(int groupId, DWORD mask) const;
    BOOL SortGroups(PFNLVGROUPCOMPARE compare, LPVOID data);

    /// Draws a row of a list of style LVS_OWNERDRAWFIXED. Does nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
