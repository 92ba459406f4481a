// CFrameWnd: making a frame, its commands, its views.
#include <afxext.h>
#include <afxpriv.h>

#include <detail/pending.h>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    // life
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    // layout and painting
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_SHOWWINDOW()
    ON_MESSAGE(WM_ACTIVATETOPLEVEL, &CFrameWnd::OnActivateTopLevel)
    ON_MESSAGE(WM_RECALCPARENT, &CFrameWnd::OnRecalcParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
    // the active view
    ON_WM_SETFOCUS()
    ON_WM_ACTIVATE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    // menus and the message line
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_ENTERIDLE()
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
    ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
    // help
    ON_WM_HELPINFO()
    ON_MESSAGE(WM_COMMANDHELP, &CFrameWnd::OnCommandHelp)
    ON_MESSAGE(WM_HELPHITTEST, &CFrameWnd::OnHelpHitTest)
    // control bars
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd()
{
    for (CControlBar* bar : m_bars)
        bar->m_pDockSite = nullptr;
}

// Making a frame

namespace
{

HICON iconOf(UINT id)
{
    const LPCTSTR name = MAKEINTRESOURCEW(id);
    return id ? ::LoadIconW(AfxFindResourceHandle(name, RT_GROUP_ICON), name) : nullptr;
}

} // namespace

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass) {
        const HICON own = iconOf(m_nIDHelp);
        cs.lpszClass = AfxRegisterWndClass(
            CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), own ? own : iconOf(AFX_IDI_STD_FRAME));
    }
    return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent,
                       LPCTSTR menuName, DWORD exStyle, CCreateContext* context)
{
    if (menuName) {
        m_hMenuDefault = ::LoadMenuW(AfxFindResourceHandle(menuName, RT_MENU), menuName);
        if (!m_hMenuDefault) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = title;
    const HMENU menu = m_hMenuDefault;
    const bool anywhere = rect.left == CW_USEDEFAULT;
    const int width = anywhere ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = anywhere ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (CreateEx(exStyle, className, title, style, rect.left, rect.top, width, height, parent->GetSafeHwnd(),
                 menu, context))
        return TRUE;
    // The object is gone; the menu too, if there was a window for it to go with.
    if (menu)
        ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT id, DWORD style, CWnd* parent, CCreateContext* context)
{
    m_nIDHelp = id;
    CString strings;
    CString title;
    if (strings.LoadString(id))
        AfxExtractSubString(title, strings, 0);
    const LPCTSTR name = MAKEINTRESOURCEW(id);
    const bool hasMenu = ::FindResourceW(AfxFindResourceHandle(name, RT_MENU), name, RT_MENU) != nullptr;
    if (!Create(nullptr, title, style, rectDefault, parent, hasMenu ? name : nullptr, 0, context))
        return FALSE;
    LoadAccelTable(name);
    if (!context) // with a context, the document template sends this when the views are ready
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR name)
{
    if (m_hAccelTable)
        return FALSE;
    m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
    return m_hAccelTable != nullptr;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT cs)
{
    if (CWnd::OnCreate(cs) == -1)
        return -1;
    auto* context = static_cast<CCreateContext*>(cs->lpCreateParams);
    if (!OnCreateClient(cs, context))
        return -1;
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE, 0);
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* context)
{
    return !context || !context->m_pNewViewClass || CreateView(context) != nullptr;
}

CWnd* CFrameWnd::CreateView(CCreateContext* context, UINT id)
{
    auto* view = static_cast<CWnd*>(context->m_pNewViewClass->CreateObject());
    if (!view)
        return nullptr;
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_BORDER;
    // A view that fails to be created has deleted itself.
    return view->Create(nullptr, nullptr, kStyle, CRect(0, 0, 0, 0), this, id, context) ? view : nullptr;
}

