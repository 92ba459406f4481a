#include <ovoui/lists/ColourEntry.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/lists/core/Checkerboard.h>

using ovoui::frame::Box;
using ovoui::frame::toBox;
using ovoui::lists::Checkerboard;

namespace
{

/// Fills rectangles with the context's own brush, whose colour can be changed without making another one.
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

    void operator()(const Box& box) const
    {
        if (!box.empty())
            m_dc.PatBlt(box.left, box.top, box.width(), box.height(), PATCOPY);
    }

private:
    CDC& m_dc;
    const HGDIOBJ m_oldBrush;
    const COLORREF m_oldColour;
};

} // namespace

void fillColourEntryBgd(CDC& dc, DWORD colour, DWORD checkA, DWORD checkB, const CRect& rect)
{
    SolidFill fill(dc);
    fill.setColour(colour);
    if (checkA == checkB) {
        fill(toBox(rect));
        return;
    }
    const Checkerboard squares(toBox(rect));
    fill(squares.plain());
    fill.setColour(checkA);
    fill(squares.board());
    fill.setColour(checkB);
    squares.eachSecond(fill);
}
