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

    /// From N `components`, in order.
    template <std::convertible_to<double>... Components>
    requires(sizeof...(Components) == N) constexpr explicit(N == 1) Vector(Components... components)
        : m_components{static_cast<double>(components)...}
    {
    }

    /// Component `i`, counted from 0 and less than N.
    constexpr double operator[](std::size_t i) const { return m_components[i]; }
    /// The same, to be changed.
    constexpr double& operator[](std::size_t i) { return m_components[i]; }

    /// The first component.
    constexpr double x() const { return m_components[0]; }
    /// The second component.
    constexpr double y() const requires(N >= 2) { return m_components[1]; }

    /// Never negative; infinite only where no double can hold it.
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
    Angle theta() const requires(N == 2)
    {
        // + 0.0: no negative zeros, whose sign would turn the direction round.
        return Angle::radians(std::atan2(y() + 0.0, x() + 0.0));
    }

    /// x1·y2 − y1·x2: positive when `other` lies towards the y axis from this vector.
    constexpr double cross(const Vector& other) const requires(N == 2)
    {
        return x() * other.y() - y() * other.x();
    }

    /// The scalar product with `other`.
    constexpr double dot(const Vector& other) const
    {
        double sum = 0;
        for (std::size_t i = 0; i < N; ++i)
            sum += m_components[i] * other.m_components[i];
        return sum;
    }

    /// Adds `other`, component by component.
    constexpr Vector& operator+=(const Vector& other)
    {
        for (std::size_t i = 0; i < N; ++i)
            m_components[i] += other.m_components[i];
        return *this;
    }
    /// Subtracts `other`, component by component.
    constexpr Vector& operator-=(const Vector& other) { return *this += -other; }
    /// Multiplies every component by `factor`.
    constexpr Vector& operator*=(double factor)
    {
        for (double& component : m_components)
            component *= factor;
        return *this;
    }
    /// Divides every component by `divisor`, as doubles are divided: by 0 too.
    constexpr Vector& operator/=(double divisor)
    {
        for (double& component : m_components)
            component /= divisor;
        return *this;
    }

    /// The opposite vector.
    constexpr Vector operator-() const { return *this * -1.0; }

    /// The sum of `a` and `b`.
    friend constexpr Vector operator+(Vector a, const Vector& b) { return a += b; }
    /// The difference of `a` and `b`.
    friend constexpr Vector operator-(Vector a, const Vector& b) { return a -= b; }
    /// The vector `a` with each component multiplied by `factor`.
    friend constexpr Vector operator*(Vector a, double factor) { return a *= factor; }
    /// The vector `a` with each component multiplied by `factor`.
    friend constexpr Vector operator*(double factor, Vector a) { return a *= factor; }
    /// The vector `a` with each component divided by `divisor`.
    friend constexpr Vector operator/(Vector a, double divisor) { return a /= divisor; }

    friend constexpr bool operator==(const Vector&, const Vector&) = default;

private:
    std::array<double, N> m_components{};
};
