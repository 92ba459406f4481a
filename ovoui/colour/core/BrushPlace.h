/// Where a patterned brush begins so that a control shows what its tab control does. Plain values, no
/// windows.
#pragma once

namespace ovoui::colour
{

/// Where columns 0 and 1 of the tab control lie in the control.
struct TabColumns
{
    int first = 0;
    int second = 1;
};

/// Whether the mirror image of the picture is wanted. Brushes are laid out in device units, from the left:
/// where the device context (`mirroredDc`) or one of the two windows is laid out from right to left, what the
/// picture has at its left may have to be at the right.
bool wantsMirrorImage(const TabColumns& columns, bool mirroredDc);

/// Where the mirror image begins in the control. `width` is the tab control's.
int mirrorImageStart(const TabColumns& columns, int width);

/// What asks for a brush. Edits and lists may keep the colours that they have.
enum class BrushFor
{
    Edit,
    List,
    Other
};

/// Whether the tab control shows through. `lookedUp`: it was found among the control's parents, which lets
/// lists take part; a dialog that asks its tab control leaves them out.
bool showsThrough(BrushFor what, bool lookedUp);

} // namespace ovoui::colour
