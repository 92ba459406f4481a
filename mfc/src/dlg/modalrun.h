// Internal to the dialogs and property sheets: the time in which a window is shown modally.
#pragma once

#include "../wnd/wndflags.h"
#include "lockedowner.h"

namespace afxdetail
{

/// Locks the owner, and lets the window run a modal loop until EndModalLoop is called, which may happen
/// before the loop begins. However it ends, the owner is enabled before the window goes: otherwise another
/// program's window would be activated in its place.
class ModalRun
{
public:
    ModalRun(CWnd& wnd, HWND owner)
        : m_wnd(wnd)
        , m_owner(owner)
        , m_locked(owner)
    {
        m_wnd.m_nFlags |= kContinueModal;
    }
    ~ModalRun()
    {
        m_locked.unlock();
        m_wnd.m_nFlags &= ~kContinueModal;
        if (m_wnd.m_hWnd)
            ::DestroyWindow(m_wnd.m_hWnd);
    }
    ModalRun(const ModalRun&) = delete;
    ModalRun& operator=(const ModalRun&) = delete;

    /// After the loop: hides the window, activates the owner in its place, and destroys it.
    void finish()
    {
        if (m_wnd.m_hWnd)
            m_wnd.SetWindowPos(nullptr, 0, 0, 0, 0,
                               SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        m_locked.unlock();
        if (m_owner && ::GetActiveWindow() == m_wnd.m_hWnd)
            ::SetActiveWindow(m_owner);
        if (m_wnd.m_hWnd)
            m_wnd.DestroyWindow();
    }

private:
    CWnd& m_wnd;
    HWND m_owner;
    LockedOwner m_locked;
};

} // namespace afxdetail
