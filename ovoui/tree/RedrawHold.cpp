#include <ovoui/tree/RedrawHold.h>

namespace ovoui::tree
{

RedrawHold::RedrawHold(HWND window)
    : m_window(::IsWindowVisible(window) ? window : nullptr)
{
    if (m_window)
        ::DefWindowProcW(m_window, WM_SETREDRAW, FALSE, 0);
}

RedrawHold::~RedrawHold()
{
    if (!m_window || !::IsWindow(m_window))
        return;
    ::DefWindowProcW(m_window, WM_SETREDRAW, TRUE, 0);
    // The frame too: scroll bars may have come, gone or moved.
    ::RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

} // namespace ovoui::tree
