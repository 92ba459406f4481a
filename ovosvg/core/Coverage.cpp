#include <ovosvg/core/Coverage.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace ovosvg
{

namespace
{

/// An edge that runs down, within the picture. Its winding is 1 where the polygon runs down too, else -1.
struct Edge
{
    Point top;
    Point bottom;
    int winding;

    double xAt(double y) const
    {
        if (y <= top.y)
            return top.x;
        if (y >= bottom.y)
            return bottom.x;
        return top.x + (bottom.x - top.x) * ((y - top.y) / (bottom.y - top.y));
    }
};

/// Edges cut off at the picture. What is left or right of it runs along its side, so that windings stay.
class Clipper
{
public:
    Clipper(double width, double height)
        : m_width(width)
        , m_height(height)
    {
    }

    void add(Point from, Point to)
    {
        const int winding = from.y < to.y ? 1 : -1;
        if (winding < 0)
            std::swap(from, to);
        if (from.y == to.y || to.y <= 0 || from.y >= m_height)
            return;
        const Edge whole{from, to, winding};
        const Point top{whole.xAt(0), std::max(from.y, 0.0)};
        const Point bottom{whole.xAt(m_height), std::min(to.y, m_height)};
        double ys[4] = {top.y, top.y, bottom.y, bottom.y};
        if (top.x != bottom.x) {
            const auto yWhere = [&](double x) {
                const double y = top.y + (bottom.y - top.y) * ((x - top.x) / (bottom.x - top.x));
                return std::clamp(y, top.y, bottom.y);
            };
            ys[1] = yWhere(0);
            ys[2] = yWhere(m_width);
            std::sort(ys, ys + 4);
        }
        const Edge cut{top, bottom, winding};
        for (int i = 0; i < 3; ++i)
            if (ys[i] < ys[i + 1])
                edges.push_back(
                    {{inside(cut.xAt(ys[i])), ys[i]}, {inside(cut.xAt(ys[i + 1])), ys[i + 1]}, winding});
    }

    std::vector<Edge> edges;

private:
    double inside(double x) const { return std::clamp(x, 0.0, m_width); }

    const double m_width;
    const double m_height;
};

/// The pixels that edges reach, and another one at each side, where rounding may lead to.
Part partReached(const std::vector<Edge>& edges, int width, int height)
{
    if (edges.empty())
        return {};
    double left = width;
    double right = 0;
    double top = height;
    double bottom = 0;
    for (const Edge& edge : edges) {
        left = std::min({left, edge.top.x, edge.bottom.x});
        right = std::max({right, edge.top.x, edge.bottom.x});
        top = std::min(top, edge.top.y);
        bottom = std::max(bottom, edge.bottom.y);
    }
    Part part;
    part.left = std::max(0, static_cast<int>(left) - 1);
    part.top = static_cast<int>(top);
    part.width = std::min(width, static_cast<int>(right) + 2) - part.left;
    part.height = static_cast<int>(std::ceil(bottom)) - part.top;
    return part;
}

/// Collects what lies to the right of lines. Each pixel of `m_changes` is what it has more than the pixel to
/// its left.
class Accumulator
{
public:
    explicit Accumulator(const Part& part)
        : m_part(part)
        , m_stride(static_cast<std::size_t>(part.width) + 2)
        , m_changes(m_stride * static_cast<std::size_t>(part.height))
    {
    }

    /// Adds, or with -1 takes away, the area to the right of a line that runs down.
    void addRightOf(Point top, Point bottom, int sign)
    {
        const double slope = (bottom.x - top.x) / (bottom.y - top.y);
        double y = top.y;
        double x = top.x;
        while (y < bottom.y) {
            const double row = std::floor(y);
            const double nextY = std::min(row + 1, bottom.y);
            const double nextX = nextY == bottom.y
                                     ? bottom.x
                                     : std::clamp(top.x + slope * (nextY - top.y), std::min(top.x, bottom.x),
                                                  std::max(top.x, bottom.x));
            addInRow(static_cast<std::size_t>(row - m_part.top), std::min(x, nextX), std::max(x, nextX),
                     sign * (nextY - y));
            y = nextY;
            x = nextX;
        }
    }

    std::vector<float> coverage() const
    {
        std::vector<float> result;
        result.reserve(static_cast<std::size_t>(m_part.width) * static_cast<std::size_t>(m_part.height));
        for (std::size_t row = 0; row < m_changes.size(); row += m_stride) {
            double sum = 0;
            for (std::size_t x = 0; x < static_cast<std::size_t>(m_part.width); ++x) {
                sum += m_changes[row + x];
                result.push_back(static_cast<float>(std::clamp(sum, 0.0, 1.0)));
            }
        }
        return result;
    }

private:
    /// Within a row a line from `left` to `right` over a height.
    void addInRow(std::size_t row, double left, double right, double height)
    {
        double* const changes = &m_changes[row * m_stride];
        const double perX = right > left ? height / (right - left) : 0;
        double x = left;
        do {
            const double column = std::min(std::floor(x), static_cast<double>(m_part.left + m_part.width));
            const double next = std::min(column + 1, right);
            const double part = right > left ? perX * (next - x) : height;
            const double covered = part * (1 - ((x + next) / 2 - column)); // of this column
            double* const change = changes + static_cast<std::size_t>(column - m_part.left);
            change[0] += covered;
            change[1] += part - covered;
            x = next;
        } while (x < right);
    }

    const Part m_part;
    const std::size_t m_stride;
    std::vector<double> m_changes;
};

/// Walks down over bands in which no edge begins or ends, cuts them where edges cross, and hands the borders
/// of what is filled to the accumulator.
class Sweep
{
public:
    Sweep(std::vector<Edge> edges, FillRule rule, Accumulator& target, Budget& budget)
        : m_edges(std::move(edges))
        , m_rule(rule)
        , m_target(target)
        , m_budget(budget)
    {
        std::sort(m_edges.begin(), m_edges.end(),
                  [](const Edge& one, const Edge& other) { return one.top.y < other.top.y; });
    }

    void run()
    {
        std::vector<double> ys;
        for (const Edge& edge : m_edges)
            ys.insert(ys.end(), {edge.top.y, edge.bottom.y});
        sortUnique(ys);
        std::size_t next = 0;
        for (std::size_t i = 0; i + 1 < ys.size(); ++i) {
            std::erase_if(m_active, [&](const Strand& strand) { return strand.edge->bottom.y <= ys[i]; });
            for (; next < m_edges.size() && m_edges[next].top.y <= ys[i]; ++next)
                m_active.push_back({&m_edges[next], 0, 0});
            band(ys[i], ys[i + 1]);
        }
    }

private:
    /// An edge within a band.
    struct Strand
    {
        const Edge* edge;
        double above; ///< x where the band begins
        double below; ///< x where it ends
    };

    static void sortUnique(std::vector<double>& values)
    {
        std::sort(values.begin(), values.end());
        values.erase(std::unique(values.begin(), values.end()), values.end());
    }

    void place(double top, double bottom)
    {
        m_budget.spend(static_cast<std::int64_t>(m_active.size()) + 1);
        for (Strand& strand : m_active) {
            strand.above = strand.edge->xAt(top);
            strand.below = strand.edge->xAt(bottom);
        }
        // Nearly in order from the band before.
        for (std::size_t i = 1; i < m_active.size(); ++i) {
            const Strand strand = m_active[i];
            std::size_t at = i;
            for (; at > 0 && m_active[at - 1].above + m_active[at - 1].below > strand.above + strand.below;
                 --at)
                m_active[at] = m_active[at - 1];
            m_active[at] = strand;
            m_budget.spend(static_cast<std::int64_t>(i - at));
        }
    }

    void band(double top, double bottom)
    {
        if (m_active.empty())
            return;
        place(top, bottom);
        if (isInOrder()) {
            fill(top, bottom);
            return;
        }
        std::vector<double> cuts{top, bottom};
        for (std::size_t i = 0; i < m_active.size(); ++i)
            for (std::size_t j = i + 1; j < m_active.size(); ++j) {
                m_budget.spend(1);
                addCrossing(m_active[i], m_active[j], top, bottom, cuts);
            }
        sortUnique(cuts);
        for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
            place(cuts[i], cuts[i + 1]);
            fill(cuts[i], cuts[i + 1]);
        }
    }

    /// Whether no two edges cross.
    bool isInOrder() const
    {
        const auto crosses = [](const Strand& one, const Strand& next) {
            return next.above < one.above || next.below < one.below;
        };
        return std::adjacent_find(m_active.begin(), m_active.end(), crosses) == m_active.end();
    }

    void addCrossing(const Strand& one, const Strand& other, double top, double bottom,
                     std::vector<double>& cuts)
    {
        const double above = other.above - one.above;
        const double below = other.below - one.below;
        if (!((above < 0 && below > 0) || (above > 0 && below < 0)))
            return;
        const double y = top + (bottom - top) * (above / (above - below));
        if (y > top && y < bottom) {
            m_budget.spend(kPointCost);
            cuts.push_back(y);
        }
    }

    bool isInside(int winding) const { return m_rule == FillRule::NonZero ? winding != 0 : winding % 2 != 0; }

    void fill(double top, double bottom)
    {
        int winding = 0;
        for (const Strand& strand : m_active) {
            const bool before = isInside(winding);
            winding += strand.edge->winding;
            if (isInside(winding) == before)
                continue;
            const double cells = bottom - top + std::abs(strand.below - strand.above);
            m_budget.spend(static_cast<std::int64_t>(cells));
            m_target.addRightOf({strand.above, top}, {strand.below, bottom}, before ? -1 : 1);
        }
    }

    std::vector<Edge> m_edges; // by where they begin
    const FillRule m_rule;
    Accumulator& m_target;
    Budget& m_budget;
    std::vector<Strand> m_active; // from left to right
};

/// No farther away than numbers can be told apart there.
Point nearer(Point p)
{
    constexpr double kFarthest = 1e12; // where they are a ten-thousandth of a pixel apart
    return {std::clamp(p.x, -kFarthest, kFarthest), std::clamp(p.y, -kFarthest, kFarthest)};
}

} // namespace

Covered coverage(const std::vector<Polygon>& polygons, FillRule rule, int width, int height, Budget& budget)
{
    Clipper clipper(width, height);
    for (const Polygon& polygon : polygons) {
        if (!std::all_of(polygon.begin(), polygon.end(), isFinite))
            continue;
        for (std::size_t i = 0; i < polygon.size(); ++i)
            clipper.add(nearer(polygon[i]), nearer(polygon[(i + 1) % polygon.size()]));
    }
    const Part part = partReached(clipper.edges, width, height);
    const auto pixels = static_cast<std::int64_t>(part.width) * part.height;
    budget.spend(static_cast<std::int64_t>(clipper.edges.size()) + part.width + pixels / kPixelsAStep);
    Accumulator accumulator(part);
    Sweep(std::move(clipper.edges), rule, accumulator, budget).run();
    return {part, accumulator.coverage()};
}

} // namespace ovosvg
