#include <ovoui/colour/core/ShadeTriangle.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ovoui::colour
{

namespace
{

/// Positive on the inner side of a side of the triangle, which is walked clockwise.
double innerSide(Vector<2> from, Vector<2> to, Vector<2> point)
{
    return (to - from).cross(point - from);
}

/// How far along a side a point lies: 0 at `from`, 1 at `to`, not limited.
double partAlong(Vector<2> from, Vector<2> to, Vector<2> point)
{
    const Vector<2> side = to - from;
    return (point - from).dot(side) / side.dot(side);
}

} // namespace

ShadeTriangle::ShadeTriangle(const frame::Box& rect)
    : m_rect(rect)
    , m_apex((rect.left + rect.right) / 2.0, rect.top)
    , m_black(rect.left, rect.bottom)
    , m_white(rect.right, rect.bottom)
{
}

double ShadeTriangle::chromaAt(double lightness)
{
    return lightness <= 0.5 ? 2 * lightness : 2 - 2 * lightness;
}

ShadeTriangle::Hit ShadeTriangle::inside(Vector<2> point) const
{
    const double lightness = std::clamp(partAlong(m_black, m_white, point), 0.0, 1.0);
    const double full = (m_black.y() - m_apex.y()) * chromaAt(lightness);
    const double saturation = full > 0 ? std::clamp((m_black.y() - point.y()) / full, 0.0, 1.0) : 0;
    return {lightness, saturation, true};
}

ShadeTriangle::Hit ShadeTriangle::test(Vector<2> point, double tolerance) const
{
    if (m_rect.width() <= 0 || m_rect.height() <= 0)
        return {};
    const bool beyondLeft = innerSide(m_black, m_apex, point) < 0;
    const bool beyondRight = innerSide(m_apex, m_white, point) < 0;
    const bool belowBase = innerSide(m_white, m_black, point) < 0;
    if (!beyondLeft && !beyondRight && !belowBase)
        return inside(point);

    Hit hit;
    double nearest = std::numeric_limits<double>::infinity();
    const auto consider = [&](Vector<2> onSide, double lightness, double saturation) {
        const double distance = (point - onSide).length();
        if (distance >= nearest)
            return;
        nearest = distance;
        hit = {lightness, saturation, distance <= tolerance};
    };
    if (belowBase) {
        const double lightness = std::clamp(partAlong(m_black, m_white, point), 0.0, 1.0);
        consider(marker(lightness, 0), lightness, 0);
    }
    // Each of the two sides spans one half of the lightnesses.
    if (beyondLeft) {
        const double lightness = std::clamp(partAlong(m_black, m_apex, point), 0.0, 1.0) / 2;
        consider(marker(lightness, 1), lightness, 1);
    }
    if (beyondRight) {
        const double lightness = 0.5 + std::clamp(partAlong(m_apex, m_white, point), 0.0, 1.0) / 2;
        consider(marker(lightness, 1), lightness, 1);
    }
    return hit;
}

Vector<2> ShadeTriangle::marker(double lightness, double saturation) const
{
    return {m_rect.left + m_rect.width() * lightness,
            m_rect.bottom - m_rect.height() * chromaAt(lightness) * saturation};
}

} // namespace ovoui::colour
