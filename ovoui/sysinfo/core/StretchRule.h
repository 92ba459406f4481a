/// Where controls go in a dialog that the user makes larger. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

namespace ovoui::sysinfo
{

/// How a control takes the room that its dialog gains.
enum class Stretch
{
    Grow,      ///< both ways
    GrowWide,  ///< to the right
    MoveRight, ///< keeps its distance from the right edge
    MoveDown,  ///< from the bottom edge
    MoveBoth   ///< from both
};

/// The control's place after the dialog has grown by so many pixels, or shrunk.
frame::Box stretched(const frame::Box& place, Stretch how, int wider, int taller);

} // namespace ovoui::sysinfo
