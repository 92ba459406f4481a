// CStatusBarCtrl: panes with text along the lower edge of a window.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

/// A status window as a control. Panes count from 0.
class OVOMFC_API CStatusBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Panes
    BOOL SetParts(int count, int* ends);       ///< Right edges in client pixels; -1 is the bar's edge.
    int GetParts(int count, int* ends) const;  ///< Gives how many panes there are.
    BOOL GetRect(int pane, LPRECT rect) const; ///< Client pixels.
    void SetMinHeight(int height);
    BOOL SetSimple(BOOL simple = TRUE);
    BOOL IsSimple() const;

    // Contents. `type` is a combination of SBT_ values.
    BOOL SetText(LPCTSTR text, int pane, int type);
    CString GetText(int pane, int* type = nullptr) const; ///< Of any length.
    /// Copies into `text`, which has room for GetTextLength + 1 characters, and gives the length.
    int GetText(LPCTSTR text, int pane, int* type = nullptr) const;

    /// Draws a pane of type SBT_OWNERDRAW; the bar must override this then.

protected:
};
