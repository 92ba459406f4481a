/// Colours that change along a line or around a centre. Plain values, no windows.
#pragma once

#include <ovosvg/core/Geometry.h>

#include <array>
#include <cstdint>
#include <vector>

namespace ovosvg
{

/// Red, green, blue and alpha from 0 to 1, not premultiplied.
using Rgba = std::array<double, 4>;

Rgba rgbaOf(std::uint32_t colour);

struct GradientStop
{
    double offset; ///< 0 to 1, no less than that of the stop before
    Rgba colour;
};

struct Gradient
{
    enum class Spread
    {
        Pad,
        Reflect,
        Repeat
    };

    bool radial = false;
    Point from; ///< of a linear one; the focus of a radial one
    Point to;   ///< of a linear one; the centre of a radial one
    double radius = 0;
    Spread spread = Spread::Pad;
    std::vector<GradientStop> stops; ///< at least one
    Matrix fromPicture;              ///< maps points of the picture to the gradient's own

    /// At a point of the picture.
    Rgba at(Point point) const;

private:
    double share(Point own) const;
    double spreadShare(double share) const;
    Rgba atShare(double share) const;
};

} // namespace ovosvg
