/// Not exported: telling a drag from a click.
#pragma once

#include <windows.h>

namespace ovoui::tree
{

/// Waits, after a press of a mouse button at a client point of `window`, for what becomes of it. True for a
/// drag: the pointer has left the system's drag rectangle, or the button was held for the double-click time.
/// False when all buttons are up again, Escape was pressed, or the mouse or the window was lost.
///
/// Messages of the window are handled meanwhile, so that it may be gone afterwards.
bool detectDrag(HWND window, POINT press);

} // namespace ovoui::tree
