/// How much of each pixel an area covers. Plain values, no windows.
#pragma once

#include <ovosvg/core/Geometry.h>
#include <ovosvg/core/Limits.h>

#include <vector>

namespace ovosvg
{

enum class FillRule
{
    NonZero,
    EvenOdd
};

/// For each pixel of a picture of `width` by `height`, rows from the top, the area of it that lies in the
/// polygons, from 0 to 1: exact but for the rounding of floating point, wherever edges cross or lie on each
/// other. Pixel (x, y) reaches from x to x + 1 and from y to y + 1. Polygons may reach beyond the picture;
/// one with a corner that is not finite is left out.
std::vector<float> coverage(const std::vector<Polygon>& polygons, FillRule rule, int width, int height,
                            Budget& budget);

} // namespace ovosvg
