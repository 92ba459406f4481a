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

/// A part of a picture, in pixels. It may be empty.
struct Part
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// How much is covered of the pixels of a part. Of the others nothing is.
struct Covered
{
    Part part;
    std::vector<float> values; ///< from 0 to 1, rows of the part from the top
};

/// For each pixel of a picture of `width` by `height` that polygons reach, the area of it that lies in them:
/// exact but for the rounding of floating point, wherever edges cross or lie on each other. Pixel (x, y)
/// reaches from x to x + 1 and from y to y + 1. Polygons may reach beyond the picture; one with a corner that
/// is not finite is left out. Time and memory go by the part, not by the picture.
Covered coverage(const std::vector<Polygon>& polygons, FillRule rule, int width, int height, Budget& budget);

} // namespace ovosvg
