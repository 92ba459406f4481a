#include <ovoui/frame/RedrawHold.h>

namespace ovoui::frame
{

RedrawHold::RedrawHold(HWND window, By by)
    : m_window(by != By::System || ::IsWindowVisible(window) ? window : nullptr)
    , m_by(by)
{
    if (m_window)
        setRedraw(FALSE);
}

RedrawHold::~RedrawHold()
{
    if (!m_window || !::IsWindow(m_window))
        return;
    setRedraw(TRUE);
    // The frame too: scroll bars may have come, gone or moved.
    if (m_by != By::Control)
        ::RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void RedrawHold::setRedraw(BOOL redraw) const
{
    if (m_by == By::System)
        ::DefWindowProcW(m_window, WM_SETREDRAW, static_cast<WPARAM>(redraw), 0);
    else
        ::SendMessageW(m_window, WM_SETREDRAW, static_cast<WPARAM>(redraw), 0);
}

} // namespace ovoui::frame
