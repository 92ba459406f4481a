#include <ovoui/colour/ColourButtonFace.h>

#include <ovoui/colour/ColourCells.h>
#include <ovoui/colour/core/ButtonFaceLayout.h>
#include <ovoui/colour/core/TypedColour.h>
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DrawnState.h>
#include <ovoui/frame/FilledTriangle.h>
#include <ovoui/frame/KeptTheme.h>
#include <ovoui/frame/PushButtonState.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/frame/ThemeData.h>

namespace ovoui::colour
{

ColourButtonFace::ColourButtonFace(CWnd& button, const Colour& colour, const Look& look)
    : m_button(button)
    , m_colour(colour)
    , m_look(look)
{
}

void ColourButtonFace::paint(CDC& dc, const CRect& rect, UINT state) const
{
    const bool enabled = !(state & ODS_DISABLED);
    if (!paintBack(dc, rect, state))
        return;
    const ButtonFaceLayout layout = layOutButtonFace(frame::toBox(rect), dc.GetDeviceCaps(LOGPIXELSX));
    const COLORREF lines = ink(state);
    if (layout.showsSwatch())
        paintColour(dc, layout, enabled, lines);
    frame::fillTriangle(dc, layout.arrow, lines);
    if (frame::showsFocus(state)) {
        const CRect focus(frame::toRect(layout.focus));
        dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        dc.SetBkColor(::GetSysColor(COLOR_BTNFACE));
        dc.DrawFocusRect(&focus);
    }
}

bool ColourButtonFace::paintBack(CDC& dc, CRect rect, UINT state) const
{
    if (CThemeData::getThemeData().IsAppThemed()) {
        // The corners of a themed button show what is behind it.
        const Lifeline::Watch watch(m_button);
        const auto behind = reinterpret_cast<HBRUSH>(
            frame::sendToHost(::GetParent(m_button), WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                              reinterpret_cast<LPARAM>(m_button.m_hWnd)));
        if (!watch.alive())
            return false;
        ::FillRect(dc, &rect, behind ? behind : ::GetSysColorBrush(COLOR_BTNFACE));
        frame::KeptTheme theme(L"Button");
        if (theme.draw(m_button, dc, BP_PUSHBUTTON, themedState(state), rect))
            return true;
    }
    ::DrawFrameControl(dc, &rect, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed(state) ? DFCS_PUSHED : 0));
    return true;
}

bool ColourButtonFace::pressed(UINT state) const
{
    return m_look.dropped || (state & ODS_SELECTED);
}

int ColourButtonFace::themedState(UINT state) const
{
    return frame::pushButtonState(frame::buttonLook(!(state & ODS_DISABLED), pressed(state), m_look.hot));
}

COLORREF ColourButtonFace::ink(UINT state) const
{
    const COLORREF classic = ::GetSysColor((state & ODS_DISABLED) ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
    frame::KeptTheme theme(L"Button");
    return theme.textColour(m_button, BP_PUSHBUTTON, themedState(state), classic);
}

/// A colour with alpha is opaque on the left, and over white and black on the right.
void ColourButtonFace::paintColour(CDC& dc, const ButtonFaceLayout& layout, bool enabled, COLORREF ink) const
{
    const auto fill = [&](const frame::Box& box, const Colour& colour) {
        const COLORREF shown = enabled ? colour.colorref() : paleColour(colour.colorref());
        dc.FillSolidRect(CRect(frame::toRect(box)), shown);
    };
    fill(layout.swatch, m_colour);
    if (m_colour.a() >= 0 && m_colour.a() < 1) {
        fill(layout.light, overGround(m_colour, 1));
        fill(layout.dark, overGround(m_colour, 0));
    }
    const RECT edge = frame::toRect(layout.swatch);
    CBrush brush(ink);
    dc.FrameRect(&edge, &brush);
}

} // namespace ovoui::colour
