// CComboBox: a list box that drops down from a field.
#pragma once

#include <afx/Wnd.h>

/// A combo box control. Indices count from 0; functions of type int give CB_ERR (-1) on failure and
/// CB_ERRSPACE (-2) when memory runs out.
class OVOMFC_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Contents of the list
    int AddString(LPCTSTR text);               ///< Gives the index: sorted with CBS_SORT, else last.
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
    int GetLBText(int index,
                  LPTSTR text) const; ///< Gives the length; the buffer has room for GetLBTextLen + 1.
    void GetLBText(int index, CString& text) const; ///< Empty for a wrong index.
    int GetLBTextLen(int index) const;
    DWORD_PTR GetItemData(int index) const; ///< CB_ERR for a wrong index.
    int SetItemData(int index, DWORD_PTR data);
    void* GetItemDataPtr(int index) const;
    int SetItemDataPtr(int index, void* data);

    // Selection and edit field
    int GetCurSel() const;
    int SetCurSel(int index); ///< -1 for none, which also empties the edit field.
    DWORD GetEditSel() const; ///< Low word start, high word end.
    BOOL SetEditSel(int start, int end);
    BOOL LimitText(int chars); ///< For what the user types; 0 is the greatest possible.
    void Cut();
    void Copy();
    void Paste();
    void Clear();
    BOOL SetCueBanner(LPCTSTR text);
    CString GetCueBanner() const; ///< At most 1023 characters.
    BOOL GetCueBanner(LPTSTR text, int room) const;

    // Dropping down and layout, in pixels
    void ShowDropDown(BOOL show = TRUE);
    BOOL GetDroppedState() const;
    void GetDroppedControlRect(LPRECT rect) const; ///< Screen coordinates.
    int GetDroppedWidth() const;
    int SetDroppedWidth(UINT width);
    BOOL GetExtendedUI() const;
    int SetExtendedUI(BOOL extended = TRUE);
    int GetItemHeight(int index) const; ///< -1 for the field.
    int SetItemHeight(int index, UINT height);
    int GetTopIndex() const;
    int SetTopIndex(int index);
    int GetMinVisible() const;
    BOOL SetMinVisibleItems(int count);
    UINT GetHorizontalExtent() const;
    void SetHorizontalExtent(UINT extent);
    LCID GetLocale() const;
    LCID SetLocale(LCID locale);
    BOOL GetComboBoxInfo(PCOMBOBOXINFO info) const;

    // For owner-drawn lists to override. They do nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT items); ///< -1, 0 or 1.
    virtual void DeleteItem(LPDELETEITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
