// Internal: a flag that is set for the rest of a scope.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

class FlagScope
{
public:
    explicit FlagScope(bool& flag)
        : m_flag(flag)
    {
        m_flag = true;
    }
    ~FlagScope() { m_flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_flag;
};

/// The same for a flag of a window that may be gone at the end of the scope, its object with it.
class WindowFlagScope
{
public:
    WindowFlagScope(const CWnd& window, bool& flag)
        : m_window(window)
        , m_wnd(window.m_hWnd)
        , m_flag(flag)
    {
        m_flag = true;
    }
    ~WindowFlagScope()
    {
        if (windowIsThere())
            m_flag = false;
    }
    WindowFlagScope(const WindowFlagScope&) = delete;
    WindowFlagScope& operator=(const WindowFlagScope&) = delete;

    bool windowIsThere() const { return CWnd::FromHandlePermanent(m_wnd) == &m_window; }

private:
    const CWnd& m_window;
    const HWND m_wnd;
    bool& m_flag;
};

} // namespace afxdetail
