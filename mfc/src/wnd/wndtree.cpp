// CWnd: parents, owners, descendants.
#include <afxwin.h>
#include <afxpriv.h>

#include <detail/pending.h>

HWND CWnd::GetSafeHwnd() const
{
    return this ? m_hWnd : nullptr;
}

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* parent)
{
    return FromHandle(afxdetail::callOut([&] { return ::SetParent(m_hWnd, parent->GetSafeHwnd()); }));
}

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent();
}

/// The window outside of `wnd` as the system has it: the parent of a child window, the owner of another.
static HWND outsideOf(HWND wnd)
{
    return (::GetWindowLongW(wnd, GWL_STYLE) & WS_CHILD) ? ::GetParent(wnd) : ::GetWindow(wnd, GW_OWNER);
}

HWND AFXAPI AfxGetParentOwner(HWND wnd)
{
    const CWnd* object = CWnd::FromHandlePermanent(wnd);
    return object && object->m_hWndOwner ? object->m_hWndOwner : outsideOf(wnd);
}

BOOL AFXAPI AfxIsDescendant(HWND ancestor, HWND wnd)
{
    for (; wnd; wnd = AfxGetParentOwner(wnd))
        if (wnd == ancestor)
            return TRUE;
    return FALSE;
}

CWnd* CWnd::GetParentOwner() const
{
    HWND wnd = m_hWnd;
    while (::GetWindowLongW(wnd, GWL_STYLE) & WS_CHILD) {
        const HWND up = AfxGetParentOwner(wnd);
        if (!up)
            break;
        wnd = up;
    }
    return FromHandle(wnd);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    for (CWnd* wnd = GetParent(); wnd; wnd = wnd->GetParent())
        if (wnd->IsFrameWnd())
            return static_cast<CFrameWnd*>(wnd);
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (!GetSafeHwnd())
        return nullptr;
    CFrameWnd* frame =
        IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
    while (frame) {
        CFrameWnd* outer = frame->GetParentFrame();
        if (!outer)
            break;
        frame = outer;
    }
    return frame;
}

CWnd* CWnd::GetTopLevelParent() const
{
    HWND top = GetSafeHwnd();
    while (const HWND outside = top ? outsideOf(top) : nullptr)
        top = outside;
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    HWND top = GetSafeHwnd();
    while (const HWND outside = top ? AfxGetParentOwner(top) : nullptr)
        top = outside;
    return FromHandle(top);
}

CWnd* PASCAL CWnd::FindWindow(LPCTSTR className, LPCTSTR title)
{
    return FromHandle(::FindWindowW(className, title));
}

CWnd* PASCAL CWnd::FindWindowEx(HWND parent, HWND childAfter, LPCTSTR className, LPCTSTR title)
{
    return FromHandle(::FindWindowExW(parent, childAfter, className, title));
}

BOOL CWnd::IsTopParentActive() const
{
    return GetForegroundWindow() == GetTopLevelParent()->GetLastActivePopup();
}

void CWnd::ActivateTopParent()
{
    if (!AfxIsDescendant(m_hWnd, ::GetForegroundWindow()))
        GetTopLevelParent()->SetForegroundWindow();
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* parent, HWND* topLevel)
{
    HWND wnd = parent->GetSafeHwnd();
    if (!wnd)
        wnd = AfxGetMainWnd()->GetSafeHwnd();
    // A child cannot own anything: its top-level window does.
    while (wnd && (::GetWindowLongW(wnd, GWL_STYLE) & WS_CHILD))
        wnd = ::GetParent(wnd);

    HWND top = wnd;
    while (const HWND up = top ? ::GetParent(top) : nullptr)
        top = up;
    // With no window given, what is in front of the main window owns the new one.
    if (!parent && wnd)
        wnd = ::GetLastActivePopup(wnd);
    if (topLevel)
        *topLevel = top && ::IsWindowEnabled(top) && top != wnd ? top : nullptr;
    return FromHandle(wnd);
}

/// The child with a number, else the first one further down; null when there is none.
static HWND descendant(HWND wnd, int id, bool onlyPermanent)
{
    const HWND direct = ::GetDlgItem(wnd, id);
    if (direct && (!onlyPermanent || CWnd::FromHandlePermanent(direct)))
        return direct;
    for (HWND child = ::GetTopWindow(wnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (const HWND found = descendant(child, id, onlyPermanent))
            return found;
    return nullptr;
}

CWnd* CWnd::GetDescendantWindow(int id, BOOL onlyPermanent) const
{
    return FromHandle(descendant(m_hWnd, id, onlyPermanent != FALSE));
}

/// In the order of the screen, the front one first.
static std::vector<HWND> childrenOf(HWND wnd)
{
    std::vector<HWND> children;
    for (HWND child = ::GetTopWindow(wnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

long CWnd::GetWindowedChildCount()
{
    return static_cast<long>(childrenOf(m_hWnd).size());
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL deep, BOOL onlyPermanent)
{
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, deep, onlyPermanent);
}

static BOOL CALLBACK collect(HWND wnd, LPARAM found)
{
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(wnd);
    return TRUE;
}

/// Each child followed by its own descendants.
static std::vector<HWND> descendantsOf(HWND wnd)
{
    std::vector<HWND> found;
    ::EnumChildWindows(wnd, &collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

void PASCAL CWnd::SendMessageToDescendants(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                           BOOL onlyPermanent)
{
    for (const HWND child : deep ? descendantsOf(wnd) : childrenOf(wnd)) {
        if (!::IsWindow(child)) // another's handler has destroyed it
            continue;
        CWnd* const object = FromHandlePermanent(child);
        afxdetail::callOut([&] {
            if (!onlyPermanent)
                ::SendMessageW(child, message, wParam, lParam);
            else if (object)
                AfxCallWndProc(object, child, message, wParam, lParam);
        });
    }
}
