// CFrameWnd: the state in which a modal dialog has the program to itself.
#include <afxext.h>
#include <afxpriv.h>

#include <utility>

namespace
{

/// The thread's enabled windows that `frame` owns, directly or not, and the frame itself. Only those of the
/// framework: tooltips and drop-down lists of the system see to themselves.
std::vector<HWND> enabledWindowsOf(HWND frame)
{
    struct Search
    {
        HWND frame;
        std::vector<HWND> found;
    } search{frame, {}};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND wnd, LPARAM lParam) -> BOOL {
            auto& to = *reinterpret_cast<Search*>(lParam);
            if (::IsWindowEnabled(wnd) && CWnd::FromHandlePermanent(wnd) && AfxIsDescendant(to.frame, wnd))
                to.found.push_back(wnd);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

void CFrameWnd::BeginModalState()
{
    if (m_modalDepth++ > 0)
        return;
    for (const HWND wnd : enabledWindowsOf(m_hWnd)) {
        if (::SendMessageW(wnd, WM_DISABLEMODAL, 0, 0)) // it must stay as it is
            continue;
        ::EnableWindow(wnd, FALSE);
        m_disabledByModal.push_back(wnd);
    }
}

void CFrameWnd::EndModalState()
{
    if (m_modalDepth == 0 || --m_modalDepth > 0)
        return;
    for (const HWND wnd : std::exchange(m_disabledByModal, {}))
        if (CWnd::FromHandlePermanent(
                wnd)) // the number of a window that has gone may be another program's by now
            ::EnableWindow(wnd, TRUE);
}

void CFrameWnd::ShowOwnedWindows(BOOL show)
{
    ShowOwnedPopups(show);
}
