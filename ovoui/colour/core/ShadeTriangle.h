/// The triangle in which lightness and saturation are picked. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <ovocor/Vector.h>

namespace ovoui::colour
{

/// The apex, at the top, is the pure hue; the base goes from black at the left to white at the right. The
/// lightness runs along the base. The height at which the saturation is 1 grows from both ends of the base to
/// the apex, so the left and the right side are full saturation.
class ShadeTriangle
{
public:
    struct Hit
    {
        double lightness = 0;  ///< 0 to 1
        double saturation = 0; ///< 0 to 1
        bool inTriangle = false;
    };

    ShadeTriangle() = default;
    /// The corners of the base are (left, bottom) and (right, bottom).
    explicit ShadeTriangle(const frame::Box& rect);

    /// What lies at a point. A point outside is given what the nearest point of the nearest side has; it
    /// counts as in the triangle when that is at most `tolerance` pixels away.
    Hit test(Vector<2> point, double tolerance) const;

    /// Where a lightness and a saturation are found.
    Vector<2> marker(double lightness, double saturation) const;

    const frame::Box& rect() const { return m_rect; }

    /// The part of the height at which the saturation is 1.
    static double chromaAt(double lightness);

private:
    Hit inside(Vector<2> point) const;

    frame::Box m_rect;
    Vector<2> m_apex;
    Vector<2> m_black;
    Vector<2> m_white;
};

} // namespace ovoui::colour
