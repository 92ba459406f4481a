// Internal: where a bar was before it went where it is.
#pragma once

#include "core/dockrows.h"

#include <afx/ControlBar.h>

namespace afxdetail
{

struct DockMemory
{
    // Docked. 0: it never was.
    UINT dockBar = 0;
    DockPlace place; ///< `newRow`: it was alone in its row
    int start = 0;

    // Floating, on the screen
    bool floated = false;
    CPoint floatPoint{0, 0};
    bool horizontal = true;
};

} // namespace afxdetail
