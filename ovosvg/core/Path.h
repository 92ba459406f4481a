/// Outlines of lines and curves. Plain values, no windows.
#pragma once

#include <ovosvg/core/Geometry.h>
#include <ovosvg/core/Limits.h>

#include <vector>

namespace ovosvg
{

/// The directions, 1 in length, in which a piece of a line begins and ends: in a curve not quite that of the
/// piece.
struct Course
{
    Point begin;
    Point end;
};

/// A run of points, with curves made into short lines.
struct Polyline
{
    std::vector<Point> points; ///< no two that follow each other are the same
    /// By point: whether it lies within a curve or an arc, where the line bends but has no corner.
    std::vector<bool> smooth;
    std::vector<Course> courses; ///< of the pieces that follow the points; an open line ends without one
    bool closed = false;         ///< the last point, which is not the first one again, is joined to the first
    Point direction{1, 0};       ///< of a point alone: along it lies a square cap
};

class Path
{
public:
    enum class Verb
    {
        Move,  ///< one point
        Line,  ///< one
        Cubic, ///< two control points and the end
        Close  ///< none
    };

    void moveTo(Point p) { add(Verb::Move, {p}); }
    void lineTo(Point p) { add(Verb::Line, {p}); }
    void cubicTo(Point first, Point second, Point end) { add(Verb::Cubic, {first, second, end}); }
    void quadTo(Point control, Point end);
    /// An arc of an ellipse with these radii, turned by so many degrees, as a path's A command has it. Radii
    /// of 0 make a line, such that are too small grow until the arc reaches its end.
    void arcTo(double rx, double ry, double degrees, bool large, bool sweep, Point end);
    void close();

    bool empty() const { return m_verbs.empty(); }
    Point current() const { return m_current; }
    std::size_t size() const { return m_points.size(); }
    /// Around all points, those that control curves included; empty when there is none.
    Box bounds() const;

    /// Lines that are no farther than `tolerance` from the curves.
    std::vector<Polyline> flattened(double tolerance, Budget& budget) const;

private:
    void add(Verb verb, std::initializer_list<Point> points);

    std::vector<Verb> m_verbs;
    std::vector<Point> m_points;
    Point m_start;
    Point m_current;
};

/// The ellipse that an arc belongs to, by its centre.
struct ArcCentre
{
    Point centre;
    double rx; ///< as they are after small ones have grown
    double ry;
    double start; ///< the angle in radians where it begins, on the circle that the ellipse was
    double sweep; ///< how far it goes, with its sign
};

/// The conversion from end points to a centre of the implementation notes of Scalable Vector Graphics, with
/// their correction of radii. The end points differ and no radius is 0.
ArcCentre arcCentre(Point from, double rx, double ry, double degrees, bool large, bool sweep, Point to);

} // namespace ovosvg
