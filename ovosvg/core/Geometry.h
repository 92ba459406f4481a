/// Points and affine maps. Plain values, no windows.
#pragma once

#include <cmath>
#include <vector>

namespace ovosvg
{

struct Point
{
    double x = 0;
    double y = 0;

    friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend Point operator*(Point a, double factor) { return {a.x * factor, a.y * factor}; }
    friend bool operator==(const Point&, const Point&) = default;
};

inline double dot(Point a, Point b)
{
    return a.x * b.x + a.y * b.y;
}
inline double cross(Point a, Point b)
{
    return a.x * b.y - a.y * b.x;
}
inline double length(Point a)
{
    return std::hypot(a.x, a.y);
}
/// The same direction with the length 1, of what has a length.
inline Point unit(Point a)
{
    return a * (1 / length(a));
}
inline bool isFinite(Point a)
{
    return std::isfinite(a.x) && std::isfinite(a.y);
}

struct Box
{
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const Box&, const Box&) = default;
};

/// Maps (x, y) to (a x + c y + e, b x + d y + f).
struct Matrix
{
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double e = 0;
    double f = 0;

    Point map(Point p) const { return {a * p.x + c * p.y + e, b * p.x + d * p.y + f}; }
    double determinant() const { return a * d - b * c; }

    /// How much longer a length becomes at most, in whichever direction.
    double stretch() const { return (std::hypot(a + d, b - c) + std::hypot(a - d, b + c)) / 2; }

    /// Whether it can be undone.
    bool invertible() const { return std::isfinite(determinant()) && determinant() != 0 && isFinite({e, f}); }
    Matrix inverse() const
    {
        const double det = determinant();
        return {d / det, -b / det, -c / det, a / det, (c * f - d * e) / det, (b * e - a * f) / det};
    }

    /// First `right`, then `left`.
    friend Matrix operator*(const Matrix& left, const Matrix& right)
    {
        return {left.a * right.a + left.c * right.b,          left.b * right.a + left.d * right.b,
                left.a * right.c + left.c * right.d,          left.b * right.c + left.d * right.d,
                left.a * right.e + left.c * right.f + left.e, left.b * right.e + left.d * right.f + left.f};
    }
    friend bool operator==(const Matrix&, const Matrix&) = default;

    static Matrix translation(double x, double y) { return {1, 0, 0, 1, x, y}; }
    static Matrix scaling(double x, double y) { return {x, 0, 0, y, 0, 0}; }
    static Matrix rotation(double degrees);
};

inline constexpr double kPi = 3.14159265358979323846;

inline Matrix Matrix::rotation(double degrees)
{
    const double angle = degrees * kPi / 180;
    return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
}

/// Corners in order; the last one is joined to the first.
using Polygon = std::vector<Point>;

} // namespace ovosvg
