#include <ovoui/sliders/core/DialPicture.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ovoui::sliders
{
namespace
{

// Shares of the whole's half width
constexpr double kKnob = 0.78;
constexpr double kRim = 0.12; // of the knob's radius
constexpr double kPointerFrom = 0.25;
constexpr double kPointerTo = 0.68;
constexpr double kPointerWidth = 0.07;
constexpr double kTickFrom = 0.84;
constexpr double kTickTo = 0.98;
constexpr double kLightDirection = -45 * std::numbers::pi / 180;

struct Vec
{
    double x;
    double y;
};

Vec towards(double degrees)
{
    const double radians = degrees * std::numbers::pi / 180;
    return {std::sin(radians), -std::cos(radians)};
}

double distanceToSegment(const Vec& p, const Vec& a, const Vec& b)
{
    const Vec along{b.x - a.x, b.y - a.y};
    const double length = along.x * along.x + along.y * along.y;
    const double share = length == 0 ? 0 : ((p.x - a.x) * along.x + (p.y - a.y) * along.y) / length;
    const double t = std::clamp(share, 0.0, 1.0);
    return std::hypot(p.x - a.x - t * along.x, p.y - a.y - t * along.y);
}

/// How much of a pixel lies inside, by the distance of its middle from the edge in pixels; negative is
/// inside.
double coverage(double distance)
{
    return std::clamp(0.5 - distance, 0.0, 1.0);
}

Shade blended(const Shade& a, const Shade& b, double share)
{
    const auto channel = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {channel(a.red, b.red), channel(a.green, b.green), channel(a.blue, b.blue)};
}

class Painter
{
public:
    Painter(int size, double degrees, const std::vector<double>& ticks, const DialColours& colours)
        : m_half(size / 2.0)
        , m_degrees(degrees)
        , m_ticks(ticks)
        , m_colours(colours)
    {
    }

    Shade pixel(int column, int row) const
    {
        const Vec p{column + 0.5 - m_half, row + 0.5 - m_half};
        Shade colour = m_colours.back;
        for (const double tick : m_ticks)
            colour = blended(colour, m_colours.pointer, line(p, tick, kTickFrom, kTickTo, 0.5));
        const double radius = std::hypot(p.x, p.y);
        const double knob = m_half * kKnob;
        colour = blended(colour, rimAt(p), coverage(radius - knob));
        colour = blended(colour, m_colours.face, coverage(radius - knob * (1 - kRim)));
        return blended(colour, m_colours.pointer,
                       line(p, m_degrees, kPointerFrom, kPointerTo, std::max(m_half * kPointerWidth, 0.75)));
    }

private:
    /// Light where the rim faces the light, dark on the other side.
    Shade rimAt(const Vec& p) const
    {
        const double direction = std::atan2(p.x, -p.y);
        return blended(m_colours.dark, m_colours.light, (std::cos(direction - kLightDirection) + 1) / 2);
    }
    double line(const Vec& p, double degrees, double from, double to, double halfWidth) const
    {
        const Vec way = towards(degrees);
        const Vec a{way.x * m_half * from, way.y * m_half * from};
        const Vec b{way.x * m_half * to, way.y * m_half * to};
        return coverage(distanceToSegment(p, a, b) - halfWidth);
    }

    const double m_half;
    const double m_degrees;
    const std::vector<double>& m_ticks;
    const DialColours& m_colours;
};

} // namespace

std::vector<Shade> dialPicture(int size, double degrees, const std::vector<double>& ticks,
                               const DialColours& colours)
{
    std::vector<Shade> pixels;
    if (size <= 0 || !std::isfinite(degrees))
        return pixels;
    pixels.reserve(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    const Painter painter(size, degrees, ticks, colours);
    for (int row = 0; row < size; ++row)
        for (int column = 0; column < size; ++column)
            pixels.push_back(painter.pixel(column, row));
    return pixels;
}

} // namespace ovoui::sliders