void CFrameWnd::InitialUpdateFrame(CDocument*, BOOL makeVisible)
{
    CView* primary = nullptr;
    if (!m_pViewActive) {
        primary = dynamic_cast<CView*>(GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
        if (primary)
            SetActiveView(primary, FALSE);
    }
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    if (!makeVisible)
        return;
    ActivateFrame();
    if (primary && m_pViewActive == primary)
        primary->OnActivateView(TRUE, primary, primary);
}

void CFrameWnd::ActivateFrame(int show)
{
    if (show == -1 && !IsWindowVisible())
        show = SW_SHOWNORMAL;
    else if (show == -1 && IsIconic())
        show = SW_RESTORE;
    BringWindowToTop();
    if (show == -1)
        return;
    ShowWindow(show);
    BringWindowToTop(); // showing it may have brought its owner to the top
}

// Its end

void CFrameWnd::OnClose()
{
    CWinApp* app = AfxGetApp();
    if (app && app->m_pMainWnd == this && !app->SaveAllModified())
        return;
    DestroyWindow();
}

BOOL CFrameWnd::OnQueryEndSession()
{
    CWinApp* app = AfxGetApp();
    return !app || app->m_pMainWnd != this || app->SaveAllModified();
}

void CFrameWnd::OnDestroy()
{
    // Only the menu that a window shows goes with it. Another one belongs to the code that set it.
    const bool ownsMenu = !(GetStyle() & WS_CHILD) && ::IsMenu(m_hMenuDefault);
    if (ownsMenu && ::GetMenu(m_hWnd) != m_hMenuDefault)
        ::SetMenu(m_hWnd, m_hMenuDefault);
    for (CMiniDockFrameWnd* window : std::vector<CMiniDockFrameWnd*>(m_floats))
        window->DestroyWindow(); // owned by the top-level frame, which this one need not be
    CWnd::OnDestroy();
    m_pViewActive = nullptr;
    m_layingOut = false; // a layout that has led here does not reset it
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}

// Commands: the active view first, then the frame, then the program.

BOOL CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (m_pViewActive && m_pViewActive->OnCmdMsg(id, code, extra, info))
        return TRUE;
    if (CWnd::OnCmdMsg(id, code, extra, info))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app && app->OnCmdMsg(id, code, extra, info);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    return key && m_hAccelTable &&
           afxdetail::callOut([&] { return ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, message); });
}

void CFrameWnd::SetTitle(LPCTSTR title)
{
    m_strTitle = title;
    if (m_hWnd)
        SetWindowText(title);
}

// The active view

void CFrameWnd::SetActiveView(CView* view, BOOL notify)
{
    CView* const old = m_pViewActive;
    if (view == old)
        return;
    m_pViewActive = nullptr;
    if (old)
        old->OnActivateView(FALSE, view, old);
    if (m_pViewActive) // the old view has chosen another
        return;
    m_pViewActive = view;
    if (view && notify)
        view->OnActivateView(TRUE, view, old);
}

void CFrameWnd::OnSetFocus(CWnd* old)
{
    if (m_pViewActive)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(old);
}

void CFrameWnd::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
    if (state == WA_INACTIVE &&
        belongsToIt(other)) // the focus is in a window of its own: it still looks active
        SendMessage(WM_NCACTIVATE, TRUE);
    CView* const view = m_pViewActive;
    if (!view)
        return;
    if (state != WA_INACTIVE && !minimized)
        view->OnActivateView(TRUE, view, view);
    if (m_pViewActive == view)
        view->OnActivateFrame(state, this);
}

/// Whether a window that becomes active is a small one beside this frame, or beside a frame inside it.
bool CFrameWnd::belongsToIt(const CWnd* window) const
{
    return dynamic_cast<const CMiniFrameWnd*>(window) && window->GetTopLevelParent() == this;
}

void CFrameWnd::OnHScroll(UINT, UINT, CScrollBar* bar)
{
    scrollView(bar);
}

void CFrameWnd::OnVScroll(UINT, UINT, CScrollBar* bar)
{
    scrollView(bar);
}

/// Scroll bars beside the view scroll the view, unless one has a mind of its own.
void CFrameWnd::scrollView(CScrollBar* bar)
{
    auto* control = reinterpret_cast<CWnd*>(bar);
    if (control && control->SendChildNotifyLastMsg())
        return;
    const MSG message = *GetCurrentMessage();
    if (m_pViewActive)
        m_pViewActive->SendMessage(message.message, message.wParam, message.lParam);
    else
        Default();
}
