// CListBox: a list of texts to choose from.
#pragma once

#include <afx/Wnd.h>

/// A list box control. Indices count from 0; functions of type int give LB_ERR (-1) on failure and
/// LB_ERRSPACE (-2) when memory runs out.
class OVOMFC_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Contents
    int AddString(LPCTSTR text);               ///< Gives the index: sorted with LBS_SORT, else last.
    int InsertString(int index, LPCTSTR text); ///< -1 appends; never sorts.
    int DeleteString(UINT index);              ///< Gives how many are left.
    void ResetContent();
    int Dir(UINT attributes, LPCTSTR wildCard); ///< Adds file names.
    int InitStorage(int items, UINT bytes);
    int GetCount() const;
    /// Searches behind `startAfter`, -1 for the whole list, for an item that begins with the text
    /// (FindString) or is the text (FindStringExact), whatever the case.
    int FindString(int startAfter, LPCTSTR text) const;
    int FindStringExact(int startAfter, LPCTSTR text) const;
    int SelectString(int startAfter, LPCTSTR text); ///< Selects what FindString finds.
    int GetText(int index,
                LPTSTR buffer) const; ///< Gives the length; the buffer has room for GetTextLen + 1.
    void GetText(int index, CString& text) const; ///< Empty for a wrong index.
    int GetTextLen(int index) const;
    DWORD_PTR GetItemData(int index) const; ///< LB_ERR for a wrong index.
    int SetItemData(int index, DWORD_PTR data);
    void* GetItemDataPtr(int index) const;
    int SetItemDataPtr(int index, void* data);

    // Selection of one item, and of many with LBS_MULTIPLESEL or LBS_EXTENDEDSEL
    int GetCurSel() const;
    int SetCurSel(int index);                  ///< -1 for none.
    int GetSel(int index) const;               ///< More than 0 when selected.
    int SetSel(int index, BOOL select = TRUE); ///< -1 for all.
    int GetSelCount() const;
    int GetSelItems(int room, LPINT indices) const; ///< Gives how many were put into `indices`.
    int SelItemRange(BOOL select, int first, int last);
    void SetAnchorIndex(int index);
    int GetAnchorIndex() const;
    int SetCaretIndex(int index, BOOL scroll = TRUE);
    int GetCaretIndex() const;

    // Layout, in pixels
    int GetTopIndex() const;
    int SetTopIndex(int index);
    int GetItemHeight(int index) const;
    int SetItemHeight(int index, UINT height);
    int GetItemRect(int index, LPRECT rect) const;
    /// The item nearest to a client point; `outside` tells whether the point is off the client area.
    UINT ItemFromPoint(CPoint point, BOOL& outside) const;
    DWORD GetListBoxInfo() const; ///< Items a column.
    void SetColumnWidth(int width);
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int extent);
    void SetTabStops(); ///< With LBS_USETABSTOPS, as the following, in dialog units.
    BOOL SetTabStops(const int& eachStop);
    BOOL SetTabStops(int count, LPINT stops);
    LCID GetLocale() const;
    LCID SetLocale(LCID locale);

    // For owner-drawn lists to override. They do nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT items); ///< -1, 0 or 1.
    virtual void DeleteItem(LPDELETEITEMSTRUCT item);
    /// With LBS_WANTKEYBOARDINPUT: -2 for no further action, -1 for the default, else the index to act on.
    virtual int VKeyToItem(UINT key, UINT index);
    virtual int CharToItem(UINT key, UINT index);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
