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
/// looked for along the resource chain.
class OVOMFC_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();

    virtual BOOL Create(CWnd* parent, DWORD style = 0);
    virtual BOOL CreateEx(CWnd* parent, DWORD style = 0, DWORD exStyle = 0);

    // Tools
    /// `area` is in client pixels and goes together with an id other than 0. LPSTR_TEXTCALLBACK makes the
    /// control ask with TTN_NEEDTEXT: the window's parent for a whole window, the window for an area of it.
    BOOL AddTool(CWnd* window, UINT textId, LPCRECT area = nullptr, UINT_PTR id = 0);
    BOOL AddTool(CWnd* window, LPCTSTR text = LPSTR_TEXTCALLBACK, LPCRECT area = nullptr, UINT_PTR id = 0);
    void DelTool(CWnd* window, UINT_PTR id = 0);
    int GetToolCount() const;
    /// FALSE when there is no such tool. The text is `info.szText`.
    BOOL GetToolInfo(CToolInfo& info, CWnd* window, UINT_PTR id = 0) const;
    void SetToolInfo(LPTOOLINFO info);
    void SetToolRect(CWnd* window, UINT_PTR id, LPCRECT area);
    BOOL HitTest(CWnd* window, CPoint point, LPTOOLINFO info) const;
    BOOL GetCurrentTool(LPTOOLINFO info) const;

    // Texts
    void GetText(CString& text, CWnd* window, UINT_PTR id = 0) const; ///< At most 1023 characters.
    void UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR id = 0);
    void UpdateTipText(UINT textId, CWnd* window, UINT_PTR id = 0);
    void GetTitle(PTTGETTITLE title) const;
    BOOL SetTitle(UINT icon, LPCTSTR title);

    // Showing
    void Activate(BOOL activate);
    void RelayEvent(LPMSG message);
    void Pop();
    void Popup();
    void Update();
    int GetDelayTime(DWORD which) const; ///< TTDT_ value; milliseconds.
    void SetDelayTime(UINT delay);       ///< All three, in the default proportions.
    void SetDelayTime(DWORD which, int milliseconds);

    // Looks
    int GetMaxTipWidth() const; ///< Pixels, -1 for any width.
    int SetMaxTipWidth(int width);
    void GetMargin(LPRECT margin) const;
    void SetMargin(LPRECT margin);
    COLORREF GetTipBkColor() const;
    void SetTipBkColor(COLORREF colour);
    COLORREF GetTipTextColor() const;
    void SetTipTextColor(COLORREF colour);
    CSize GetBubbleSize(LPTOOLINFO info) const;
    BOOL AdjustRect(LPRECT rect, BOOL larger = TRUE);
    HRESULT SetWindowTheme(LPCWSTR subAppName);
};
