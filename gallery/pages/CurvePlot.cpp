#include "CurvePlot.h"

#include "Resolution.h"

#include <algorithm>
#include <cmath>

BEGIN_MESSAGE_MAP(CurvePlot, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr int kSteps = 100;
constexpr int kMargin = 8; // pixels at 96 dots per inch
constexpr int kMark = 3;
constexpr int kPen = 2;

} // namespace

bool CurvePlot::create(CWnd& parent)
{
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CreateEx(0, cls, L"", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(), &parent, 1) != FALSE;
}

void CurvePlot::show(CSliderButton::SliderType type, double low, double high, double value)
{
    m_type = type;
    m_low = low;
    m_high = high;
    m_value = value;
    Invalidate();
}

double CurvePlot::valueAt(double fraction) const
{
    switch (m_type) {
    case CSliderButton::SliderLogarithmic:
        return m_low * std::pow(m_high / m_low, fraction);
    case CSliderButton::SliderSquareRoot:
        return m_low + (m_high - m_low) * fraction * fraction;
    default:
        return m_low + (m_high - m_low) * fraction;
    }
}

CPoint CurvePlot::place(const CRect& area, double fraction, double value) const
{
    const double up = std::clamp((value - m_low) / (m_high - m_low), 0.0, 1.0);
    return CPoint(area.left + std::lround(area.Width() * fraction),
                  area.bottom - std::lround(area.Height() * up));
}

void CurvePlot::OnPaint()
{
    CPaintDC dc(this);
    CRect area;
    GetClientRect(&area);
    const int margin = scaled(m_hWnd, kMargin);
    area.DeflateRect(margin, margin);

    CPen axis(PS_SOLID, 1, ::GetSysColor(COLOR_GRAYTEXT));
    CPen curve(PS_SOLID, scaled(m_hWnd, kPen), ::GetSysColor(COLOR_HIGHLIGHT));
    CPen* const old = dc.SelectObject(&axis);
    dc.MoveTo(area.left, area.top);
    dc.LineTo(area.left, area.bottom);
    dc.LineTo(area.right, area.bottom);

    dc.SelectObject(&curve);
    dc.MoveTo(place(area, 0, m_low));
    CPoint mark = place(area, 0, m_low);
    for (int step = 1; step <= kSteps; ++step) {
        const double fraction = static_cast<double>(step) / kSteps;
        const CPoint here = place(area, fraction, valueAt(fraction));
        dc.LineTo(here);
        if (valueAt(fraction) <= m_value)
            mark = here;
    }
    dc.SelectObject(old);

    const int radius = scaled(m_hWnd, kMark);
    CBrush brush(::GetSysColor(COLOR_WINDOWTEXT));
    CBrush* const oldBrush = dc.SelectObject(&brush);
    dc.Ellipse(mark.x - radius, mark.y - radius, mark.x + radius + 1, mark.y + radius + 1);
    dc.SelectObject(oldBrush);
}
