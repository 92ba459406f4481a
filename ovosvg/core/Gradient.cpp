#include <ovosvg/core/Gradient.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace ovosvg
{

namespace
{

/// How near to the circle the focus may come: on it, colours would have no end.
constexpr double kFarthestFocus = 0.999;

} // namespace

Rgba rgbaOf(std::uint32_t colour)
{
    return {((colour >> 16) & 0xFF) / 255.0, ((colour >> 8) & 0xFF) / 255.0, (colour & 0xFF) / 255.0,
            (colour >> 24) / 255.0};
}

Rgba Gradient::at(Point point) const
{
    const double where = share(fromPicture.map(point));
    return atShare(std::isfinite(where) ? spreadShare(where) : 1);
}

/// How far along: 0 where it begins, 1 where it ends.
double Gradient::share(Point own) const
{
    if (!radial) {
        const Point way = to - from;
        return dot(own - from, way) / dot(way, way);
    }
    // The point lies at the share t of the way from the focus to the circle. With d from the focus to the
    // point and e from the centre to the focus, |e t + d| is r t: a quadratic equation for t.
    Point e = from - to;
    if (length(e) > radius * kFarthestFocus)
        e = e * (radius * kFarthestFocus / length(e));
    const Point d = own - (to + e);
    const double a = radius * radius - dot(e, e);
    const double half = dot(e, d);
    return (half + std::sqrt(half * half + a * dot(d, d))) / a;
}

double Gradient::spreadShare(double share) const
{
    switch (spread) {
    case Spread::Repeat:
        return share - std::floor(share);
    case Spread::Reflect: {
        const double twice = std::fmod(std::abs(share), 2);
        return twice > 1 ? 2 - twice : twice;
    }
    default:
        return share; // in front of the first stop it has that one's colour, behind the last the last one's
    }
}

Rgba Gradient::atShare(double share) const
{
    const auto after = std::upper_bound(stops.begin(), stops.end(), share,
                                        [](double at, const GradientStop& stop) { return at < stop.offset; });
    if (after == stops.begin())
        return stops.front().colour;
    if (after == stops.end())
        return stops.back().colour;
    const GradientStop& before = *(after - 1);
    const double part = (share - before.offset) / (after->offset - before.offset);
    Rgba mixed;
    for (std::size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = before.colour[i] + (after->colour[i] - before.colour[i]) * part;
    return mixed;
}

} // namespace ovosvg
