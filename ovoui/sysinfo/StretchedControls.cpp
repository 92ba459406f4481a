#include <ovoui/sysinfo/StretchedControls.h>

namespace ovoui::sysinfo
{
namespace
{

using How = StretchedControls::How;

CRect placed(const CRect& place, How how, CSize grown)
{
    switch (how) {
    case How::Grow:
        return CRect(place.TopLeft(), place.Size() + grown);
    case How::GrowWide:
        return CRect(place.TopLeft(), place.Size() + CSize(grown.cx, 0));
    case How::MoveRight:
        return place + CPoint(grown.cx, 0);
    case How::MoveDown:
        return place + CPoint(0, grown.cy);
    default:
        return place + CPoint(grown.cx, grown.cy);
    }
}

} // namespace

void StretchedControls::begin(CWnd& dialog)
{
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
        CRect place;
        window->GetWindowRect(&place);
        m_dialog->ScreenToClient(&place);
        place = placed(place, control.how, grown);
        window->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
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
