#include <ovoui/tree/LayoutHold.h>

#include <ovoui/tree/HostCalls.h>

MultiTreeCtrl::LayoutHold::LayoutHold(MultiTreeCtrl& tree)
    : m_state(tree.m_state)
    , m_holds(m_state->redraws)
    , m_redraw(tree.m_hWnd)
{
    if (m_holds)
        tree.DefWindowProc(WM_SETREDRAW, FALSE, 0);
}

MultiTreeCtrl::LayoutHold::~LayoutHold()
{
    // What windows raise that hear of the new layout must not leave a destructor.
    if (m_holds && m_state->usable())
        ovoui::frame::dropping([this] { m_state->control()->DefWindowProc(WM_SETREDRAW, TRUE, 0); });
}
