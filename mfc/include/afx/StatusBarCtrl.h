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
    BOOL GetBorders(int* borders) const;       ///< Three values: horizontal, vertical, between panes.
    BOOL GetBorders(int& horizontal, int& vertical, int& spacing) const;
    void SetMinHeight(int height);
    BOOL SetSimple(BOOL simple = TRUE);
    BOOL IsSimple() const;

    // Contents. `type` is a combination of SBT_ values.
    BOOL SetText(LPCTSTR text, int pane, int type);
    CString GetText(int pane, int* type = nullptr) const; ///< Of any length.
    /// Copies into `text`, which has room for GetTextLength + 1 characters, and gives the length.
    int GetText(LPCTSTR text, int pane, int* type = nullptr) const;
    int GetTextLength(int pane, int* type = nullptr) const;
    BOOL SetIcon(int pane, HICON icon);
    HICON GetIcon(int pane) const;
    void SetTipText(int pane, LPCTSTR text);
    CString GetTipText(int pane) const;   ///< At most 255 characters.
    COLORREF SetBkColor(COLORREF colour); ///< Gives the colour of before.

    /// Draws a pane of type SBT_OWNERDRAW. Does nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
