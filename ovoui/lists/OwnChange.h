/// Not exported: marks changes that a control makes itself.
#pragma once

#include <ovoui/lists/Alive.h>

#include <afxwin.h>

namespace ovoui::lists
{

/// Sets a flag of a control until the end of the scope, which the control may not live to see.
class OwnChange
{
public:
    OwnChange(const CWnd& control, bool& flag)
        : m_control(control)
        , m_window(control.m_hWnd)
        , m_flag(flag)
    {
        m_flag = true;
    }
    ~OwnChange()
    {
        if (isAlive(&m_control, m_window))
            m_flag = false;
    }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;

private:
    const CWnd& m_control;
    const HWND m_window;
    bool& m_flag;
};

} // namespace ovoui::lists
