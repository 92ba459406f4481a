/// The area that a pen covers. Plain values, no windows.
#pragma once

#include <ovosvg/core/Path.h>

#include <vector>

namespace ovosvg
{

enum class LineCap
{
    Butt,
    Round,
    Square
};

enum class LineJoin
{
    Miter,
    Round,
    Bevel
};

struct Pen
{
    double width = 1;
    LineCap cap = LineCap::Butt;
    LineJoin join = LineJoin::Miter;
    double miterLimit = 4;      ///< at least 1
    std::vector<double> dashes; ///< lengths of dashes and gaps in turn, 0 or more; an odd list counts twice
    double dashOffset = 0;
};

/// Pieces that all turn the same way: what lies in any of them is covered, so they are filled together by the
/// rule of windings that are not zero. Round parts are no farther than `tolerance` from a circle. Nothing for
/// a width that is not above 0.
std::vector<Polygon> strokeOutline(const std::vector<Polyline>& lines, const Pen& pen, double tolerance,
                                   Budget& budget);

/// Lines cut into dashes; the same lines where the pen has none.
std::vector<Polyline> dashed(const std::vector<Polyline>& lines, const Pen& pen, Budget& budget);

} // namespace ovosvg
