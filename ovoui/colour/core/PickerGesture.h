/// What the mouse leads to in a colour picker. Plain values, no windows.
#pragma once

#include <ovoui/colour/PickerPart.h>

namespace ovoui::colour
{

enum class PickerInput
{
    Press,
    Move,
    Release,
    DoubleClick
};

enum class PickerAction
{
    Pass,       ///< the input is not the picker's
    Take,       ///< the colour under the mouse, and a drag begins
    DragPatch,  ///< a drag of the patch begins
    TakeSwatch, ///< the colour of the swatch under the mouse
    Follow,     ///< the colour under the mouse, while the drag goes on
    ShowTarget, ///< the cursor tells whether the patch can be dropped
    Keep,       ///< the colour under the mouse, and the drag is over
    DropPatch,  ///< onto the swatch under the mouse, and the drag is over
    TakePureHue,
    Nothing ///< the input is the picker's, but changes nothing
};

/// `part` is the one under the mouse; for a move and a release, the one from which the drag has begun.
/// `onSwatches`: the mouse is over the swatches, or between them.
PickerAction pickerAction(PickerInput input, PickerPart part, bool onSwatches);

/// Whether a colour chosen there is shown anew even where it seems the same: a grey has hues, too.
constexpr bool choosesHue(PickerPart part)
{
    return part == PickerPart::Ring;
}

/// Whether a patch that is dragged may be let go: on a swatch, and where it came from.
constexpr bool takesPatch(bool overPatch, bool overSwatch)
{
    return overPatch || overSwatch;
}

} // namespace ovoui::colour
