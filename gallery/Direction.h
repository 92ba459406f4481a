// Right to left, and what is not.
#pragma once

#include <afxwin.h>

/// Moves a child, to a place in client pixels of its parent. Wine takes the pixels of a child of a mirrored
/// window from another place than where they were, so it is painted anew there.
inline void moveChild(CWnd& child, const CRect& place)
{
    const UINT bits = (child.GetParent()->GetExStyle() & WS_EX_LAYOUTRTL) ? SWP_NOCOPYBITS : 0;
    child.SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE | bits);
}

/// Takes the layout from right to left, which windows inherit, from one that shows a picture of something: a
/// curve, the screen. True, so that it can follow the creation in one expression.
inline bool readsFromTheLeft(CWnd& window)
{
    window.ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
    return true;
}
