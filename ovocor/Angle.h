/// Angles that say their unit where they are made and where they are read.
///
///     const Angle quarter = Angle::degrees(90);
///     point.x = centre.x + radius * quarter.cos();
#pragma once

#include <ovocor/export.h>

/// An angle of any size, also negative or of several turns.
///
/// Degrees come back exactly as they went in, and the sine and cosine of multiples of 90 degrees are exact.
class OVOCOR_API Angle
{
public:
    /// No turn at all.
    Angle() = default;

    /// From a `value` in degrees.
    static Angle degrees(double value);
    /// From a `value` in radians.
    static Angle radians(double value);

    /// In degrees.
    double degrees() const;
    /// In radians.
    double radians() const;

    /// The same direction as an angle from 0 (inclusive) to 360 degrees (exclusive). An angle that is not a
    /// finite number gives 0.
    Angle normalised() const;

    /// The sine, exact at multiples of 90 degrees.
    double sin() const;
    /// The cosine, exact at multiples of 90 degrees.
    double cos() const;

    friend bool operator==(const Angle&, const Angle&) = default;

private:
    double m_degrees = 0;
};
