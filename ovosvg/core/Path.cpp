#include <ovosvg/core/Path.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ovosvg
{

namespace
{

constexpr int kMostPieces = 500; // of a curve

/// How near to its beginning a closed line has come back, as a share of the tolerance: relative commands
/// round.
constexpr double kSame = 1e-4;

double angleBetween(Point u, Point v)
{
    return std::atan2(cross(u, v), dot(u, v));
}

/// Into how many lines a cubic curve is divided: its distance from the lines is at most an eighth of its
/// greatest second derivative by the square of their number.
int piecesOf(Point p0, Point p1, Point p2, Point p3, double tolerance)
{
    const double bend = 6 * std::max(length(p0 - p1 * 2 + p2), length(p1 - p2 * 2 + p3));
    const double pieces = std::ceil(std::sqrt(bend / (8 * tolerance)));
    return pieces >= 1 ? static_cast<int>(std::min<double>(pieces, kMostPieces)) : 1;
}

Point onCubic(Point p0, Point p1, Point p2, Point p3, double t)
{
    const double s = 1 - t;
    return p0 * (s * s * s) + p1 * (3 * s * s * t) + p2 * (3 * s * t * t) + p3 * (t * t * t);
}

/// Where the curve goes there; no direction at a cusp.
Point directionOn(Point p0, Point p1, Point p2, Point p3, double t)
{
    const double s = 1 - t;
    return (p1 - p0) * (s * s) + (p2 - p1) * (2 * s * t) + (p3 - p2) * (t * t);
}

/// Puts points together to polylines.
class Flattener
{
public:
    Flattener(double tolerance, Budget& budget)
        : m_same(tolerance * kSame)
        , m_budget(budget)
    {
    }

    void begin(Point p)
    {
        end(false);
        m_budget.spend(kPointCost);
        m_line.points.push_back(p);
        m_line.smooth.push_back(false);
        m_drawn = false;
    }

    /// A straight line.
    void add(Point p) { add(p, false, {}, {}); }

    /// A piece of a curve that begins and ends in these directions.
    void add(Point p, bool smooth, Point begin, Point end)
    {
        m_budget.spend(kPointCost);
        m_drawn = true;
        if (p == m_line.points.back()) {
            m_line.smooth.back() = m_line.smooth.back() && smooth;
            return;
        }
        addCourse(p, begin, end);
        m_line.points.push_back(p);
        m_line.smooth.push_back(smooth);
    }

    void end(bool closed)
    {
        if (m_line.points.empty())
            return;
        m_line.closed = closed;
        const std::size_t count = m_line.points.size();
        while (closed && m_line.points.size() > 1 &&
               length(m_line.points.back() - m_line.points.front()) <= m_same) {
            m_line.points.pop_back();
            m_line.smooth.pop_back();
        }
        if (closed && count > 1 && m_line.points.size() == count)
            addCourse(m_line.points.front(), {}, {});
        m_line.courses.resize(closed ? m_line.points.size() : count - 1);
        if (m_drawn || closed)
            m_lines.push_back(std::move(m_line));
        m_line = {};
    }

    bool isOpen() const { return !m_line.points.empty(); }
    std::vector<Polyline> lines() { return std::move(m_lines); }

private:
    /// From the last point to another. Where there is no direction it is the piece's.
    void addCourse(Point p, Point begin, Point end)
    {
        const Point straight = unit(p - m_line.points.back());
        const auto known = [&](Point direction) {
            return length(direction) > 0 ? unit(direction) : straight;
        };
        m_line.courses.push_back({known(begin), known(end)});
    }

    const double m_same;
    Budget& m_budget;
    Polyline m_line;
    bool m_drawn = false; ///< it is more than the place where it would begin
    std::vector<Polyline> m_lines;
};

/// A curve from a point, by two control points and its end.
void addCubic(Flattener& flattener, Point from, const Point* to, double tolerance)
{
    const int pieces = piecesOf(from, to[0], to[1], to[2], tolerance);
    Point begin = directionOn(from, to[0], to[1], to[2], 0);
    for (int i = 1; i <= pieces; ++i) {
        const double t = 1.0 * i / pieces;
        const bool isLast = i == pieces;
        const Point end = directionOn(from, to[0], to[1], to[2], t);
        flattener.add(isLast ? to[2] : onCubic(from, to[0], to[1], to[2], t), !isLast, begin, end);
        begin = end;
    }
}

} // namespace

void Path::add(Verb verb, std::initializer_list<Point> points)
{
    m_verbs.push_back(verb);
    m_points.insert(m_points.end(), points);
    m_current = m_points.back();
    if (verb == Verb::Move)
        m_start = m_current;
}

void Path::close()
{
    m_verbs.push_back(Verb::Close);
    m_current = m_start;
}

void Path::quadTo(Point control, Point end)
{
    const Point from = m_current;
    cubicTo(from + (control - from) * (2.0 / 3), end + (control - end) * (2.0 / 3), end);
}

void Path::arcTo(double rx, double ry, double degrees, bool large, bool sweep, Point end)
{
    const Point from = m_current;
    if (from == end)
        return;
    if (rx == 0 || ry == 0) {
        lineTo(end);
        return;
    }
    const ArcCentre arc = arcCentre(from, rx, ry, degrees, large, sweep, end);
    if (!std::isfinite(arc.sweep) || !isFinite(arc.centre)) { // numbers beyond all bounds
        lineTo(end);
        return;
    }
    const Matrix circle = Matrix::translation(arc.centre.x, arc.centre.y) * Matrix::rotation(degrees) *
                          Matrix::scaling(arc.rx, arc.ry);
    // A cubic curve is near enough to a part of a circle of at most a quarter.
    const int parts = std::max(1, static_cast<int>(std::ceil(std::abs(arc.sweep) / (kPi / 2) - 1e-9)));
    const double step = arc.sweep / parts;
    const double reach = 4.0 / 3 * std::tan(step / 4);
    for (int i = 0; i < parts; ++i) {
        const double a = arc.start + i * step;
        const double b = a + step;
        const Point one{std::cos(a) - reach * std::sin(a), std::sin(a) + reach * std::cos(a)};
        const Point two{std::cos(b) + reach * std::sin(b), std::sin(b) - reach * std::cos(b)};
        cubicTo(circle.map(one), circle.map(two),
                i + 1 == parts ? end : circle.map({std::cos(b), std::sin(b)}));
    }
}

Box Path::bounds() const
{
    if (m_points.empty())
        return {};
    Point least = m_points.front();
    Point most = least;
    for (const Point& p : m_points) {
        least = {std::min(least.x, p.x), std::min(least.y, p.y)};
        most = {std::max(most.x, p.x), std::max(most.y, p.y)};
    }
    return {least.x, least.y, most.x - least.x, most.y - least.y};
}

std::vector<Polyline> Path::flattened(double tolerance, Budget& budget) const
{
    Flattener flattener(tolerance, budget);
    Point current;
    Point start;
    const Point* next = m_points.data();
    for (const Verb verb : m_verbs) {
        if (verb != Verb::Move && !flattener.isOpen())
            flattener.begin(start); // behind a closed part
        switch (verb) {
        case Verb::Move:
            start = current = *next++;
            flattener.begin(start);
            break;
        case Verb::Line:
            current = *next++;
            flattener.add(current);
            break;
        case Verb::Cubic:
            addCubic(flattener, current, next, tolerance);
            current = next[2];
            next += 3;
            break;
        case Verb::Close:
            current = start;
            flattener.end(true);
            break;
        }
    }
    flattener.end(false);
    return flattener.lines();
}

ArcCentre arcCentre(Point from, double rx, double ry, double degrees, bool large, bool sweep, Point to)
{
    rx = std::abs(rx);
    ry = std::abs(ry);
    // Half of the chord, in the directions of the ellipse's axes.
    const Point half = Matrix::rotation(-degrees).map((from - to) * 0.5);
    const Point scaled{half.x / rx, half.y / ry};
    const double reach = dot(scaled, scaled);
    if (reach > 1) {
        rx *= std::sqrt(reach);
        ry *= std::sqrt(reach);
    }
    // On the circle of radius 1 the centre stands square to the chord.
    const Point unit{half.x / rx, half.y / ry};
    const double squared = dot(unit, unit);
    const double away = (large == sweep ? -1 : 1) * std::sqrt(std::max(0.0, (1 - squared) / squared));
    const Point centre{away * unit.y, -away * unit.x};
    const Point u = unit - centre;
    const Point v = Point{-unit.x, -unit.y} - centre;
    double angle = angleBetween(u, v);
    if (sweep && angle < 0)
        angle += 2 * kPi;
    if (!sweep && angle > 0)
        angle -= 2 * kPi;
    const Point middle = (from + to) * 0.5;
    const Point turned = Matrix::rotation(degrees).map({centre.x * rx, centre.y * ry});
    return {turned + middle, rx, ry, std::atan2(u.y, u.x), angle};
}

} // namespace ovosvg
