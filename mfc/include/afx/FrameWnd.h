// CFrameWnd: the window around a program's views and bars.
#pragma once

#include <afx/Wnd.h>
#include <afxres.h>

#include <memory>
#include <vector>

class CControlBar;
class CDockBar;
class CDockState;
class CDocTemplate;
class CDocument;
class CMiniDockFrameWnd;
class CView;
struct CControlBarInfo;

namespace afxdetail
{
class BarDrag;
}

// Styles of frames, given along with window styles. They concern the names of documents.
#define FWS_ADDTOTITLE 0x00008000L  // the title names the document
#define FWS_PREFIXTITLE 0x00004000L // before the program
#define FWS_SNAPTOBARS 0x00002000L  // as small as the bars allow

/// What a frame is told of the view that it is to make. Every pointer may be null.
struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CDocTemplate* m_pNewDocTemplate = nullptr;
    CView* m_pLastView = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

/// A frame is made with new and deletes itself with its window: destroy it with DestroyWindow.
///
/// Commands go to the active view, then to the frame, then to the program. Control bars that are made in a
/// frame lie along its edges, the child with the number AFX_IDW_PANE_FIRST (the view) fills the rest.
class OVOMFC_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault; ///< Lets the system choose place and size.

    // Making a frame. FALSE on failure; the object is then deleted already.
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR className, LPCTSTR title, DWORD style = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* parent = nullptr, LPCTSTR menuName = nullptr,
                        DWORD exStyle = 0, CCreateContext* context = nullptr);
    /// Menu, accelerators, icon and title (the string up to its first line feed) of one number.
    virtual BOOL LoadFrame(UINT id, DWORD style = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* parent = nullptr, CCreateContext* context = nullptr);
    /// FALSE when there is none, and when the frame has one already.
    BOOL LoadAccelTable(LPCTSTR name);
    /// Makes a view, which is not active yet. Null on failure.
    CWnd* CreateView(CCreateContext* context, UINT id = AFX_IDW_PANE_FIRST);
    /// Calls OnInitialUpdate of all views, makes the first one active if none is, and shows the frame on
    /// demand.
    void InitialUpdateFrame(CDocument* document, BOOL makeVisible);

    // Views and title
    CView* GetActiveView() const { return m_pViewActive; }
    void SetActiveView(CView* view, BOOL notify = TRUE); ///< Null for none.
    virtual CFrameWnd* GetActiveFrame() { return this; }
    /// Shows the frame, restored if it was an icon, in front of the others.
    virtual void ActivateFrame(int show = -1);
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR title);

    // Bars
    virtual void RecalcLayout(BOOL notify = TRUE); ///< Lays out bars and view.
    CControlBar* GetControlBar(UINT id);           ///< Null when there is none; hidden ones count.
    /// With `delay` at the next idle time, together with whatever else changes until then.
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    afx_msg BOOL OnBarCheck(UINT id); ///< A command that shows or hides the bar of the same number.
    afx_msg void OnUpdateControlBarMenu(CCmdUI* ui);

    // Docking
    /// Lets bars be docked to these sides, CBRS_ALIGN_ bits.
    void EnableDocking(DWORD dockStyle);
    /// Docks a bar to the side of number AFX_IDW_DOCKBAR_..., 0 for the first that frame and bar allow (top,
    /// bottom, left, right). With a rectangle of the screen where it is dropped: into the row there, between
    /// the bars there. Without, into a row of its own behind the others. The frame is laid out in idle time,
    /// or by RecalcLayout.
    void DockControlBar(CControlBar* bar, UINT dockBarId = 0, LPCRECT rect = nullptr);
    void DockControlBar(CControlBar* bar, CDockBar* dockBar, LPCRECT rect = nullptr);
    /// Gives a bar a window of its own with its upper left corner at a point of the screen. CBRS_ALIGN_TOP or
    /// BOTTOM: it lies horizontally, CBRS_ALIGN_LEFT or RIGHT: vertically. A bar of dynamic size has its last
    /// size.
    void FloatControlBar(CControlBar* bar, CPoint point, DWORD style = 0x2000L /* CBRS_ALIGN_TOP */);

    // Bars as the user has arranged them: which are shown, where they are docked, where they float
    void GetDockState(CDockState& state) const;
    void SetDockState(const CDockState& state);
    void LoadBarState(LPCTSTR profileName); ///< From the profile; without a saved state nothing changes.
    void SaveBarState(LPCTSTR profileName) const;

    // The message line
    /// The text that explains a command: its string up to the line feed. Empty when there is none.
    virtual void GetMessageString(UINT id, CString& message) const;
    void SetMessageText(LPCTSTR text);
    void SetMessageText(UINT id);
    virtual CWnd* GetMessageBar(); ///< The status bar, or null.

    // Modal state: the windows that the frame owns, and the frame, are disabled. Calls nest.
    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const { return m_modalDepth > 0; }
    void ShowOwnedWindows(BOOL show);

    BOOL m_bAutoMenuEnable = TRUE;  ///< Disable menu items without a handler.
    HMENU m_hMenuDefault = nullptr; ///< The menu that the frame was made with.

    BOOL IsFrameWnd() const override { return TRUE; }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

    /// Shift+F1, for message maps: what CWinApp does.
    afx_msg void OnContextHelp();

