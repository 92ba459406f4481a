#include <ovoui/colour/ColourButtonFace.h>

#include <ovoui/colour/ColourCells.h>
#include <ovoui/colour/core/TypedColour.h>
#include <ovoui/frame/KeptTheme.h>
#include <ovoui/frame/Resolution.h>
#include <ovoui/frame/ThemeData.h>

#include <vssym32.h>

#include <algorithm>

namespace ovoui::colour
{

namespace
{

// Pixels at 96 dots per inch
constexpr int kMargin = 4;
constexpr int kArrow = 4; // half of its width

} // namespace

ColourButtonFace::ColourButtonFace(CWnd& button, const Colour& colour, const Look& look)
    : m_button(button)
    , m_colour(colour)
    , m_look(look)
{
}

void ColourButtonFace::paint(CDC& dc, const CRect& rect, UINT state) const
{
    const bool enabled = !(state & ODS_DISABLED);
    paintBack(dc, rect, state);
    const int margin = frame::scaledTo(dc, kMargin);
    const int arrow = frame::scaledTo(dc, kArrow);
    CRect field = rect;
    field.DeflateRect(margin, margin);
    CRect room = field;
    room.left = std::max(field.left, field.right - 2 * arrow);
    field.right = room.left - margin;
    if (field.Width() > 2 && field.Height() > 2)
        paintColour(dc, field, enabled);
    paintArrow(dc, room, enabled);
    if ((state & ODS_FOCUS) && !(state & ODS_NOFOCUSRECT)) {
        CRect focus = rect;
        focus.DeflateRect(margin - 2, margin - 2);
        dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        dc.SetBkColor(::GetSysColor(COLOR_BTNFACE));
        dc.DrawFocusRect(&focus);
    }
}

void ColourButtonFace::paintBack(CDC& dc, CRect rect, UINT state) const
{
    const bool enabled = !(state & ODS_DISABLED);
    const bool pressed = m_look.dropped || (state & ODS_SELECTED);
    if (CThemeData::getThemeData().IsAppThemed()) {
        // The corners of a themed button show what is behind it.
        const auto behind = reinterpret_cast<HBRUSH>(
            ::SendMessageW(::GetParent(m_button), WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                           reinterpret_cast<LPARAM>(m_button.m_hWnd)));
        ::FillRect(dc, &rect, behind ? behind : ::GetSysColorBrush(COLOR_BTNFACE));
        const int up = m_look.hot ? PBS_HOT : PBS_NORMAL;
        const int usable = pressed ? PBS_PRESSED : up;
        frame::KeptTheme theme(L"Button");
        if (theme.draw(m_button, dc, BP_PUSHBUTTON, enabled ? usable : PBS_DISABLED, rect))
            return;
    }
    ::DrawFrameControl(dc, &rect, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0));
}

/// A colour with alpha is opaque on the left, and over white and black on the right.
void ColourButtonFace::paintColour(CDC& dc, const CRect& field, bool enabled) const
{
    const auto shown = [&](COLORREF colour) { return enabled ? colour : paleColour(colour); };
    dc.FillSolidRect(&field, shown(m_colour.colorref()));
    if (m_colour.a() >= 0 && m_colour.a() < 1) {
        const CPoint middle = field.CenterPoint();
        dc.FillSolidRect(CRect(middle.x, field.top, field.right, middle.y),
                         shown(overGround(m_colour, 1).colorref()));
        dc.FillSolidRect(CRect(middle.x, middle.y, field.right, field.bottom),
                         shown(overGround(m_colour, 0).colorref()));
    }
    ::FrameRect(dc, &field, ::GetSysColorBrush(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
}

void ColourButtonFace::paintArrow(CDC& dc, const CRect& room, bool enabled) const
{
    const int half = room.Width() / 2;
    const CPoint tip(room.CenterPoint().x, room.CenterPoint().y + (half + 1) / 2);
    POINT arrow[] = {{tip.x - half, tip.y - half}, {tip.x + half, tip.y - half}, tip};
    CBrush brush(::GetSysColor(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    CBrush* const brushBefore = dc.SelectObject(&brush);
    CGdiObject* const penBefore = dc.SelectStockObject(NULL_PEN);
    dc.Polygon(arrow, 3);
    dc.SelectObject(static_cast<CPen*>(penBefore));
    dc.SelectObject(brushBefore);
}

} // namespace ovoui::colour
