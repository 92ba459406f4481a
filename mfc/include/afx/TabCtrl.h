// CTabCtrl: a row of tabs above a page.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

class CImageList;
class CToolTipCtrl;

/// A tab control. Indices count from 0 and are -1 on failure.
class OVOMFC_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Tabs
    LONG InsertItem(int index, TCITEM* item);
    LONG InsertItem(int index, LPCTSTR text);
    LONG InsertItem(int index, LPCTSTR text, int image);
    LONG InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data);
    LONG InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data, DWORD state, DWORD stateMask);
    BOOL DeleteItem(int index);
    BOOL DeleteAllItems();
    int GetItemCount() const;
    BOOL GetItem(int index, TCITEM* item) const;
    BOOL SetItem(int index, TCITEM* item);
    BOOL SetItemExtra(int bytes); ///< Bytes of data for each tab; only while there is no tab.
    DWORD GetItemState(int index, DWORD mask) const;
    BOOL SetItemState(int index, DWORD mask, DWORD state);
    BOOL HighlightItem(int index, BOOL highlight = TRUE);

    // Selection and focus
    int GetCurSel() const;
    int SetCurSel(int index); ///< Gives the tab of before; sends no notification.
    int GetCurFocus() const;
    void SetCurFocus(int index); ///< Without TCS_BUTTONS also selects, with notifications.
    void DeselectAll(BOOL excludeFocus);

    // Where things are
    BOOL GetItemRect(int index, LPRECT rect) const;
    int HitTest(TCHITTESTINFO* info) const;
    void AdjustRect(BOOL larger,
                    LPRECT rect); ///< From the page to the control's rectangle (larger), or back.
    int GetRowCount() const;
    CSize SetItemSize(CSize size); ///< Gives the size of before.
    int SetMinTabWidth(int width); ///< Gives the width of before; -1 is the default width.
    void SetPadding(CSize size);

    // Looks
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* list); ///< Gives the list of before.
    void RemoveImage(int image);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* tip);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD style, DWORD mask = 0);

    /// Draws a tab of a control of style TCS_OWNERDRAWFIXED. Does nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
