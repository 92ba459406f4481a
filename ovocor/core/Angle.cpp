#include <ovocor/Angle.h>

#include <cmath>
#include <numbers>

namespace
{

constexpr double kDegreesPerRadian = 180 / std::numbers::pi;

/// The sine of an angle in degrees. Multiples of 90 degrees are looked up, since pi is not exact.
double sine(double degrees)
{
    const double turned = std::fmod(degrees, 360);
    const double quarters = turned / 90;
    if (quarters != std::trunc(quarters))
        return std::sin(turned / kDegreesPerRadian);
    constexpr double kSines[] = {0, 1, 0, -1};
    return kSines[(static_cast<int>(quarters) + 4) % 4];
}

} // namespace

Angle Angle::degrees(double value)
{
    Angle angle;
    angle.m_degrees = value;
    return angle;
}

Angle Angle::radians(double value)
{
    return degrees(value * kDegreesPerRadian);
}

double Angle::degrees() const
{
    return m_degrees;
}

double Angle::radians() const
{
    return m_degrees / kDegreesPerRadian;
}

Angle Angle::normalised() const
{
    const double turned = std::fmod(m_degrees, 360);
    const double positive = turned < 0 ? turned + 360 : turned + 0.0; // + 0.0: no negative zero
    // A very small negative angle rounds up to the full turn, and what is no number is not below it either.
    return degrees(positive < 360 ? positive : 0);
}

double Angle::sin() const
{
    return sine(m_degrees);
}

double Angle::cos() const
{
    // Reduced before the quarter turn is added, so that large angles lose nothing.
    return sine(std::fmod(m_degrees, 360) + 90);
}
