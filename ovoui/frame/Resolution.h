/// Not exported. Lengths that are given in pixels at the usual resolution.
#pragma once

#include <afxwin.h>

namespace ovoui::frame
{

/// In pixels of the device.
inline int scaledTo(const CDC& dc, int length)
{
    return ::MulDiv(length, dc.GetDeviceCaps(LOGPIXELSX), USER_DEFAULT_SCREEN_DPI);
}

} // namespace ovoui::frame
