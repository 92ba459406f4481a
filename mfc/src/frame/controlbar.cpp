#include <afxext.h>
#include <afxpriv.h>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SIZEPARENT, OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_INITIALUPDATE, OnInitialUpdate)
END_MESSAGE_MAP()

namespace
{

/// Messages of a bar's controls that are the frame's business.
bool belongsToOwner(UINT message)
{
    switch (message) {
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return true;
    default:
        return false;
    }
}

} // namespace

CControlBar::CControlBar() = default;

CControlBar::~CControlBar()
{
    if (m_hWnd)
        DestroyWindow();
}

void CControlBar::takeStyle(DWORD style)
{
    m_dwStyle = style & CBRS_ALL;
}

void CControlBar::SetBarStyle(DWORD style)
{
    if (m_dwStyle == style)
        return;
    m_dwStyle = style;
    Invalidate();
}

void CControlBar::SetBorders(int left, int top, int right, int bottom)
{
    m_borders.SetRect(left, top, right, bottom);
}

void CControlBar::SetBorders(LPCRECT borders)
{
    m_borders = *borders;
}

BOOL CControlBar::IsVisible() const
{
    return m_hWnd && (GetStyle() & WS_VISIBLE) != 0;
}

int CControlBar::OnCreate(LPCREATESTRUCT cs)
{
    if (CWnd::OnCreate(cs) == -1)
        return -1;
    if (CFrameWnd* frame = GetParentFrame()) {
        frame->AddControlBar(this);
        SetOwner(frame);
    }
    return 0;
}

void CControlBar::OnDestroy()
{
    if (CFrameWnd* frame = GetParentFrame())
        frame->RemoveControlBar(this);
    CWnd::OnDestroy();
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

CSize CControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    return CSize(stretch && horizontal ? 32767 : 0, stretch && !horizontal ? 32767 : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD mode)
{
    return CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZ) != 0);
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL horizontal) const
{
    const DWORD style = m_dwStyle;
    rect.DeflateRect((style & CBRS_BORDER_LEFT) ? 1 : 0, (style & CBRS_BORDER_TOP) ? 1 : 0,
                     (style & CBRS_BORDER_RIGHT) ? 1 : 0, (style & CBRS_BORDER_BOTTOM) ? 1 : 0);
    if (horizontal)
        rect.DeflateRect(m_borders.left, m_borders.top, m_borders.right, m_borders.bottom);
    else // lying on its side
        rect.DeflateRect(m_borders.top, m_borders.left, m_borders.bottom, m_borders.right);
}

/// Takes the bar's slice off the frame's free area.
LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    if (!IsVisible() || !(m_dwStyle & CBRS_ALIGN_ANY))
        return 0;

    const bool horizontal = (m_dwStyle & CBRS_ORIENT_HORZ) != 0;
    const DWORD mode = (layout.bStretch ? LM_STRETCH : 0) | (horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK);
    CSize size = CalcDynamicLayout(-1, mode);

    CRect& free = static_cast<CRect&>(layout.rect);
    size.cx = std::min<LONG>(size.cx, free.Width());
    size.cy = std::min<LONG>(size.cy, free.Height());
    CRect place(free.TopLeft(), size);
    if (horizontal) {
        layout.sizeTotal.cy += size.cy;
        layout.sizeTotal.cx = std::max(layout.sizeTotal.cx, size.cx);
        if (m_dwStyle & CBRS_ALIGN_TOP) {
            free.top += size.cy;
        } else {
            place.OffsetRect(0, free.Height() - size.cy);
            free.bottom -= size.cy;
        }
    } else {
        layout.sizeTotal.cx += size.cx;
        layout.sizeTotal.cy = std::max(layout.sizeTotal.cy, size.cy);
        if (m_dwStyle & CBRS_ALIGN_LEFT) {
            free.left += size.cx;
        } else {
            place.OffsetRect(free.Width() - size.cx, 0);
            free.right -= size.cx;
        }
    }
    if (layout.hDWP)
        AfxRepositionWindow(&layout, m_hWnd, &place);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM)
{
    if (!IsVisible())
        return 0;
    CWnd* owner = GetOwner();
    // The owner need not be a frame: it is only asked as a command target.
    if (owner)
        OnUpdateCmdUI(reinterpret_cast<CFrameWnd*>(owner), static_cast<BOOL>(disableIfNoHandler));
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM)
{
    return OnIdleUpdateCmdUI(TRUE, 0);
}

void CControlBar::OnPaint()
{
    CPaintDC dc(this);
    DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* dc)
{
    CRect rect;
    GetClientRect(&rect);
    DrawBorders(dc, rect);
}

void CControlBar::DrawBorders(CDC* dc, CRect& rect)
{
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    if (m_dwStyle & CBRS_BORDER_TOP)
        dc->FillSolidRect(rect.left, rect.top, rect.Width(), 1, shadow);
    if (m_dwStyle & CBRS_BORDER_LEFT)
        dc->FillSolidRect(rect.left, rect.top, 1, rect.Height(), shadow);
    if (m_dwStyle & CBRS_BORDER_BOTTOM)
        dc->FillSolidRect(rect.left, rect.bottom - 1, rect.Width(), 1, light);
    if (m_dwStyle & CBRS_BORDER_RIGHT)
        dc->FillSolidRect(rect.right - 1, rect.top, 1, rect.Height(), light);
}

BOOL CControlBar::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const bool input = (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST) ||
                       (message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST);
    if (!input || !::GetTopWindow(m_hWnd))
        return FALSE;
    // The frame's accelerators come before the bar's dialog keys.
    for (CWnd* owner = GetOwner(); owner; owner = owner->GetParentFrame())
        if (owner->PreTranslateMessage(message))
            return TRUE;
    return IsDialogMessage(message);
}

CWnd* CControlBar::notified() const
{
    CWnd* owner = GetOwner();
    return owner && owner != this ? owner : nullptr;
}

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (belongsToOwner(message)) {
        if (OnWndMsg(message, wParam, lParam, &result))
            return result;
        CWnd* owner = notified();
        return owner ? owner->SendMessage(message, wParam, lParam) : DefWindowProc(message, wParam, lParam);
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
