// The windows' handle map, and the end of all temporary objects.
#include "handlemap.h"
#include "wndflags.h"

#include <detail/threadend.h>

using afxdetail::wndMap;

namespace afxdetail
{

namespace
{

thread_local std::vector<void (*)()>* t_mapEnds = nullptr;

} // namespace

void registerThreadMap(void (*purge)(void*), void (*destroy)(), void* map)
{
    threadState().temporaryPurges.push_back({purge, map});
    if (!t_mapEnds)
        t_mapEnds = new std::vector<void (*)()>;
    t_mapEnds->push_back(destroy);
}

void releaseThreadMaps()
{
    threadState().temporaryPurges.clear();
    threadState().windows = nullptr;
    const std::unique_ptr<std::vector<void (*)()>> ends(std::exchange(t_mapEnds, nullptr));
    if (ends)
        for (void (*const destroy)() : *ends)
            destroy();
}

void purgeTemporaryObjects()
{
    if (threadState().dispatchDepth > 0)
        return;
    for (const TemporaryPurge& entry : threadState().temporaryPurges)
        entry.purge(entry.map);
}

} // namespace afxdetail

CWnd::CWnd(HWND wnd)
    : m_hWnd(wnd)
    , m_nFlags(afxdetail::kBorrowed)
{
}

CWnd* PASCAL CWnd::FromHandle(HWND wnd)
{
    return wndMap().fromHandle(wnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND wnd)
{
    return wndMap().fromHandlePermanent(wnd);
}

void PASCAL CWnd::DeleteTempMap()
{
    wndMap().deleteTemporary();
}

BOOL CWnd::Attach(HWND wnd)
{
    if (!wnd || m_hWnd || FromHandlePermanent(wnd))
        return FALSE;
    m_hWnd = wnd;
    wndMap().setPermanent(wnd, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND wnd = std::exchange(m_hWnd, nullptr);
    if (m_nFlags & afxdetail::kBorrowed)
        wndMap().remove(wnd); // without its handle the temporary object must not be found again
    else if (wnd)
        wndMap().removePermanent(wnd);
    return wnd;
}
