// The windows' handle map, and the end of all temporary objects.
#include "handlemap.h"

namespace afxdetail
{

void registerTemporaryPurge(void (*purge)(void*), void* map)
{
    threadState().temporaryPurges.push_back({purge, map});
}

void purgeTemporaryObjects()
{
    for (const TemporaryPurge& entry : threadState().temporaryPurges)
        entry.purge(entry.map);
}

} // namespace afxdetail

CWnd* WndAccess::makeTemporary(HWND wnd)
{
    return new CWnd(wnd);
}

CWnd* PASCAL CWnd::FromHandle(HWND wnd)
{
    return afxdetail::wndMap().fromHandle(wnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND wnd)
{
    return afxdetail::wndMap().fromHandlePermanent(wnd);
}

void PASCAL CWnd::DeleteTempMap()
{
    afxdetail::wndMap().deleteTemporary();
}

BOOL CWnd::Attach(HWND wnd)
{
    if (!wnd || m_hWnd)
        return FALSE;
    if (CWnd* other = FromHandlePermanent(wnd); other && other != this)
        return FALSE;
    m_hWnd = wnd;
    afxdetail::wndMap().setPermanent(wnd, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND wnd = m_hWnd;
    if (wnd)
        afxdetail::wndMap().remove(wnd);
    m_hWnd = nullptr;
    return wnd;
}
