/// Draws colour swatches: a colour beside a checkerboard that shows its transparency.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

/// Fills the rectangle `rect` of `dc`, in logical units, with a swatch. The left half gets `colour`; the
/// right half gets squares in `checkA` and `checkB`, which are the colour over a black and over a white
/// ground. With both the same, the whole rectangle is filled with `colour`.
///
/// The rows of squares are anchored to y = 0, so that swatches below each other share one grid. A rectangle
/// less than 3 units high or 2 wide has no room for squares, and its right half stays as it was.
///
/// The device context's brush, colours and modes are those of before afterwards.
OVOUI_API void fillColourEntryBgd(CDC& dc, DWORD colour, DWORD checkA, DWORD checkB, const CRect& rect);
