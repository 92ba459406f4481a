// CStatusBar: the line at the bottom of a frame.
#pragma once

#include <afx/ControlBar.h>
#include <afx/StatusBarCtrl.h>

// Styles of panes
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000 // the text is not shown
#define SBPS_STRETCH 0x08000000  // takes the room that the others leave; for one pane

/// Panes with text. Pane 0 is usually the message line, which takes the room that the others leave; its text
/// is the bar's window text. The others are indicators, as wide as their string resources, brought up to date
/// in idle time by update handlers for their numbers: Enable shows or hides the text, SetText changes it.
class OVOMFC_API CStatusBar : public CControlBar
{
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    using CWnd::Create;
    virtual BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT id = AFX_IDW_STATUS_BAR);
    using CWnd::CreateEx;
    /// With styles of the control: SBARS_SIZEGRIP, SBT_TOOLTIPS.
    virtual BOOL CreateEx(CWnd* parent, DWORD controlStyle = 0,
                          DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT id = AFX_IDW_STATUS_BAR);
    /// One pane for each number. ID_SEPARATOR makes an empty one; null makes them all empty. FALSE when a
    /// string is missing.
    BOOL SetIndicators(const UINT* ids, int count);

    // Panes count from 0. An index that is none throws CInvalidArgException.
    int CommandToIndex(UINT id) const; ///< -1 when there is none.
    UINT GetItemID(int index) const;
    void GetItemRect(int index, LPRECT rect) const; ///< In client pixels; empty for an index that is none.
    void GetPaneText(int index, CString& text) const;
    CString GetPaneText(int index) const;
    /// FALSE for an index that is none. Without `update` it is shown at the next idle time.
    BOOL SetPaneText(int index, LPCTSTR text, BOOL update = TRUE);
    void GetPaneInfo(int index, UINT& id, UINT& style, int& width) const;
    /// The width is that of the text, in pixels; it does not count for a stretched pane.
    void SetPaneInfo(int index, UINT id, UINT style, int width);
    UINT GetPaneStyle(int index) const;
    void SetPaneStyle(int index, UINT style);
    /// The bar as a control.
    CStatusBarCtrl& GetStatusBarCtrl() const;

    /// For panes of style SBPS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg LRESULT OnSetText(WPARAM, LPARAM text);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane
    {
        UINT id;
        int width; ///< of the text
        UINT style;
        CString text;
        bool stale; ///< the control does not show the text yet
    };

    Pane& pane(int index);
    const Pane& pane(int index) const;
    void layOutPanes();
    void show(int index);

    std::vector<Pane> m_panes;
    mutable CStatusBarCtrl m_control; ///< the same window, seen as a control; never its owner
};
