// CWnd: centring, and laying out control bars.
#include <afxwin.h>
#include <afxpriv.h>

#include <detail/pending.h>

using afxdetail::callOut;

namespace
{

CRect workAreaAt(HWND wnd)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromWindow(wnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

CRect screenRectOf(HWND wnd)
{
    CRect rect;
    ::GetWindowRect(wnd, &rect);
    return rect;
}

/// The nearest place inside `area`; the left and the top edge win over the others.
void keepInside(CRect& rect, const CRect& area)
{
    if (rect.right > area.right)
        rect.OffsetRect(area.right - rect.right, 0);
    if (rect.bottom > area.bottom)
        rect.OffsetRect(0, area.bottom - rect.bottom);
    if (rect.left < area.left)
        rect.OffsetRect(area.left - rect.left, 0);
    if (rect.top < area.top)
        rect.OffsetRect(0, area.top - rect.top);
}

/// The flag for windows that move in `parent` when it is mirrored: Wine moves their pixels to a wrong place.
UINT paintedAnew(HWND parent)
{
    return (::GetWindowLongPtrW(parent, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) ? SWP_NOCOPYBITS : 0;
}

} // namespace

void CWnd::CenterWindow(CWnd* alternate)
{
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND reference = alternate->GetSafeHwnd();
    if (!reference)
        reference = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);

    CRect area;
    CRect around;
    if (child) {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        ::GetClientRect(reference, &around);
        ::MapWindowPoints(reference, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&around), 2);
    } else {
        const bool usable = reference && ::IsWindowVisible(reference) && !::IsIconic(reference);
        area = workAreaAt(usable ? reference : m_hWnd);
        around = usable ? screenRectOf(reference) : area;
    }

    CRect rect = screenRectOf(m_hWnd);
    const CSize size = rect.Size();
    rect = CRect(
        CPoint((around.left + around.right - size.cx) / 2, (around.top + around.bottom - size.cy) / 2), size);
    keepInside(rect, area);
    SetWindowPos(nullptr, rect.left, rect.top, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::CalcWindowRect(LPRECT clientRect, UINT adjustType)
{
    DWORD exStyle = GetExStyle();
    if (adjustType == adjustBorder)
        exStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    ::AdjustWindowRectEx(clientRect, GetStyle(), FALSE, exStyle);
}

void AFXAPI AfxRepositionWindow(AFX_SIZEPARENTPARAMS* layout, HWND wnd, LPCRECT rect)
{
    if (layout && !layout->hDWP)
        return;
    CRect old = screenRectOf(wnd);
    ::MapWindowPoints(nullptr, ::GetParent(wnd), reinterpret_cast<POINT*>(&old), 2);
    if (old == *rect)
        return;
    const UINT flags = SWP_NOACTIVATE | SWP_NOZORDER | paintedAnew(::GetParent(wnd));
    const CRect place(rect);
    if (layout)
        layout->hDWP = ::DeferWindowPos(layout->hDWP, wnd, nullptr, place.left, place.top, place.Width(),
                                        place.Height(), flags);
    else
        callOut([&] {
            ::SetWindowPos(wnd, nullptr, place.left, place.top, place.Width(), place.Height(), flags);
        });
}

namespace
{

/// A layout pass, whose moves are made together at its end: by finish(), or when an exception ends it.
class LayoutPass
{
public:
    LayoutPass(const CRect& area, bool stretch, bool moves)
    {
        params.rect = area;
        params.bStretch = stretch;
        if (moves)
            params.hDWP = ::BeginDeferWindowPos(8);
    }
    ~LayoutPass()
    {
        if (params.hDWP)
            ::EndDeferWindowPos(params.hDWP);
    }
    LayoutPass(const LayoutPass&) = delete;
    LayoutPass& operator=(const LayoutPass&) = delete;

    /// Lets a control bar take its part.
    void offer(HWND bar)
    {
        callOut([&] { ::SendMessageW(bar, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&params)); });
    }

    void finish()
    {
        if (const HDWP moves = std::exchange(params.hDWP, nullptr))
            callOut([=] { ::EndDeferWindowPos(moves); });
    }

    AFX_SIZEPARENTPARAMS params{};
};

} // namespace

void CWnd::RepositionBars(UINT first, UINT last, UINT leftOver, UINT flag, LPRECT rect, LPCRECT client,
                          BOOL stretch)
{
    const UINT kind = flag & ~static_cast<UINT>(CBRS_ALIGN_ANY);
    CRect area;
    if (client)
        area = *client;
    else
        GetClientRect(&area);

    const HWND parent = m_hWnd;
    LayoutPass pass(area, stretch != FALSE, kind != reposQuery);
    HWND rest = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const UINT id = static_cast<UINT>(::GetDlgCtrlID(child)) & 0xFFFF;
        if (id == leftOver)
            rest = child;
        else if (id >= first && id <= last && FromHandlePermanent(child))
            pass.offer(child);
        if (!::IsWindow(parent))
            return; // a bar that was asked for its room has ended it
    }

    AFX_SIZEPARENTPARAMS& left = pass.params;
    if (kind == reposQuery) {
        *rect = stretch ? CRect(left.rect) : CRect(CPoint(0, 0), left.sizeTotal);
        return;
    }
    if (leftOver != 0 && rest) {
        if (kind == reposExtra) {
            left.rect.left += rect->left;
            left.rect.top += rect->top;
            left.rect.right -= rect->right;
            left.rect.bottom -= rect->bottom;
        }
        FromHandle(rest)->CalcWindowRect(&left.rect);
        AfxRepositionWindow(&left, rest, &left.rect);
    }
    pass.finish();
}
