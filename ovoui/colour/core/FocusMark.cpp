#include <ovoui/colour/core/FocusMark.h>

namespace ovoui::colour
{

Outline<4> focusMark(const HueRing& ring)
{
    // Vertices at the top and bottom reach as far as the outer radius; the sides are as far from the edges of
    // the hexagon as the band is wide.
    const double right = ring.inner() * Angle::degrees(30).cos() + (ring.outer() - ring.inner());
    const auto corner = [&](double x, double y) {
        return Vector<2>(ring.centre().x() + x, ring.centre().y() + y);
    };
    // The last pixel of the wheel lies one before its edge.
    const double left = -right;
    const double top = -ring.outer();
    const double bottom = ring.outer() - 1;
    return {corner(left, top), corner(right, top), corner(right, bottom), corner(left, bottom),
            corner(left, top)};
}

Outline<3> focusMark(const ShadeTriangle& triangle)
{
    constexpr double kGap = 2; // pixels between the sides and the mark
    const frame::Box& rect = triangle.rect();
    // Sides move out by the gap; where two of them meet, at 60 degrees, the corner moves by twice as much.
    const double aside = kGap * 2 * Angle::degrees(30).cos();
    const Vector<2> apex((rect.left + rect.right) / 2.0, rect.top - 2 * kGap);
    const Vector<2> black(rect.left - aside, rect.bottom + kGap);
    const Vector<2> white(rect.right + aside, rect.bottom + kGap);
    return {apex, white, black, apex};
}

} // namespace ovoui::colour
