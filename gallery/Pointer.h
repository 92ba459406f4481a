// The pointer of the mouse.
#pragma once

#include <afxwin.h>

/// Puts the pointer onto a place of a window, in its client pixels. A pose that sends a window messages of
/// the mouse does so too: where a window comes up under the pointer, the system tells of the place that the
/// pointer really has.
inline void pointAt(CWnd& window, CPoint place)
{
    window.ClientToScreen(&place);
    ::SetCursorPos(place.x, place.y);
}
