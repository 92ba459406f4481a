/// Not exported. Lengths that are given in pixels at the usual resolution.
#pragma once

#include <ovoui/frame/core/Scaling.h>

#include <afxwin.h>

namespace ovoui::frame
{

/// In pixels of the device.
inline int scaledTo(const CDC& dc, int length)
{
    return scaledTo(dc.GetDeviceCaps(LOGPIXELSX), length);
}

} // namespace ovoui::frame
