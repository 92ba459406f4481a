#include <ovoui/colour/core/WheelGeometry.h>

#include <ovoui/colour/core/Round.h>

#include <algorithm>

namespace ovoui::colour
{

HueRing ringIn(const frame::Box& wheel)
{
    constexpr double kInnerPart = 0.8;
    const double outer = std::min(wheel.width() / 2, wheel.height() / 2);
    const Vector<2> centre((wheel.left + wheel.right) / 2, (wheel.top + wheel.bottom) / 2);
    return {centre, outer * kInnerPart, outer};
}

ShadeTriangle triangleIn(const HueRing& ring)
{
    constexpr int kMargin = 5;
    const double c = ring.inner() * Angle::degrees(30).cos();
    const double s = ring.inner() / 2;
    const Vector<2> centre = ring.centre();
    return ShadeTriangle({.left = rounded(centre.x() - c + kMargin),
                          .top = rounded(centre.y() - ring.inner() + kMargin),
                          .right = rounded(centre.x() + c - kMargin),
                          .bottom = rounded(centre.y() + s)});
}

int markerRadius(const HueRing& ring)
{
    return rounded((ring.outer() - ring.inner()) * 0.5);
}

} // namespace ovoui::colour
