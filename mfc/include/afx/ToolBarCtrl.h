// CToolBarCtrl: a row of buttons that send commands.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>
#include <oleidl.h>

class CBitmap;
class CImageList;
class CToolTipCtrl;

/// A toolbar control. Buttons are named by their command id, or by an index from 0 where the parameter says
/// so. Image lists and tooltips given to the control stay the caller's; Set functions give those of before.
class OVOMFC_API CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Buttons
    int GetButtonCount() const;
    BOOL AddButtons(int count, LPTBBUTTON buttons);
    BOOL InsertButton(int index, LPTBBUTTON button);
    BOOL DeleteButton(int index);
    BOOL GetButton(int index, LPTBBUTTON button) const;
    UINT CommandToIndex(UINT id) const;

    // State
    int GetState(int id) const; ///< TBSTATE_ bits, -1 on failure.
    BOOL SetState(int id, UINT state);
    BOOL EnableButton(int id, BOOL enable = TRUE);
    BOOL CheckButton(int id, BOOL check = TRUE);
    BOOL PressButton(int id, BOOL press = TRUE);
    BOOL HideButton(int id, BOOL hide = TRUE);
    BOOL IsButtonEnabled(int id) const;
    BOOL IsButtonChecked(int id) const;
    BOOL IsButtonPressed(int id) const;
    BOOL IsButtonHidden(int id) const;

    // Layout, in client pixels
    BOOL GetItemRect(int index, LPRECT rect) const; ///< FALSE for a hidden button.
    int HitTest(LPPOINT point) const; ///< Index; for a separator or outside, a negative number.
    int GetRows() const;
    void SetRows(int rows, BOOL larger, LPRECT rect); ///< `rect` gets the bar's new rectangle.
    BOOL SetButtonSize(CSize size);
    BOOL SetBitmapSize(CSize size);
    void AutoSize();

    // Pictures and texts
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* list);

    // Dragging and customising

    // Other windows
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* tip);
};
