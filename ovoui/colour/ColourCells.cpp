#include <ovoui/colour/ColourCells.h>

namespace ovoui::colour
{

void drawColourCell(CDC& dc, const CRect& cell, COLORREF colour, bool enabled)
{
    CRect inside = cell;
    inside.DeflateRect(1, 1);
    ::FrameRect(dc, &cell, ::GetSysColorBrush(COLOR_BTNSHADOW));
    dc.FillSolidRect(&inside, enabled ? colour : paleColour(colour));
}

void drawCellMark(CDC& dc, CRect cell)
{
    for (const int brush : {BLACK_BRUSH, WHITE_BRUSH}) {
        ::FrameRect(dc, &cell, static_cast<HBRUSH>(::GetStockObject(brush)));
        cell.DeflateRect(1, 1);
    }
}

COLORREF paleColour(COLORREF colour)
{
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const auto middle = [](int one, int other) { return (one + other) / 2; };
    return RGB(middle(GetRValue(colour), GetRValue(face)), middle(GetGValue(colour), GetGValue(face)),
               middle(GetBValue(colour), GetBValue(face)));
}

} // namespace ovoui::colour
