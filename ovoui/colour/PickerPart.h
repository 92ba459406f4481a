/// The parts of a colour picker that the user presses.
#pragma once

namespace ovoui::colour
{

/// A part of the picker under the mouse, or the one from which a drag has begun.
enum class PickerPart : int
{
    None,     ///< beside all of them
    Triangle, ///< the shades of a hue
    Ring,     ///< the hues
    Patch,    ///< the area in the colour
};

} // namespace ovoui::colour
