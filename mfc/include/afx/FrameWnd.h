// CFrameWnd: the window around a program's views and bars.
#pragma once

#include <afx/Wnd.h>

class CControlBar;
class CView;

/// What OnCreateClient is told.
struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr;
    void* m_pCurrentDoc = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

/// A frame lives on the heap and deletes itself with its window.
class OVOMFC_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault; ///< lets the system choose place and size

    using CWnd::Create;
    BOOL Create(LPCTSTR className, LPCTSTR title, DWORD style = WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                CWnd* parent = nullptr, LPCTSTR menuName = nullptr, DWORD exStyle = 0,
                CCreateContext* context = nullptr);
    /// Menu, accelerators, icon and title (up to the line feed) of one number.
    virtual BOOL LoadFrame(UINT id, DWORD style = WS_OVERLAPPEDWINDOW, CWnd* parent = nullptr,
                           CCreateContext* context = nullptr);
    BOOL LoadAccelTable(LPCTSTR name);
    CWnd* CreateView(CCreateContext* context, UINT id = AFX_IDW_PANE_FIRST);

    CView* GetActiveView() const { return m_pViewActive; }
    void SetActiveView(CView* view, BOOL notify = TRUE);
    virtual CFrameWnd* GetActiveFrame() { return this; }
    virtual void ActivateFrame(int show = -1);
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR title) { m_strTitle = title; }

    /// Lays out bars and view.
    virtual void RecalcLayout(BOOL notify = TRUE);
    CControlBar* GetControlBar(UINT id);
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    void AddControlBar(CControlBar* bar);
    void RemoveControlBar(CControlBar* bar);

    /// The text of a command for the message line.
    virtual void GetMessageString(UINT id, CString& message) const;
    void SetMessageText(LPCTSTR text);
    void SetMessageText(UINT id);
    virtual CWnd* GetMessageBar();
    virtual HMENU GetWindowMenuPopup(HMENU) { return nullptr; }

    BOOL m_bAutoMenuEnable = TRUE; ///< disable menu items without a handler

    BOOL IsFrameWnd() const override { return TRUE; }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

protected:
    virtual BOOL OnCreateClient(LPCREATESTRUCT cs, CCreateContext* context);
    void PostNcDestroy() override;
    void OnUpdateFrameTitle(BOOL addToTitle);
    void InitialUpdateFrame(CView* view);

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL sysMenu);
    afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu);
    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg LRESULT OnSetMessageString(WPARAM id, LPARAM text);
    afx_msg LRESULT OnPopMessageString(WPARAM id, LPARAM text);
    afx_msg BOOL OnToolTipText(UINT id, NMHDR* header, LRESULT* result);
    afx_msg BOOL OnBarCheck(UINT id);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* ui);
    DECLARE_MESSAGE_MAP()

    HACCEL m_hAccelTable = nullptr;
    CView* m_pViewActive = nullptr;
    CRect m_rectBorder;
    CString m_strTitle;
    UINT m_nIDHelp = 0;
    UINT m_nIDTracking = 0;    ///< the command that the message line should tell of
    UINT m_nIDLastMessage = 0; ///< the one that it tells of
    BOOL m_bInRecalcLayout = FALSE;
    std::vector<CControlBar*> m_bars;
};
