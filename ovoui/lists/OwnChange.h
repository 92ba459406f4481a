/// Not exported: marks changes that a control makes itself.
#pragma once

#include <ovoui/lists/Alive.h>

#include <afxwin.h>

namespace ovoui::lists
{

/// Sets a flag of a combo box until the end of the scope, which the combo box may not live to see.
class OwnChange
{
public:
    OwnChange(const CWnd& combo, bool& flag)
        : m_combo(combo)
        , m_window(combo.m_hWnd)
        , m_flag(flag)
    {
        m_flag = true;
    }
    ~OwnChange()
    {
        if (isAlive(&m_combo, m_window))
            m_flag = false;
    }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;

private:
    const CWnd& m_combo;
    const HWND m_window;
    bool& m_flag;
};

} // namespace ovoui::lists
