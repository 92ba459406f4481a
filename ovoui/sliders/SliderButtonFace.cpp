#include <ovoui/sliders/SliderButtonFace.h>

#include <ovoui/frame/FilledTriangle.h>
#include <ovoui/frame/PushButtonState.h>
#include <ovoui/sliders/core/SliderPlaces.h>

namespace ovoui::sliders
{

SliderButtonFace::SliderButtonFace(HWND wnd, frame::KeptTheme& theme, bool pressed, bool focused)
    : m_wnd(wnd)
    , m_theme(theme)
    , m_pressed(pressed)
    , m_focused(focused)
    , m_enabled(::IsWindowEnabled(wnd) != FALSE)
{
}

void SliderButtonFace::paint(CDC& dc, const CRect& client) const
{
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    paintBack(dc, client);
    paintArrow(dc, client);
    if (m_focused)
        paintFocus(dc, client);
}

void SliderButtonFace::paintBack(CDC& dc, const CRect& client) const
{
    const int state = frame::pushButtonState(frame::buttonLook(m_enabled, m_pressed, false));
    if (m_theme.draw(m_wnd, dc, BP_PUSHBUTTON, state, client))
        return;
    const COLORREF highlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    dc.Draw3dRect(&client, m_pressed ? shadow : highlight, m_pressed ? highlight : shadow);
}

void SliderButtonFace::paintArrow(CDC& dc, const CRect& client) const
{
    if (const auto corners = arrowCorners(client.Width(), client.Height()))
        frame::fillTriangle(dc, *corners, ::GetSysColor(m_enabled ? COLOR_3DDKSHADOW : COLOR_GRAYTEXT));
}

void SliderButtonFace::paintFocus(CDC& dc, CRect client)
{
    client.DeflateRect(1, 1);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
    dc.DrawFocusRect(&client);
}

} // namespace ovoui::sliders
