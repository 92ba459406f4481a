/// Which look a push button has. Plain values, no windows.
#pragma once

namespace ovoui::frame
{

enum class ButtonLook
{
    Normal,
    Hot, ///< the pointer is over it
    Pressed,
    Disabled,
};

constexpr ButtonLook buttonLook(bool enabled, bool pressed, bool hot)
{
    if (!enabled)
        return ButtonLook::Disabled;
    if (pressed)
        return ButtonLook::Pressed;
    return hot ? ButtonLook::Hot : ButtonLook::Normal;
}

} // namespace ovoui::frame
