/// Vectors of doubles.
///
///     const Vector<2> way = to - from;
///     const Angle direction = way.theta();
#pragma once

#include <ovocor/Angle.h>

#include <array>
#include <cmath>
#include <concepts>
#include <cstddef>

/// N doubles with the usual arithmetic. Vector<2> has a direction and a cross product.
template <std::size_t N>
class Vector
{
public:
    /// The zero vector.
    constexpr Vector() = default;

    template <std::convertible_to<double>... Components>
    requires(sizeof...(Components) == N) constexpr explicit(N == 1) Vector(Components... components)
        : m_components{static_cast<double>(components)...}
    {
    }

    constexpr double operator[](std::size_t i) const { return m_components[i]; }
    constexpr double& operator[](std::size_t i) { return m_components[i]; }

    constexpr double x() const { return m_components[0]; }
    constexpr double y() const requires(N >= 2) { return m_components[1]; }

    double length() const
    {
        // std::hypot does not overflow where the squares would.
        double sum = 0;
        for (const double component : m_components)
            sum = std::hypot(sum, component);
        return sum;
    }

    /// The vector of length 1 in this direction; the zero vector stays as it is.
    Vector unit() const
    {
        const double size = length();
        return size > 0 ? *this / size : *this;
    }

    /// Direction from the x axis towards the y axis, above -180 and up to 180 degrees; 0 for the zero vector.
    Angle theta() const requires(N == 2) { return Angle::radians(std::atan2(y(), x())); }

    /// x1·y2 − y1·x2: positive when `other` lies towards the y axis from this vector.
    constexpr double cross(const Vector& other) const requires(N == 2)
    {
        return x() * other.y() - y() * other.x();
    }

    constexpr double dot(const Vector& other) const
    {
        double sum = 0;
        for (std::size_t i = 0; i < N; ++i)
            sum += m_components[i] * other.m_components[i];
        return sum;
    }

    constexpr Vector& operator+=(const Vector& other)
    {
        for (std::size_t i = 0; i < N; ++i)
            m_components[i] += other.m_components[i];
        return *this;
    }
    constexpr Vector& operator-=(const Vector& other) { return *this += -other; }
    constexpr Vector& operator*=(double factor)
    {
        for (double& component : m_components)
            component *= factor;
        return *this;
    }
    constexpr Vector& operator/=(double divisor)
    {
        for (double& component : m_components)
            component /= divisor;
        return *this;
    }

    constexpr Vector operator-() const { return *this * -1.0; }

    friend constexpr Vector operator+(Vector a, const Vector& b) { return a += b; }
    friend constexpr Vector operator-(Vector a, const Vector& b) { return a -= b; }
    friend constexpr Vector operator*(Vector a, double factor) { return a *= factor; }
    friend constexpr Vector operator*(double factor, Vector a) { return a *= factor; }
    friend constexpr Vector operator/(Vector a, double divisor) { return a /= divisor; }

    friend constexpr bool operator==(const Vector&, const Vector&) = default;

private:
    std::array<double, N> m_components{};
};
