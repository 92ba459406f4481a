// CStatusBar: the line at the bottom of a frame.
#pragma once

#include <afx/ControlBar.h>
#include <afx/StatusBarCtrl.h>

/// Pane 0 is the message line; the others show indicators, sized to their string resources.
class OVOMFC_API CStatusBar : public CControlBar
{
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    using CWnd::Create;
    BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT id = AFX_IDW_STATUS_BAR);
    /// One pane for each number; ID_SEPARATOR makes a pane without a string of its own.
    BOOL SetIndicators(const UINT* ids, int count);

    int CommandToIndex(UINT id) const; ///< -1 when there is none.
    UINT GetItemID(int index) const;
    void GetItemRect(int index, LPRECT rect) const;
    void GetPaneText(int index, CString& text) const;
    CString GetPaneText(int index) const;
    BOOL SetPaneText(int index, LPCTSTR text, BOOL update = TRUE);
    void GetPaneInfo(int index, UINT& id, UINT& style, int& width) const;
    void SetPaneInfo(int index, UINT id, UINT style, int width);
    UINT GetPaneStyle(int index) const;
    void SetPaneStyle(int index, UINT style);
    CStatusBarCtrl& GetStatusBarCtrl() const;

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg LRESULT OnSetText(WPARAM, LPARAM text);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane
    {
        UINT id;
        int width;
        UINT style;
        CString text;
    };

    void layOutPanes();
    void show(int index);

    std::vector<Pane> m_panes;
};

// Styles of panes
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000
#define SBPS_STRETCH 0x08000000
