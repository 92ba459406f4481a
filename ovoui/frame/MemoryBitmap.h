/// Not exported: pixels in memory, 32 bits each, with the rows from the top.
#pragma once

#include <windows.h>

namespace ovoui::frame
{

/// The header of such pixels.
BITMAPINFO topDownInfo(int width, int height);

} // namespace ovoui::frame
