// Internal: between the rectangles of windows and those of the layout rules.
#pragma once

#include <afx/ControlBar.h>

#include "core/barlayout.h"

namespace afxdetail
{

/// The side that a bar's style names.
inline Side sideOf(DWORD style)
{
    if (style & CBRS_ALIGN_TOP)
        return Side::Top;
    if (style & CBRS_ALIGN_BOTTOM)
        return Side::Bottom;
    return (style & CBRS_ALIGN_LEFT) ? Side::Left : Side::Right;
}

inline Area areaOf(const RECT& rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

inline CRect rectOf(const Area& area)
{
    return CRect(area.left, area.top, area.right, area.bottom);
}

inline Extent extentOf(const SIZE& size)
{
    return {size.cx, size.cy};
}

/// A window's rectangle on the screen, as the user sees it: in a mirrored window left is left all the same.
inline CRect screenRectOf(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

} // namespace afxdetail
