/// Not exported. How a colour in a grid is drawn.
#pragma once

#include <afxwin.h>

namespace ovoui::colour
{

/// A disabled one has a pale colour.
void drawColourCell(CDC& dc, const CRect& cell, COLORREF colour, bool enabled);
/// Around the inside of a cell: a frame in black and one in white, which show on every colour.
void drawCellMark(CDC& dc, CRect cell);

/// Half of the way to the colour of faces, for what is disabled.
COLORREF paleColour(COLORREF colour);

} // namespace ovoui::colour
