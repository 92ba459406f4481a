// The picker's drawing: patch, wheel, markers and swatches.
#include <ovoui/colour/ColPicker.h>

#include <ovoui/colour/ColourWheelImage.h>
#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/colour/core/Round.h>
#include <ovoui/colour/core/SwatchLayout.h>
#include <ovoui/colour/core/TypedColour.h>
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/LeftToRight.h>
#include <ovoui/frame/core/BoxParts.h>

#include <utility>

using namespace ovoui::colour;
using ovoui::frame::LeftToRight;
using ovoui::frame::SavedContext;
using ovoui::frame::SelectedTool;
using ovoui::frame::toBox;
using ovoui::frame::toRect;

namespace
{

bool meet(const CRect& one, const CRect& other)
{
    CRect common;
    return common.IntersectRect(&one, &other) != FALSE;
}

CPoint pointOf(Vector<2> vector)
{
    return {rounded(vector.x()), rounded(vector.y())};
}

CRect squareAround(CPoint centre, int radius)
{
    return {centre.x - radius, centre.y - radius, centre.x + radius + 1, centre.y + radius + 1};
}

ovoui::frame::Box placeOf(const CWnd& control, const CWnd& wnd)
{
    CRect place;
    control.GetWindowRect(&place);
    wnd.ScreenToClient(&place);
    return toBox(place);
}

/// Pen and brush for outlines that invert what is under them.
class Inverting
{
public:
    explicit Inverting(CDC& dc)
        : m_state(dc)
    {
        dc.SetROP2(R2_XORPEN);
        dc.SelectStockObject(WHITE_PEN);
        dc.SelectStockObject(HOLLOW_BRUSH);
    }

private:
    SavedContext m_state;
};

RGBQUAD quadOf(const Colour& colour)
{
    unsigned char bytes[3];
    colour.getDib24(bytes);
    return {bytes[0], bytes[1], bytes[2], 0};
}

/// A picture of 16 by 16 pixels as CreateDIBPatternBrush takes it: squares of 8 pixels in two colours.
struct Checkerboard
{
    static constexpr int kSize = 16;

    BITMAPINFOHEADER header{sizeof(BITMAPINFOHEADER), kSize, kSize, 1, 1, BI_RGB, 0, 10000, 10000, 2, 0};
    RGBQUAD colours[2];
    BYTE rows[kSize][4]{}; // of which the first two bytes are pixels

    Checkerboard(const Colour& first, const Colour& second)
        : colours{quadOf(first), quadOf(second)}
    {
        for (int row = 0; row < kSize; ++row)
            rows[row][row < kSize / 2 ? 0 : 1] = 0xFF;
    }
};

/// An edge that lets the inside look sunken.
void drawSunkenEdge(CDC& dc, const CRect& rect)
{
    const auto line = [&dc](int colour, CPoint from, CPoint corner, CPoint to) {
        CPen pen(PS_SOLID, 1, ::GetSysColor(colour));
        const SelectedTool selected(dc, &pen);
        dc.MoveTo(from);
        dc.LineTo(corner);
        dc.LineTo(to);
    };
    const int right = rect.right - 1;
    const int bottom = rect.bottom - 1;
    line(COLOR_BTNHIGHLIGHT, {right, rect.top}, {right, bottom}, {rect.left - 1, bottom});
    line(COLOR_3DDKSHADOW, {rect.left, bottom}, {rect.left, rect.top}, {rect.right, rect.top});
}

} // namespace

void ColPicker::DoPaint(CWnd* wnd, CPaintDC* dc)
{
    const Lifeline::Watch watch(m_lifeline);
    const CRect update(dc->m_ps.rcPaint);
    if (meet(update, m_patchRect))
        DrawPatch(dc);
    if (watch.alive() && hasWheel() && meet(update, wheelArea()))
        drawWheel(wnd, dc);
    if (watch.alive() && m_customAreaId != 0 && meet(update, m_customRect))
        DrawCustomColours(wnd, dc);
}

// The patch

void ColPicker::DrawPatch(CPaintDC* dc)
{
    CRect opaque = m_patchRect;
    if (m_alphaEnabled && m_colour.a() != 1) {
        opaque.right -= m_patchRect.Width() / 2;
        makeCheckerboard();
        const CRect mixed(opaque.right, m_patchRect.top, m_patchRect.right, m_patchRect.bottom);
        dc->FillRect(&mixed, &m_checkerboard);
    }
    dc->FillSolidRect(&opaque, m_colour.colorref());
    showValues();
}

void ColPicker::makeCheckerboard()
{
    const Checkerboard picture(overGround(m_colour, 0), overGround(m_colour, 1));
    m_checkerboard.DeleteObject();
    m_checkerboard.CreateDIBPatternBrush(&picture, DIB_RGB_COLORS);
}

// The wheel

bool ColPicker::hasWheel() const
{
    return m_wheel && m_wheel->isValid() && m_wheel->status() == Gdiplus::Ok;
}

/// The wheel with its markers, which may reach beyond it by a pixel.
CRect ColPicker::wheelArea() const
{
    CRect area = m_wheelRect;
    if (m_hueMarkerDrawn)
        area |= m_hueMarkerRect;
    if (m_triMarkerDrawn)
        area |= triMarkerRect();
    return area;
}

