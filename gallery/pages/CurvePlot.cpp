#include "CurvePlot.h"

#include "Direction.h"
#include "Resolution.h"

#include <algorithm>
#include <cmath>
#include <utility>

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
    return CreateEx(0, cls, L"", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(), &parent, 1) != FALSE &&
           readsFromTheLeft(*this);
}

void CurvePlot::show(Curve numberAt, double value)
{
    m_numberAt = std::move(numberAt);
    m_value = value;
    Invalidate();
}

CPoint CurvePlot::place(const CRect& area, double share, double value) const
{
    const double low = m_numberAt(0);
    const double up = std::clamp((value - low) / (m_numberAt(1) - low), 0.0, 1.0);
    return CPoint(area.left + std::lround(area.Width() * share),
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
    CPoint mark = place(area, 0, m_numberAt(0));
    dc.MoveTo(mark);
    for (int step = 1; step <= kSteps; ++step) {
        const double share = static_cast<double>(step) / kSteps;
        const CPoint here = place(area, share, m_numberAt(share));
        dc.LineTo(here);
        if (m_numberAt(share) <= m_value)
            mark = here;
    }
    dc.SelectObject(old);

    const int radius = scaled(m_hWnd, kMark);
    CBrush brush(::GetSysColor(COLOR_WINDOWTEXT));
    CBrush* const oldBrush = dc.SelectObject(&brush);
    dc.Ellipse(mark.x - radius, mark.y - radius, mark.x + radius + 1, mark.y + radius + 1);
    dc.SelectObject(oldBrush);
}
