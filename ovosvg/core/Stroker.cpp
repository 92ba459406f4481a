#include <ovosvg/core/Stroker.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace ovosvg
{

namespace
{

constexpr double kMostArcPieces = 200;  // of a whole turn
constexpr double kNearlyStraight = 0.9; // cosine of the angle up to which a curve and its piece are one
constexpr double kTightest = 1.1;       // half widths by the radius of a bend that a pen can follow

/// Square to a direction, to the side where x turns towards y.
Point normal(Point direction)
{
    return {-direction.y, direction.x};
}

class Stroker
{
public:
    Stroker(const Pen& pen, double tolerance, Budget& budget)
        : m_pen(pen)
        , m_half(pen.width / 2)
        , m_budget(budget)
    {
        // A chord of the angle a is at most half (1 - cos(a / 2)) away from its arc.
        const double share = std::clamp(tolerance / m_half, 1e-12, 1.0);
        m_arcStep = std::max(2 * std::acos(1 - share), 2 * kPi / kMostArcPieces);
    }

    void stroke(const Polyline& line)
    {
        const std::vector<Point>& points = line.points;
        if (points.size() == 1) {
            dot(points.front(), line.direction);
            return;
        }
        const std::size_t count = points.size();
        const std::size_t segments = line.closed ? count : count - 1;
        std::vector<Course> courses;
        for (std::size_t i = 0; i < segments; ++i) {
            const Point& to = points[(i + 1) % count];
            courses.push_back(courseOf(points[i], to, line.courses[i]));
            segment(points[i], to, courses[i]);
        }
        const std::size_t firstJoin = line.closed ? 0 : 1;
        for (std::size_t i = firstJoin; i + firstJoin < count; ++i)
            join(points[i], courses[(i + segments - 1) % segments].end, courses[i].begin, line.smooth[i]);
        if (!line.closed) {
            cap(points[0], courses.front().begin * -1);
            cap(points[count - 1], courses.back().end);
        }
    }

    std::vector<Polygon> outline() { return std::move(m_pieces); }

private:
    void add(Polygon piece)
    {
        m_budget.spend(kPointCost * static_cast<std::int64_t>(piece.size()));
        m_pieces.push_back(std::move(piece));
    }

    /// That of a piece as the pen follows it: of a curve, unless the bend is too tight for the pen.
    Course courseOf(Point from, Point to, const Course& course) const
    {
        if (course.begin == course.end)
            return course;
        const Point straight = unit(to - from);
        const auto isNear = [&](Point end) { return ovosvg::dot(end, straight) > kNearlyStraight; };
        const double gain = ovosvg::dot(normal(course.end) - normal(course.begin), straight) * m_half;
        const bool follows =
            isNear(course.begin) && isNear(course.end) && std::abs(gain) <= length(to - from) * kTightest;
        return follows ? course : Course{straight, straight};
    }

    /// Cut off square to the directions in which it begins and ends, so pieces of a curve fit together.
    void segment(Point from, Point to, const Course& course)
    {
        const Point before = normal(course.begin) * m_half;
        const Point behind = normal(course.end) * m_half;
        Polygon piece{from - before, to - behind, to + behind, from + before};
        const auto runsBack = [&](Point one, Point next) { return ovosvg::dot(next - one, to - from) < 0; };
        if (runsBack(piece[0], piece[1])) // the inner side of a bend that is tighter than the pen
            std::swap(piece[0], piece[1]);
        if (runsBack(piece[3], piece[2]))
            std::swap(piece[2], piece[3]);
        add(std::move(piece));
    }

    /// A part of the circle around a point, from one direction on by an angle that is not negative.
    void pie(Point centre, Point direction, double angle)
    {
        const auto pieces = std::max(1, static_cast<int>(std::ceil(angle / m_arcStep)));
        Polygon piece{centre};
        for (int i = 0; i <= pieces; ++i) {
            const double a = angle * i / pieces;
            const Point turned{direction.x * std::cos(a) - direction.y * std::sin(a),
                               direction.x * std::sin(a) + direction.y * std::cos(a)};
            piece.push_back(centre + turned * m_half);
        }
        add(std::move(piece));
    }

    /// The gap on the outer side of a bend from one direction to another.
    void join(Point at, Point in, Point out, bool smooth)
    {
        const double turn = std::atan2(cross(in, out), ovosvg::dot(in, out));
        if (!(std::abs(turn) > 0)) // or no number
            return;
        // The outer side is the one away from the turn; pieces run the way that x turns towards y.
        const Point first = turn > 0 ? normal(in) * -1 : normal(out);
        const Point second = turn > 0 ? normal(out) * -1 : normal(in);
        const double angle = std::abs(turn);
        if (smooth || m_pen.join == LineJoin::Round) {
            pie(at, first, angle);
            return;
        }
        Polygon piece{at, at + first * m_half};
        const double inverse = std::cos(angle / 2); // of the miter's length by the width
        if (m_pen.join == LineJoin::Miter && inverse * m_pen.miterLimit >= 1)
            piece.push_back(at + (first + second) * (m_half / (2 * inverse * inverse)));
        piece.push_back(at + second * m_half);
        add(std::move(piece));
    }

    /// At an end, beyond which the direction points.
    void cap(Point at, Point direction)
    {
        const Point side = normal(direction) * m_half;
        if (m_pen.cap == LineCap::Round)
            pie(at, normal(direction) * -1, kPi);
        else if (m_pen.cap == LineCap::Square)
            add({at - side, at - side + direction * m_half, at + side + direction * m_half, at + side});
    }

    /// A line without a length shows its caps.
    void dot(Point at, Point direction)
    {
        if (m_pen.cap == LineCap::Round)
            pie(at, {1, 0}, 2 * kPi);
        else if (m_pen.cap == LineCap::Square)
            segment(at - direction * m_half, at + direction * m_half, {direction, direction});
    }

    const Pen& m_pen;
    const double m_half;
    Budget& m_budget;
    double m_arcStep; ///< in radians
    std::vector<Polygon> m_pieces;
};

/// Where in the pattern of dashes a line is.
class DashWalk
{
public:
    explicit DashWalk(const Pen& pen)
        : m_lengths(pen.dashes)
    {
        if (m_lengths.size() % 2)
            m_lengths.insert(m_lengths.end(), pen.dashes.begin(), pen.dashes.end());
        const double period = std::accumulate(m_lengths.begin(), m_lengths.end(), 0.0);
        double offset = std::fmod(pen.dashOffset, period);
        offset = offset < 0 ? offset + period : offset;
        while (offset >= m_lengths[m_index] && offset > 0) {
            offset -= m_lengths[m_index];
            next();
        }
        m_left -= offset;
    }

    bool isOn() const { return m_index % 2 == 0; }
    double left() const { return m_left; }
    void go(double length) { m_left -= length; }
    void next()
    {
        m_index = (m_index + 1) % m_lengths.size();
        m_left = m_lengths[m_index];
    }

private:
    std::vector<double> m_lengths;
    std::size_t m_index = 0;
    double m_left = m_lengths.front();
};

class Dasher
{
public:
    Dasher(const Pen& pen, Budget& budget)
        : m_pen(pen)
        , m_budget(budget)
    {
    }

    void cut(const Polyline& line)
    {
        m_budget.spend(static_cast<std::int64_t>(m_pen.dashes.size()));
        DashWalk walk(m_pen);
        const std::size_t first = m_dashes.size();
        const bool beginsOn = walk.isOn();
        const std::size_t count = line.points.size();
        if (walk.isOn())
            begin(line.points.front());
        for (std::size_t i = 1; i < count + (line.closed && count > 1 ? 1 : 0); ++i)
            along(walk, line.points[i - 1], line.points[i % count], line.courses[i - 1],
                  line.smooth[i % count]);
        const bool endsOn = !m_dash.points.empty();
        end();
        if (!line.closed || !beginsOn || !endsOn)
            return;
        if (m_dashes.size() == first + 1)
            m_dashes.back() = line; // one dash goes all around
        else
            joinEnds(first);
    }

    std::vector<Polyline> dashes() { return std::move(m_dashes); }

private:
    void along(DashWalk& walk, Point from, Point to, const Course& course, bool smooth)
    {
        const double whole = length(to - from);
        double done = 0;
        Point begun = course.begin;
        while (whole - done > walk.left()) {
            m_budget.spend(kDashCost);
            done += walk.left();
            const Point at = from + (to - from) * (done / whole);
            const Point direction = directionAt(course, done / whole);
            if (walk.isOn()) {
                add(at, {begun, direction}, false);
                m_dash.direction = direction;
                end();
            }
            begun = direction;
            walk.next();
            if (walk.isOn())
                begin(at);
        }
        walk.go(whole - done);
        if (walk.isOn())
            add(to, {begun, course.end}, smooth);
    }

    static Point directionAt(const Course& course, double share)
    {
        if (course.begin == course.end)
            return course.begin;
        return unit(course.begin * (1 - share) + course.end * share);
    }

    void begin(Point p) { m_dash = {{p}, {false}, {}, false}; }
    void add(Point p, const Course& course, bool smooth)
    {
        m_budget.spend(kPointCost);
        if (p == m_dash.points.back())
            return;
        m_dash.points.push_back(p);
        m_dash.smooth.push_back(smooth);
        m_dash.courses.push_back(course);
    }
    void end()
    {
        if (!m_dash.points.empty())
            m_dashes.push_back(std::exchange(m_dash, {}));
    }

    /// The last dash of a closed line goes on with the first one.
    void joinEnds(std::size_t first)
    {
        Polyline last = std::move(m_dashes.back());
        m_dashes.pop_back();
        const Polyline& begin = m_dashes[first];
        last.points.insert(last.points.end(), begin.points.begin() + 1, begin.points.end());
        last.smooth.insert(last.smooth.end(), begin.smooth.begin() + 1, begin.smooth.end());
        last.courses.insert(last.courses.end(), begin.courses.begin(), begin.courses.end());
        m_dashes[first] = std::move(last);
    }

    const Pen& m_pen;
    Budget& m_budget;
    Polyline m_dash;
    std::vector<Polyline> m_dashes;
};

} // namespace

std::vector<Polygon> strokeOutline(const std::vector<Polyline>& lines, const Pen& pen, double tolerance,
                                   Budget& budget)
{
    if (!(pen.width > 0))
        return {};
    Stroker stroker(pen, tolerance, budget);
    for (const Polyline& line : dashed(lines, pen, budget))
        stroker.stroke(line);
    return stroker.outline();
}

std::vector<Polyline> dashed(const std::vector<Polyline>& lines, const Pen& pen, Budget& budget)
{
    const double period = std::accumulate(pen.dashes.begin(), pen.dashes.end(), 0.0);
    if (!(period > 0) || !std::isfinite(2 * period)) // an odd list counts twice
        return lines;
    Dasher dasher(pen, budget);
    for (const Polyline& line : lines)
        dasher.cut(line);
    return dasher.dashes();
}

} // namespace ovosvg