void ColPicker::drawWheel(CWnd* wnd, CPaintDC* dc)
{
    if (!fillMarkerAreas(wnd, dc) || !hasWheel())
        return;
    m_wheel->setHue(m_colour.h_hls());
    {
        const LeftToRight plain(*dc);
        const CPoint place = plain.place(m_wheelRect).TopLeft();
        m_wheel->draw(dc->m_hDC, place);
        drawFocusMark(dc, place - m_wheelRect.TopLeft());
    }
    // They are gone from what was painted anew, and nothing else is drawn to.
    if (std::exchange(m_hueMarkerDrawn, false))
        draw_hue_marker(dc, m_hueMarker);
    if (std::exchange(m_triMarkerDrawn, false))
        draw_tri_marker(dc, m_triMarker);
}

/// Restores what lies behind the markers where the picture is transparent. False when the picker is gone,
/// which painting a tab control may lead to.
bool ColPicker::fillMarkerAreas(CWnd* wnd, CDC* dc)
{
    if (!m_hueMarkerDrawn && !m_triMarkerDrawn)
        return true;
    const Lifeline::Watch watch(m_lifeline);
    const SavedContext state(*dc);
    const HBRUSH face = ::GetSysColorBrush(COLOR_BTNFACE);
    CShadedTabCtrl* const tabs = tabCtrl();
    if (!watch.alive() || !wnd->m_hWnd)
        return false;
    // The tab control sets the brush's origin, as for the dialog itself.
    const HBRUSH brush = tabs ? tabs->AmendCtlColor(dc, CTLCOLOR_DLG, face, wnd)
                              : CShadedTabCtrl::AmendCtlColor(dc, wnd, CTLCOLOR_DLG, face);
    if (!watch.alive() || !wnd->m_hWnd)
        return false;
    if (m_hueMarkerDrawn)
        ::FillRect(dc->m_hDC, &m_hueMarkerRect, brush);
    const CRect triangleMarker = triMarkerRect();
    if (m_triMarkerDrawn)
        ::FillRect(dc->m_hDC, &triangleMarker, brush);
    return true;
}

// Markers

int ColPicker::markerRadius() const
{
    return rounded((m_outerRadius - m_innerRadius) * 0.5);
}

CRect ColPicker::triMarkerRect() const
{
    return squareAround(m_triMarker, markerRadius());
}

/// Ring and triangle look the same in a mirrored dialog. The point of the dialog where a point of the wheel
/// is drawn, and the other way about.
CPoint ColPicker::asDrawn(CPoint point) const
{
    return m_mirrored ? CPoint(m_wheelRect.left + m_wheelRect.right - 1 - point.x, point.y) : point;
}

CPoint ColPicker::hueMarkerPoint() const
{
    return asDrawn(pointOf(m_wheel->ring().marker(m_colour.h_hls())));
}

CPoint ColPicker::triMarkerPoint() const
{
    return asDrawn(pointOf(m_wheel->triangle().marker(m_colour.l_hls(), m_colour.s_hls())));
}

void ColPicker::draw_hue_marker(CDC* dc)
{
    if (!hasWheel())
        return;
    CPoint point = hueMarkerPoint();
    draw_hue_marker(dc, point);
}

void ColPicker::draw_hue_marker(CDC* dc, CPoint& point)
{
    const Inverting inverting(*dc);
    if (m_hueMarkerDrawn)
        drawCircle(dc, m_hueMarker);
    drawCircle(dc, point);
    m_hueMarker = point;
    m_hueMarkerRect = squareAround(point, markerRadius());
    m_hueMarkerDrawn = true;
}

void ColPicker::draw_tri_marker(CDC* dc)
{
    if (!hasWheel())
        return;
    CPoint point = triMarkerPoint();
    draw_tri_marker(dc, point);
}

void ColPicker::draw_tri_marker(CDC* dc, CPoint& point)
{
    const Inverting inverting(*dc);
    if (m_triMarkerDrawn)
        drawCross(dc, m_triMarker);
    drawCross(dc, point);
    m_triMarker = point;
    m_triMarkerDrawn = true;
}

void ColPicker::drawCircle(CDC* dc, CPoint centre) const
{
    const LeftToRight plain(*dc);
    dc->Ellipse(plain.place(squareAround(centre, markerRadius())));
}

/// The middle, where both lines invert, shows the picked colour.
void ColPicker::drawCross(CDC* dc, CPoint centre) const
{
    const LeftToRight plain(*dc);
    const CRect square = plain.place(squareAround(centre, markerRadius()));
    const int middle = square.left + markerRadius();
    POINT upright[]{{middle, square.top}, {middle, square.bottom}};
    POINT level[]{{square.left, centre.y}, {square.right, centre.y}};
    dc->Polyline(upright, 2);
    dc->Polyline(level, 2);
}

// The swatches

void ColPicker::DrawCustomColours(CWnd* wnd, CDC* dc)
{
    if (!m_value2.m_hWnd || !m_value3.m_hWnd)
        return;
    const Lifeline::Watch watch(m_lifeline);
    std::array<COLORREF, kSwatches> colours{};
    for (int i = 0; i < kSwatches; ++i) {
        colours[static_cast<std::size_t>(i)] = customCols(i);
        if (!watch.alive() || !wnd->m_hWnd)
            return;
    }
    const auto places = swatchRects({.area = toBox(m_customRect),
                                     .secondEdit = placeOf(m_value2, *wnd),
                                     .thirdEdit = placeOf(m_value3, *wnd),
                                     .borderWidth = ::GetSystemMetrics(SM_CXBORDER),
                                     .borderHeight = ::GetSystemMetrics(SM_CYBORDER)});
    for (std::size_t i = 0; i < kSwatches; ++i) {
        m_swatches[i] = toRect(inset(places[i], 1));
        drawSunkenEdge(*dc, m_swatches[i]);
        dc->FillSolidRect(CRect(toRect(inset(places[i], 2))), colours[i]);
    }
    drawSwatchMark(dc);
}
