/// Not exported. Colours of the system as the pictures of sliders take them.
#pragma once

#include <ovoui/sliders/core/CylinderPicture.h>

#include <windows.h>

namespace ovoui::sliders
{

/// `systemColour` is one of COLOR_...
inline Shade shadeOf(int systemColour)
{
    const COLORREF colour = ::GetSysColor(systemColour);
    return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

} // namespace ovoui::sliders
