// Internal to the dialogs and property sheets: the time in which a window is shown modally.
#pragma once

#include "../wnd/wndflags.h"
#include "lockedowner.h"

namespace afxdetail
{

/// Locks the owner, and lets the window run a modal loop until EndModalLoop is called, which may happen
/// before the loop begins. However it ends, the owner is enabled before the window goes: otherwise another
/// program's window would be activated in its place. An owner that was disabled already is left so, and the
/// window that was active then is activated again.
class ModalRun
{
public:
    ModalRun(CWnd& wnd, HWND owner)
        : m_wnd(wnd)
        , m_owner(owner)
        , m_lockedBefore(owner && !::IsWindowEnabled(owner))
        , m_activeBefore(::GetActiveWindow())
        , m_locked(owner)
    {
        m_wnd.m_nFlags |= kContinueModal | (m_lockedBefore ? kOwnerLocked : 0);
    }
    ~ModalRun()
    {
        m_locked.unlockQuietly();
        m_wnd.m_nFlags &= ~(kContinueModal | kOwnerLocked);
        if (m_wnd.m_hWnd)
            ::DestroyWindow(m_wnd.m_hWnd);
    }
    ModalRun(const ModalRun&) = delete;
    ModalRun& operator=(const ModalRun&) = delete;

    /// After the loop: hides the window, activates the one that follows it, and destroys it.
    void finish()
    {
        if (m_wnd.m_hWnd)
            m_wnd.SetWindowPos(nullptr, 0, 0, 0, 0,
                               SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        m_locked.unlock();
        activateNext();
        if (m_wnd.m_hWnd)
            m_wnd.DestroyWindow();
    }

private:
    void activateNext() const
    {
        const HWND active = ::GetActiveWindow();
        const bool locked = m_lockedBefore && !::IsWindowEnabled(m_owner);
        const HWND next = locked ? m_activeBefore : m_owner;
        // The end of a dialog activates its owner, even one that is locked.
        const bool isLeft = active == m_wnd.m_hWnd || (locked && active == m_owner);
        if (next && isLeft)
            ::SetActiveWindow(next);
    }

    CWnd& m_wnd;
    HWND m_owner;
    const bool m_lockedBefore;
    const HWND m_activeBefore;
    LockedOwner m_locked;
};

} // namespace afxdetail
