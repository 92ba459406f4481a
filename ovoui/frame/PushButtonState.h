/// Not exported. Push buttons in the system's themes.
#pragma once

#include <ovoui/frame/core/ButtonLook.h>

#include <windows.h>
#include <vssym32.h>

namespace ovoui::frame
{

/// The state of the part BP_PUSHBUTTON, one of PBS_.
constexpr int pushButtonState(ButtonLook look)
{
    switch (look) {
    case ButtonLook::Hot:
        return PBS_HOT;
    case ButtonLook::Pressed:
        return PBS_PRESSED;
    case ButtonLook::Disabled:
        return PBS_DISABLED;
    case ButtonLook::Normal:
        break;
    }
    return PBS_NORMAL;
}

} // namespace ovoui::frame
