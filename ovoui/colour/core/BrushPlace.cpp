#include <ovoui/colour/core/BrushPlace.h>

namespace ovoui::colour
{

namespace
{

/// -1 when one of the two windows is mirrored, else 1.
int directionOf(const TabColumns& columns)
{
    return columns.second - columns.first;
}

} // namespace

bool wantsMirrorImage(const TabColumns& columns, bool mirroredDc)
{
    return (directionOf(columns) < 0) != mirroredDc;
}

int mirrorImageStart(const TabColumns& columns, int width)
{
    return columns.first + directionOf(columns) * width;
}

bool showsThrough(BrushFor what, bool lookedUp)
{
    return what == BrushFor::Other || (what == BrushFor::List && lookedUp);
}

} // namespace ovoui::colour
