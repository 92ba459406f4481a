/// Tells, after a call into the host's code, whether the caller may go on.
#pragma once

#include <afxwin.h>

#include <memory>

/// A host that is called (a notification, a callback, a virtual operation, a question for a text) may destroy
/// the window or delete the object that called it. A caller that goes on afterwards keeps a watch on its
/// stack:
///
///     const Lifeline::Watch watch(*this);
///     tellParent();
///     if (!watch.alive())
///         return;
///
/// A window is watched as it is. An object that is no window, or that is to be watched without one, has a
/// lifeline for a member and watches that. A copy of the object has a lifeline of its own. A control whose
/// data is needed after the call keeps it in a SharedState.
class Lifeline
{
public:
    Lifeline()
        : m_life(std::make_shared<char>())
    {
    }
    Lifeline(const Lifeline&)
        : Lifeline()
    {
    }
    Lifeline& operator=(const Lifeline&) { return *this; }

    /// It outlives what it watches.
    class Watch
    {
    public:
        /// Alive until the object with the lifeline is deleted.
        explicit Watch(const Lifeline& lifeline)
            : m_life(lifeline.m_life)
        {
        }
        /// Alive as long as the object has the window that it has now. It may be of any class: what counts
        /// are the framework's maps of windows, which deleted objects are not in. One that the framework has
        /// lent, as CWnd::GetDlgItem does, is alive as long as its window.
        explicit Watch(const CWnd& window)
            : m_object(&window)
            , m_window(window.m_hWnd)
            , m_isLent(!CWnd::FromHandlePermanent(m_window))
        {
        }

        /// Whether it is still there.
        bool alive() const
        {
            if (!m_object)
                return !m_life.expired();
            if (m_isLent)
                return ::IsWindow(m_window) && CWnd::FromHandle(m_window) == m_object;
            return CWnd::FromHandlePermanent(m_window) == m_object;
        }

    private:
        std::weak_ptr<char> m_life;
        const CWnd* m_object = nullptr; // for comparison alone: it may be deleted
        HWND m_window = nullptr;
        bool m_isLent = false;
    };

private:
    std::shared_ptr<char> m_life;
};
