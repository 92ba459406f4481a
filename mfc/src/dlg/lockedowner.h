// Internal to the dialogs: what is locked while a modal one is shown.
#pragma once

#include <afxwin.h>

#include <detail/pending.h>

#include <utility>

namespace afxdetail
{

/// What a modal dialog locks while it lives: its owner, and, if that belongs to a frame, the frame and its
/// windows.
class LockedOwner
{
public:
    explicit LockedOwner(HWND owner)
        : m_frame(frameOf(owner))
    {
        if (m_frame)
            m_frame->BeginModalState();
        if (owner && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner)) {
            ::EnableWindow(owner, FALSE);
            m_owner = owner;
        }
    }
    ~LockedOwner() { unlockQuietly(); }
    LockedOwner(const LockedOwner&) = delete;
    LockedOwner& operator=(const LockedOwner&) = delete;

    void unlock()
    {
        if (m_owner)
            ::EnableWindow(std::exchange(m_owner, nullptr), TRUE);
        CFrameWnd* const frame = std::exchange(m_frame, nullptr);
        // The frame may have been destroyed meanwhile, by a command of the dialog.
        if (frame && CWnd::FromHandlePermanent(m_frameWnd) == frame)
            frame->EndModalState();
    }

    /// For destructors: what the frame raises waits for the message loop.
    void unlockQuietly() noexcept
    {
        try {
            unlock();
        } catch (...) {
            storePendingException();
        }
    }

private:
    CFrameWnd* frameOf(HWND owner)
    {
        CFrameWnd* frame = owner ? CWnd::FromHandle(owner)->GetTopLevelFrame() : nullptr;
        m_frameWnd = frame->GetSafeHwnd();
        return frame;
    }

    HWND m_owner = nullptr;
    HWND m_frameWnd = nullptr;
    CFrameWnd* m_frame;
};

} // namespace afxdetail
