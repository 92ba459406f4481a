#include <ovoui/colour/core/HueRing.h>

#include <ovoui/colour/core/Round.h>

#include <algorithm>

namespace ovoui::colour
{

namespace
{

constexpr int kSectors = 6;
constexpr int kSectorDegrees = 60;
constexpr int kTurn = 360;

/// The direction of a vertex from the centre.
Vector<2> towardsVertex(int sector)
{
    constexpr double kSine = 0.5; // of 30 degrees
    const double cosine = Angle::degrees(30).cos();
    switch (sector % kSectors) {
    case 0:
        return {0, -1};
    case 1:
        return {cosine, -kSine};
    case 2:
        return {cosine, kSine};
    case 3:
        return {0, 1};
    case 4:
        return {-cosine, kSine};
    default:
        return {-cosine, -kSine};
    }
}

} // namespace

HueRing::HueRing(Vector<2> centre, double inner, double outer)
    : m_centre(centre)
    , m_inner(inner)
    , m_outer(outer)
{
}

Vector<2> HueRing::vertex(int sector) const
{
    return m_centre + towardsVertex(sector) * m_inner;
}

int HueRing::sectorOf(Vector<2> fromCentre) const
{
    if (fromCentre == Vector<2>())
        return 0;
    // 90 degrees, since sector 0 begins above the centre, and a turn, so that the quotient is positive.
    const int sector =
        static_cast<int>(std::floor((fromCentre.theta().degrees() + 90 + kTurn) / kSectorDegrees));
    return sector < kSectors ? sector : sector - kSectors;
}

HueRing::Hit HueRing::test(Vector<2> point, double tolerance) const
{
    const int sector = sectorOf(point - m_centre);
    const Vector<2> from = vertex(sector);
    const Vector<2> edge = vertex(sector + 1) - from;
    const Vector<2> along = edge.unit();
    const Vector<2> offset = point - from;
    const double length = edge.length();
    const double part = length > 0 ? std::clamp(offset.dot(along) / length, 0.0, 1.0) : 0;
    const double distance = (offset - part * edge).length();
    const double outside = offset.cross(along);
    return {Angle::degrees((sector + part) * -kSectorDegrees),
            outside >= -tolerance && distance <= m_outer - m_inner + tolerance};
}

Vector<2> HueRing::marker(Angle hue) const
{
    const int degrees = (rounded(hue.degrees()) % kTurn + kTurn) % kTurn;
    const int remainder = degrees % kSectorDegrees;
    // Hues go anticlockwise, vertices clockwise.
    const int vertexNumber = (kSectors - degrees / kSectorDegrees) % kSectors;
    if (remainder == 0)
        return m_centre + towardsVertex(vertexNumber) * ((m_outer + m_inner) / 2);
    const Vector<2> from = vertex(vertexNumber);
    const Vector<2> edge = vertex(vertexNumber + kSectors - 1) - from;
    const Vector<2> along = edge.unit();
    const Vector<2> outwards(-along.y(), along.x());
    return from + edge * (remainder / static_cast<double>(kSectorDegrees)) +
           outwards * ((m_outer - m_inner) / 2);
}

} // namespace ovoui::colour
