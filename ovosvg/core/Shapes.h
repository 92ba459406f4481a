/// Paths of the basic shapes. Plain values, no windows.
#pragma once

#include <ovosvg/core/Path.h>

#include <vector>

namespace ovosvg
{

/// With corners of these radii, limited to half of the sides. All lengths are 0 or more; empty when a side is
/// 0.
Path rectanglePath(const Box& box, double rx, double ry);

/// Empty when a radius is 0.
Path ellipsePath(Point centre, double rx, double ry);

/// Lines through points given as x and y in turn; a number left over counts for nothing.
Path linesPath(const std::vector<double>& numbers, bool closed);

} // namespace ovosvg
