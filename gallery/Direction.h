// Right to left, and what is not.
#pragma once

#include <afxwin.h>

/// Takes the layout from right to left, which windows inherit, from one that shows a picture of something: a
/// curve, the screen. True, so that it can follow the creation in one expression.
inline bool readsFromTheLeft(CWnd& window)
{
    window.ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
    return true;
}
