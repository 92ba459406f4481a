/// The ring of hues: a hexagonal band around the triangle. Plain values, no windows.
#pragma once

#include <ovocor/Angle.h>
#include <ovocor/Vector.h>

namespace ovoui::colour
{

/// Red is at the top vertex; the hue increases anticlockwise on the screen, by 60 degrees a vertex.
///
/// Coordinates are pixels with y downwards. The band lies along the outside of a hexagon and is as wide as
/// the two radii differ; around the vertices it is rounded.
class HueRing
{
public:
    struct Hit
    {
        Angle hue; ///< from 0 down to -360 degrees; told for every point
        bool onRing = false;
    };

    HueRing() = default;
    HueRing(Vector<2> centre, double inner, double outer);

    /// What lies at a point. Points within `tolerance` pixels of the band count as on the ring.
    Hit test(Vector<2> point, double tolerance) const;

    /// The middle of the band where a hue is found, rounded to whole degrees.
    Vector<2> marker(Angle hue) const;

    Vector<2> centre() const { return m_centre; }
    double inner() const { return m_inner; }
    double outer() const { return m_outer; }

    /// The vertex of the inner hexagon where the sector of this number begins, 0 to 5, clockwise from the
    /// top. Sector 0 ends at vertex 1.
    Vector<2> vertex(int sector) const;

private:
    /// The sector in which a point lies as seen from the centre.
    int sectorOf(Vector<2> fromCentre) const;

    Vector<2> m_centre;
    double m_inner = 0;
    double m_outer = 0;
};

} // namespace ovoui::colour
