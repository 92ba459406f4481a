/// Rectangles and monitors.
#pragma once

#include <ovoui/export.h>

#include <windows.h>

/// The work area (the screen without task bars), in screen pixels, of the monitor nearest to `rect`. When the
/// monitor cannot be asked, the primary monitor's; when that fails too, `rect` itself.
OVOUI_API RECT GetWorkArea(const RECT& rect);

/// Moves `rect` (screen pixels), without resizing it, into the work area of its nearest monitor. What is too
/// large ends at the left or top edge and hangs over at the right or bottom.
OVOUI_API void EnsureRectVisible(RECT& rect);
