// CFrameWnd: making a frame, its layout and its command routing.
#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    // life
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    // layout and painting
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    // focus
    ON_WM_SETFOCUS()
    ON_WM_ACTIVATE()
    // menus and the message line
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_ENTERIDLE()
    ON_MESSAGE(WM_SETMESSAGESTRING, OnSetMessageString)
    ON_MESSAGE(WM_POPMESSAGESTRING, OnPopMessageString)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, OnToolTipText)
    // control bars
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, OnBarCheck)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd()
{
    for (CControlBar* bar : std::vector<CControlBar*>(m_bars))
        RemoveControlBar(bar);
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1),
                                           AfxGetApp() ? AfxGetApp()->LoadIcon(m_nIDHelp) : nullptr);
    return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent,
                       LPCTSTR menuName, DWORD exStyle, CCreateContext* context)
{
    HMENU menu = nullptr;
    if (menuName) {
        menu = ::LoadMenuW(AfxFindResourceHandle(menuName, RT_MENU), menuName);
        if (!menu) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = title;
    const bool place = rect.left == CW_USEDEFAULT;
    if (!CreateEx(exStyle, className, title, style, rect.left, rect.top, place ? CW_USEDEFAULT : rect.right - rect.left,
                  place ? CW_USEDEFAULT : rect.bottom - rect.top, parent->GetSafeHwnd(), menu, context)) {
        if (menu)
            ::DestroyMenu(menu);
        return FALSE;
    }
    return TRUE;
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
    if (!context)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR name)
{
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
    // A view that fails to be created has deleted itself.
    return view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, id, context) ? view : nullptr;
}

void CFrameWnd::InitialUpdateFrame(CView* view)
{
    if (!m_pViewActive && view)
        SetActiveView(view, FALSE);
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    ActivateFrame();
}

void CFrameWnd::ActivateFrame(int show)
{
    if (show == -1)
        show = IsWindowVisible() ? (IsIconic() ? SW_RESTORE : -1) : SW_SHOWNORMAL;
    BringWindowToTop();
    if (show != -1)
        ShowWindow(show);
    BringWindowToTop();
}

void CFrameWnd::OnClose()
{
    CWinApp* app = AfxGetApp();
    if (app && app->m_pMainWnd == this && !app->SaveAllModified())
        return;
    DestroyWindow();
}

void CFrameWnd::OnDestroy()
{
    // The menu that the program loaded goes with the window; nothing else is to be freed here.
    CWnd::OnDestroy();
    m_pViewActive = nullptr;
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

BOOL CFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return CWnd::OnCommand(wParam, lParam);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    return key && m_hAccelTable &&
           afxdetail::callOut([&] { return ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, message); });
}

// Layout

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_bInRecalcLayout)
        return;
    m_bInRecalcLayout = TRUE;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
    m_bInRecalcLayout = FALSE;
}

void CFrameWnd::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED)
        RecalcLayout();
}

BOOL CFrameWnd::OnEraseBkgnd(CDC* dc)
{
    // The view covers everything: erasing below it would flicker.
    return m_pViewActive ? TRUE : CWnd::OnEraseBkgnd(dc);
}

// Focus

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
    if (m_pViewActive && state != WA_INACTIVE && !minimized)
        m_pViewActive->OnActivateView(TRUE, m_pViewActive, m_pViewActive);
}

void CFrameWnd::OnUpdateFrameTitle(BOOL)
{
    SetWindowText(m_strTitle);
}

// Control bars

void CFrameWnd::AddControlBar(CControlBar* bar)
{
    m_bars.push_back(bar);
}

void CFrameWnd::RemoveControlBar(CControlBar* bar)
{
    m_bars.erase(std::remove(m_bars.begin(), m_bars.end(), bar), m_bars.end());
}

CControlBar* CFrameWnd::GetControlBar(UINT id)
{
    for (CControlBar* bar : m_bars)
        if (bar->m_hWnd && static_cast<UINT>(bar->GetDlgCtrlID()) == id)
            return bar;
    return nullptr;
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL delay)
{
    bar->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
    if (delay)
        bar->PostMessage(WM_RECALCPARENT);
    else
        RecalcLayout();
}

BOOL CFrameWnd::OnBarCheck(UINT id)
{
    CControlBar* bar = GetControlBar(id);
    if (!bar)
        return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* ui)
{
    const CControlBar* bar = GetControlBar(ui->m_nID);
    if (!bar) {
        ui->ContinueRouting();
        return;
    }
    ui->SetCheck(bar->IsVisible());
}
