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

HWND AFXAPI AfxGetParentOwner(HWND wnd)
{
    if (CWnd* object = CWnd::FromHandlePermanent(wnd))
        return object->GetOwner()->GetSafeHwnd();
    return (::GetWindowLongW(wnd, GWL_STYLE) & WS_CHILD) ? ::GetParent(wnd) : ::GetWindow(wnd, GW_OWNER);
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
    HWND top = m_hWnd;
    while (const HWND up = AfxGetParentOwner(top))
        top = up;
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    return GetTopLevelParent();
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

CWnd* CWnd::GetDescendantWindow(int id, BOOL onlyPermanent) const
{
    if (const HWND direct = ::GetDlgItem(m_hWnd, id)) {
        // A window further down with the same number does not count when a nearer one has it.
        if (CWnd* found = ::GetTopWindow(direct) ? FromHandle(direct)->GetDescendantWindow(id, onlyPermanent) : nullptr)
            return found;
        if (!onlyPermanent)
            return FromHandle(direct);
        if (CWnd* permanent = FromHandlePermanent(direct))
            return permanent;
    }
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (CWnd* found = FromHandle(child)->GetDescendantWindow(id, onlyPermanent))
            return found;
    return nullptr;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL deep, BOOL onlyPermanent)
{
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, deep, onlyPermanent);
}

void PASCAL CWnd::SendMessageToDescendants(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                           BOOL onlyPermanent)
{
    for (HWND child = ::GetTopWindow(wnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!onlyPermanent)
            afxdetail::callOut([&] { ::SendMessageW(child, message, wParam, lParam); });
        else if (CWnd* object = FromHandlePermanent(child))
            AfxCallWndProc(object, child, message, wParam, lParam);
        if (deep && ::GetTopWindow(child))
            SendMessageToDescendants(child, message, wParam, lParam, deep, onlyPermanent);
    }
}
