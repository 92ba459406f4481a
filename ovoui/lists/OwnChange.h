/// Not exported: marks changes that a control makes itself.
#pragma once

#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

namespace ovoui::lists
{

/// Sets a flag of a control until the end of the scope, which the control may not live to see.
class OwnChange
{
public:
    OwnChange(const CWnd& control, bool& flag)
        : m_watch(control)
        , m_flag(flag)
    {
        m_flag = true;
    }
    ~OwnChange()
    {
        if (m_watch.alive())
            m_flag = false;
    }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;

private:
    const Lifeline::Watch m_watch;
    bool& m_flag;
};

} // namespace ovoui::lists
