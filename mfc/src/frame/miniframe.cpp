// CMiniFrameWnd: a small frame beside a program's frame.
#include <afxext.h>
#include <afxpriv.h>

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMiniFrameWnd, CFrameWnd)
    // looks as active as the frame that it belongs to
    ON_WM_ACTIVATE()
    ON_MESSAGE(WM_FLOATSTATUS, &CMiniFrameWnd::OnFloatStatus)
    // how it can be moved and sized
    ON_WM_NCHITTEST()
    ON_WM_GETMINMAXINFO()
    ON_WM_SYSCOMMAND()
END_MESSAGE_MAP()

namespace
{

constexpr DWORD kMiniStyles =
    MFS_SYNCACTIVE | MFS_4THICKFRAME | MFS_THICKFRAME | MFS_MOVEFRAME | MFS_BLOCKSYSMENU;
constexpr UINT kSystemCommand = 0xFFF0; // the low four bits are the system's own

bool isBorder(LRESULT hit)
{
    return (hit >= HTSIZEFIRST && hit <= HTSIZELAST) || hit == HTBORDER;
}

} // namespace

CMiniFrameWnd::CMiniFrameWnd() = default;

CMiniFrameWnd::~CMiniFrameWnd() = default;

BOOL CMiniFrameWnd::Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent,
                           UINT id)
{
    return CMiniFrameWnd::CreateEx(0, className, title, style, rect, parent, id);
}

BOOL CMiniFrameWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect,
                             CWnd* parent, UINT id)
{
    m_mfs = style & kMiniStyles;
    m_strTitle = title;
    const DWORD wndStyle = style & ~kMiniStyles;
    const bool sizable = (m_mfs & (MFS_THICKFRAME | MFS_4THICKFRAME)) != 0;
    if (!CWnd::CreateEx(exStyle, className, title, sizable ? wndStyle | WS_THICKFRAME : wndStyle, rect,
                        parent, id))
        return FALSE;
    SendMessage(WM_FLOATSTATUS, IsTopParentActive() ? FS_ACTIVATE : FS_DEACTIVATE);
    return TRUE;
}

BOOL CMiniFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.dwExStyle |= WS_EX_TOOLWINDOW;
    if (cs.hwndParent && !(cs.style & WS_CHILD)) // a window beside a mirrored one is mirrored too
        cs.dwExStyle |= static_cast<DWORD>(::GetWindowLongPtrW(cs.hwndParent, GWL_EXSTYLE)) & WS_EX_LAYOUTRTL;
    return CFrameWnd::PreCreateWindow(cs);
}

// Activation

void CMiniFrameWnd::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CFrameWnd::OnActivate(state, other, minimized);
    if (!(m_mfs & MFS_SYNCACTIVE) || state != WA_INACTIVE || !other)
        return;
    if (other->GetTopLevelParent() == GetTopLevelParent())
        SendMessage(WM_NCACTIVATE, TRUE);
}

LRESULT CMiniFrameWnd::OnFloatStatus(WPARAM status, LPARAM)
{
    if ((m_mfs & MFS_SYNCACTIVE) && (status & (FS_ACTIVATE | FS_DEACTIVATE)))
        SendMessage(WM_NCACTIVATE, (status & FS_ACTIVATE) != 0);
    if (status & (FS_SHOW | FS_HIDE))
        ShowWindow((status & FS_SHOW) ? SW_SHOWNA : SW_HIDE);
    if (status & (FS_ENABLE | FS_DISABLE))
        EnableWindow((status & FS_ENABLE) != 0);
    return (status & FS_SYNCACTIVE) && (m_mfs & MFS_SYNCACTIVE);
}

// Moving and sizing

LRESULT CMiniFrameWnd::OnNcHitTest(CPoint point)
{
    const LRESULT hit = CFrameWnd::OnNcHitTest(point);
    if (isBorder(hit) && (m_mfs & MFS_MOVEFRAME))
        return HTCAPTION;
    if (isBorder(hit) && (m_mfs & MFS_4THICKFRAME))
        return HTBORDER;
    return hit == HTSYSMENU && (m_mfs & MFS_BLOCKSYSMENU) ? HTCAPTION : hit;
}

void CMiniFrameWnd::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CFrameWnd::OnGetMinMaxInfo(info);
    if (m_mfs & MFS_THICKFRAME)
        info->ptMinTrackSize = CPoint(0, 0);
}

void CMiniFrameWnd::OnSysCommand(UINT id, LPARAM lParam)
{
    const UINT command = id & kSystemCommand;
    const bool blocked = (m_mfs & MFS_BLOCKSYSMENU) && (command == SC_KEYMENU || command == SC_MOUSEMENU);
    if (!blocked)
        CFrameWnd::OnSysCommand(id, lParam);
}
