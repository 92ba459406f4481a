// Internal: where a bar floats again.
#pragma once

#include <afx/ControlBar.h>

namespace afxdetail
{

/// Where a bar comes back that floated with its window at `topLeft`, on the screen: there, or inside a work
/// area if that monitor is gone. Asks the bar for its size.
CPoint placeToFloatAgain(CControlBar& bar, CPoint topLeft, bool horizontal);

} // namespace afxdetail
