// CToolTipCtrl: the small window that explains a tool.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

/// What is known about a tool, with room for its text.
class CToolInfo : public TOOLINFO
{
public:
    TCHAR szText[256];
};

/// A tooltip control.
///
/// A tool is a window (id 0), or an area of a window with an id other than 0. Texts given by resource id are
/// loaded at once, along the resource chain.
class OVOMFC_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();

    virtual BOOL Create(CWnd* parent, DWORD style = 0);

    // Tools
    /// `area` is in client pixels; NULL with an id other than 0 is an error. LPSTR_TEXTCALLBACK makes the
    /// control ask `window` with TTN_NEEDTEXT.
    BOOL AddTool(CWnd* window, UINT textId, LPCRECT area = nullptr, UINT_PTR id = 0);
    BOOL AddTool(CWnd* window, LPCTSTR text = LPSTR_TEXTCALLBACK, LPCRECT area = nullptr, UINT_PTR id = 0);
    void DelTool(CWnd* window, UINT_PTR id = 0);
    int GetToolCount() const;
    /// FALSE when there is no such tool. The text is `info.szText`.

    // Texts
    void UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR id = 0);
    void UpdateTipText(UINT textId, CWnd* window, UINT_PTR id = 0);

    // Showing
    void Activate(BOOL activate);
    void RelayEvent(LPMSG message);
    void Pop();
    int GetDelayTime(DWORD which) const; ///< TTDT_ value; milliseconds.
    void SetDelayTime(UINT delay);       ///< All three, in the default proportions.
    void SetDelayTime(DWORD which, int milliseconds);

    // Looks
    int GetMaxTipWidth() const; ///< Pixels, -1 for any width.
    int SetMaxTipWidth(int width);
};
