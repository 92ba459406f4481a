#include <ovoui/sysinfo/StretchedControls.h>

#include <ovoui/frame/BoxRect.h>

namespace ovoui::sysinfo
{

void StretchedControls::begin(CWnd& dialog)
{
    m_controls.clear(); // of a dialog that was shown before
    m_dialog = &dialog;
    CRect rect;
    dialog.GetWindowRect(&rect);
    m_least = rect.Size();
    dialog.GetClientRect(&rect);
    m_client = rect.Size();
}

void StretchedControls::apply(UINT type, CSize client)
{
    if (!m_dialog || type == SIZE_MINIMIZED)
        return;
    const CSize grown = client - m_client;
    m_client = client;
    for (const Control& control : m_controls) {
        CWnd* const window = m_dialog->GetDlgItem(control.id);
        if (!window)
            continue;
        CRect before;
        window->GetWindowRect(&before);
        m_dialog->ScreenToClient(&before);
        const frame::Box place = stretched(frame::toBox(before), control.how, grown.cx, grown.cy);
        window->SetWindowPos(nullptr, place.left, place.top, place.width(), place.height(),
                             SWP_NOZORDER | SWP_NOACTIVATE);
    }
    m_dialog->Invalidate();
}

void StretchedControls::limit(MINMAXINFO& info) const
{
    if (m_dialog)
        info.ptMinTrackSize = {m_least.cx, m_least.cy};
}

} // namespace ovoui::sysinfo
