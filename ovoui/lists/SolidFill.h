/// Not exported: fills rectangles with one colour after the other.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <afxwin.h>

namespace ovoui::lists
{

/// Fills with the context's own brush, whose colour can be changed without making another one. The brush and
/// its colour are those of before at the end of the scope.
class SolidFill
{
public:
    explicit SolidFill(CDC& dc)
        : m_dc(dc)
        , m_oldBrush(::SelectObject(dc, ::GetStockObject(DC_BRUSH)))
        , m_oldColour(dc.GetDCBrushColor())
    {
    }
    ~SolidFill()
    {
        m_dc.SetDCBrushColor(m_oldColour);
        ::SelectObject(m_dc, m_oldBrush);
    }
    SolidFill(const SolidFill&) = delete;
    SolidFill& operator=(const SolidFill&) = delete;

    void setColour(DWORD colour) { m_dc.SetDCBrushColor(colour); }

    void operator()(const frame::Box& box) const
    {
        if (!box.empty())
            m_dc.PatBlt(box.left, box.top, box.width(), box.height(), PATCOPY);
    }

private:
    CDC& m_dc;
    const HGDIOBJ m_oldBrush;
    const COLORREF m_oldColour;
};

} // namespace ovoui::lists
