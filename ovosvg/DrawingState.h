/// Not exported: what copies of a drawing share.
#pragma once

#include <ovosvg/SvgDrawing.h>
#include <ovosvg/core/Drawing.h>

#include <vector>

namespace ovosvg
{

struct SvgDrawing::State
{
    /// Raises SvgError for a text that is no drawing.
    explicit State(std::string_view utf8);

    /// The picture as Drawing::draw makes it, with `currentColour` as SvgDrawing::draw takes it. Raises
    /// SvgError beyond the limits.
    Canvas canvas(int width, int height, COLORREF currentColour, std::vector<SvgNote>& notes) const;

    Drawing drawing;
};

} // namespace ovosvg