protected:
    /// While the user looks for help, shows help on the command.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    /// Makes what fills the frame: by default the view of the context's class, if there is one. FALSE: the
    /// frame is not made.
    virtual BOOL OnCreateClient(LPCREATESTRUCT cs, CCreateContext* context);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL sysMenu);
    afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu);
    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg LRESULT OnCommandHelp(WPARAM, LPARAM context);
    afx_msg LRESULT OnHelpHitTest(WPARAM, LPARAM);
    afx_msg LRESULT OnSetMessageString(WPARAM id, LPARAM text);
    afx_msg LRESULT OnPopMessageString(WPARAM id, LPARAM text);
    afx_msg LRESULT OnRecalcParent(WPARAM, LPARAM);
    afx_msg LRESULT OnActivateTopLevel(WPARAM state, LPARAM);
    afx_msg void OnShowWindow(BOOL show, UINT why);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM, LPARAM);
    afx_msg BOOL OnToolTipText(UINT id, NMHDR* header, LRESULT* result);
    afx_msg void OnUpdateKeyIndicator(CCmdUI* ui);
    DECLARE_MESSAGE_MAP()

    HACCEL m_hAccelTable = nullptr;
    CView* m_pViewActive = nullptr;
    CRect m_rectBorder; ///< room kept free between the bars and the view
    CString m_strTitle;
    UINT m_nIDHelp = 0;        ///< the number given to LoadFrame
    UINT m_nIDTracking = 0;    ///< the command that the message line should tell of
    UINT m_nIDLastMessage = 0; ///< the one that it tells of

private:
    friend class CControlBar;
    friend class CDockBar;
    friend class CMiniDockFrameWnd;
    friend class afxdetail::BarDrag;

    void addControlBar(CControlBar* bar);
    void removeControlBar(CControlBar* bar);
    void applyPendingBars();
    void scrollView(CScrollBar* bar);
    CDockBar* dockBar(UINT id) const;
    CDockBar* firstDockBarFor(const CControlBar& bar) const;
    void orderDockBars();
    void layOutFloats();
    bool belongsToIt(const CWnd* window) const;
    void hideBarsInPlace();
    static void restoreMemory(CControlBar& bar, const CControlBarInfo& info);
    CMiniDockFrameWnd* makeFloat(CControlBar& bar, CPoint point);

    std::vector<CControlBar*> m_bars;
    std::vector<std::unique_ptr<CDockBar>> m_dockBars; ///< in the order in which they take their room
    std::vector<CMiniDockFrameWnd*> m_floats;          ///< windows of floating bars; each deletes itself
    std::vector<HWND> m_disabledByModal;
    int m_modalDepth = 0;
    bool m_layingOut = false;
    bool m_layoutPending = false;  ///< at the next idle time
    bool m_dockOrderStale = false; ///< a bar with a fixed place has come behind the dock bars
};
