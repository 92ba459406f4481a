#include <ovoui/sliders/core/CylinderPicture.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace ovoui::sliders
{
namespace
{

constexpr double kRibStep = 5.0;
constexpr double kRightAngle = 90.0;
constexpr double kFullTurn = 360.0;
constexpr int kBandLines = 8;     // of a quarter rib, on either side
constexpr double kDimming = 0.25; // the cosine from which on a band is as bright as can be

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

/// `share` of `b` and the rest of `a`.
Shade mixed(const Shade& a, const Shade& b, double share)
{
    const auto channel = [share](int from, int to) {
        return static_cast<int>(std::lround(from * (1 - share) + to * share));
    };
    return {channel(a.red, b.red), channel(a.green, b.green), channel(a.blue, b.blue)};
}

/// The parts that the picture is put together of, in order of their angles from the viewer.
class Builder
{
public:
    Builder(int from, int to, const CylinderColours& colours)
        : m_from(from)
        , m_to(to)
        , m_colours(colours)
    {
    }

    /// Where the angle is seen.
    int coordinate(double degreesFromViewer) const
    {
        const double half = (m_to - m_from) / 2.0;
        return m_from + static_cast<int>(std::floor((std::sin(radians(degreesFromViewer)) + 1) * half));
    }

    /// The next strip, up to the angle `to`.
    void strip(double from, double to, int end)
    {
        const Shade colour = shadeAt((from + to) / 2, m_colours.dark, m_colours.light);
        if (end > m_end)
            m_picture.strips.push_back({m_end, end, colour});
        m_end = std::max(m_end, end);
    }

    /// A groove: its far side is dark, the one towards the viewer is light.
    void rib(double angle)
    {
        const int at = coordinate(angle);
        const Shade surface = shadeAt(angle, m_colours.dark, m_colours.light);
        const double contrast = std::cos(radians(angle));
        const Shade dark = mixed(surface, m_colours.dark, contrast);
        const Shade light = mixed(surface, m_colours.light, contrast);
        m_picture.lines.push_back({at - 1, angle < 0 ? dark : light});
        m_picture.lines.push_back({at, angle < 0 ? light : dark});
    }

    /// A bright band and the dark edge behind it, which fade into the cylinder's shade on either side. They
    /// dim where the cylinder turns away, so that none is seen at its very edge.
    void quarterRib(double angle)
    {
        const int at = coordinate(angle);
        const double seen = std::clamp(std::cos(radians(angle)) / kDimming, 0.0, 1.0);
        const bool left = angle < 0;
        for (int k = kBandLines - 1; k >= 0; --k) {
            const double share = seen * (kBandLines - k) / kBandLines;
            bandLine(at - 1 - k, left ? m_colours.dark : m_colours.face, share);
            bandLine(at + k, left ? m_colours.face : m_colours.dark, share);
        }
    }

    CylinderPicture take() { return std::move(m_picture); }

private:
    /// A line with `share` of a colour over the shade that the cylinder has there.
    void bandLine(int at, const Shade& colour, double share)
    {
        const double half = (m_to - m_from) / 2.0;
        const double sine = std::clamp((at + 0.5 - m_from) / half - 1, -1.0, 1.0);
        const Shade surface = mixed(m_colours.dark, m_colours.light, std::sqrt(1 - sine * sine));
        m_picture.lines.push_back({at, mixed(surface, colour, share)});
    }

    const int m_from;
    const int m_to;
    const CylinderColours& m_colours;
    CylinderPicture m_picture;
    int m_end = m_from; // of the strips so far
};

} // namespace

Shade shadeAt(double degreesFromViewer, const Shade& dark, const Shade& light)
{
    return mixed(dark, light, std::clamp(std::cos(radians(degreesFromViewer)), 0.0, 1.0));
}

std::vector<Strip> seenStrips(const CylinderPicture& picture)
{
    if (picture.strips.empty())
        return {};
    const int from = picture.strips.front().from;
    const int to = picture.strips.back().to;
    std::vector<Shade> row(static_cast<std::size_t>(to - from));
    for (const Strip& strip : picture.strips)
        std::fill(row.begin() + (strip.from - from), row.begin() + (strip.to - from), strip.colour);
    for (const RibLine& line : picture.lines)
        if (line.at > from && line.at < to)
            row[static_cast<std::size_t>(line.at - from)] = line.colour;

    std::vector<Strip> seen;
    for (int at = from; at < to; ++at) {
        const Shade& colour = row[static_cast<std::size_t>(at - from)];
        if (seen.empty() || seen.back().colour != colour)
            seen.push_back({at, at, colour});
        seen.back().to = at + 1;
    }
    return seen;
}

CylinderPicture cylinderPicture(int from, int to, double rotation, const CylinderColours& colours,
                                bool quarters)
{
    if (to <= from || !std::isfinite(rotation))
        return {};
    // Whole turns change nothing, and small angles are exact.
    const double turned = std::remainder(rotation, kFullTurn);
    Builder builder(from, to, colours);
    double before = -kRightAngle;
    const double first = (std::floor((turned - kRightAngle) / kRibStep) + 1) * kRibStep;
    for (double rib = first; rib < turned + kRightAngle; rib += kRibStep) {
        const double angle = rib - turned;
        builder.strip(before, angle, builder.coordinate(angle));
        before = angle;
    }
    builder.strip(before, kRightAngle, to);
    // The bands are wider than a rib and come last, over their neighbours.
    for (const bool bands : {false, true}) {
        for (double rib = first; rib <= turned + kRightAngle; rib += kRibStep) {
            const bool band = quarters && std::fmod(rib, kRightAngle) == 0;
            if (band && bands)
                builder.quarterRib(rib - turned);
            else if (!band && !bands)
                builder.rib(rib - turned);
        }
    }
    return builder.take();
}

} // namespace ovoui::sliders
