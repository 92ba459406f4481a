// Renderer: shapes, and how they are painted.
#include <ovosvg/core/GradientReader.h>
#include <ovosvg/core/PathData.h>
#include <ovosvg/core/Renderer.h>
#include <ovosvg/core/Shapes.h>

#include <algorithm>
#include <cmath>

namespace ovosvg
{

namespace
{

constexpr double kTolerance = 0.01; // pixels that a line may be away from its curve

Box boundsOf(const std::vector<Polyline>& lines)
{
    Path all;
    for (const Polyline& line : lines)
        for (const Point& p : line.points)
            all.moveTo(p);
    return all.bounds();
}

std::vector<Polygon> mapped(std::vector<Polygon> polygons, const Matrix& matrix)
{
    for (Polygon& polygon : polygons)
        for (Point& p : polygon)
            p = matrix.map(p);
    return polygons;
}

} // namespace

/// None for an element that is no shape.
std::optional<Path> Renderer::shapeOf(std::string_view name, const XmlElement& element,
                                      const Context& context)
{
    const Box& view = context.viewport;
    const auto x = [&](const char* attribute) { return length(element, attribute, view, Axis::X); };
    const auto y = [&](const char* attribute) { return length(element, attribute, view, Axis::Y); };
    if (name == "path")
        return pathOf(element);
    if (name == "rect")
        return rectangleOf(element, view);
    if (name == "circle") {
        const double r = size(element, "r", view, Axis::Both);
        return ellipsePath({x("cx"), y("cy")}, r, r);
    }
    if (name == "ellipse") {
        const auto rx = maybeLength(element, "rx", view, Axis::X);
        const auto ry = maybeLength(element, "ry", view, Axis::Y);
        return ellipsePath({x("cx"), y("cy")}, rx.value_or(ry.value_or(0)), ry.value_or(rx.value_or(0)));
    }
    if (name == "line")
        return linesPath({x("x1"), y("y1"), x("x2"), y("y2")}, false);
    if (name == "polyline" || name == "polygon")
        return linesOf(element, name == "polygon");
    return std::nullopt;
}

Path Renderer::pathOf(const XmlElement& element)
{
    const std::string* const text = element.find("d");
    if (!text || trimmed(*text) == "none")
        return {};
    PathReading reading = readPath(*text);
    if (!reading.complete)
        note(SvgIssue::BadValue, element, "d"); // as far as it can be read it is drawn
    return std::move(reading.path);
}

Path Renderer::rectangleOf(const XmlElement& element, const Box& viewport)
{
    const auto rx = maybeLength(element, "rx", viewport, Axis::X);
    const auto ry = maybeLength(element, "ry", viewport, Axis::Y);
    return rectanglePath({length(element, "x", viewport, Axis::X), length(element, "y", viewport, Axis::Y),
                          size(element, "width", viewport, Axis::X),
                          size(element, "height", viewport, Axis::Y)},
                         rx.value_or(ry.value_or(0)), ry.value_or(rx.value_or(0)));
}

Path Renderer::linesOf(const XmlElement& element, bool closed)
{
    const std::string* const text = element.find("points");
    const auto numbers = text ? numbersFrom(*text) : std::vector<double>{};
    if (!numbers || numbers->size() % 2)
        note(SvgIssue::BadValue, element, "points");
    return linesPath(numbers.value_or(std::vector<double>{}), closed);
}

void Renderer::drawShape(const Path& path, const XmlElement& element, const Context& context, bool hasArea)
{
    if (element.find("pathLength"))
        note(SvgIssue::NotSupported, element, "pathLength");
    if (path.empty() || !context.style.visible)
        return;
    if (!context.matrix.invertible()) {
        if (!std::isfinite(context.matrix.determinant()))
            note(SvgIssue::BadValue, element, "transform");
        return;
    }
    const double tolerance = kTolerance / context.matrix.stretch();
    const std::vector<Polyline> lines = path.flattened(tolerance, m_budget);
    const Box bounds = boundsOf(lines);
    if (hasArea)
        fill(lines, element, context, bounds);
    stroke(lines, element, context, bounds, tolerance);
}

void Renderer::fill(const std::vector<Polyline>& lines, const XmlElement& element, const Context& context,
                    const Box& bounds)
{
    if (context.style.fill.kind == Paint::Kind::None)
        return;
    std::vector<Polygon> area;
    for (const Polyline& line : lines)
        area.push_back(line.points);
    paintArea(mapped(std::move(area), context.matrix), context.style.fillRule, context.style.fill,
              context.style.fillOpacity, element, context, bounds);
}

void Renderer::stroke(const std::vector<Polyline>& lines, const XmlElement& element, const Context& context,
                      const Box& bounds, double tolerance)
{
    if (context.style.stroke.kind == Paint::Kind::None)
        return;
    const Pen pen = penOf(context.style, context.viewport);
    paintArea(mapped(strokeOutline(lines, pen, tolerance, m_budget), context.matrix), FillRule::NonZero,
              context.style.stroke, context.style.strokeOpacity, element, context, bounds);
}

Pen Renderer::penOf(const Style& style, const Box& viewport) const
{
    const double whole = std::sqrt((viewport.width * viewport.width + viewport.height * viewport.height) / 2);
    Pen pen{style.strokeWidth.of(whole), style.cap, style.join, style.miterLimit, {},
            style.dashOffset.of(whole)};
    for (const Length& dash : style.dashes)
        pen.dashes.push_back(dash.of(whole));
    return pen;
}

/// The gradient that a paint of an element refers to; null when there is none.
const XmlElement* Renderer::gradientOf(const Paint& paint, const XmlElement& element)
{
    const XmlElement* const server = m_definitions.find(paint.id);
    const std::string_view name = server ? localName(server->name) : std::string_view();
    if (name == "linearGradient" || name == "radialGradient")
        return server;
    note(server ? SvgIssue::NotSupported : SvgIssue::BadValue, element, "#" + paint.id);
    return nullptr;
}

/// Polygons in pixels.
void Renderer::paintArea(const std::vector<Polygon>& area, FillRule rule, const Paint& paint, double opacity,
                         const XmlElement& element, const Context& context, const Box& bounds)
{
    if (area.empty() || opacity <= 0)
        return;
    std::optional<Gradient> gradient;
    Paint::Kind kind = paint.kind;
    if (kind == Paint::Kind::Server) {
        const XmlElement* const server = gradientOf(paint, element);
        if (!server)
            kind = paint.otherwise;
        else
            gradient = readGradient(*server, m_definitions,
                                    {bounds, context.viewport, context.matrix, m_currentColour, m_budget},
                                    [this](const char* attribute, const XmlElement& of) {
                                        note(SvgIssue::BadValue, of, attribute);
                                    });
        if (server ? !gradient : kind == Paint::Kind::None)
            return;
    }
    const std::uint32_t colour = kind == Paint::Kind::Current ? context.style.colour : paint.colour;
    const Covered covered = coverage(area, rule, m_width, m_height, m_budget);
    Canvas& canvas = m_layers.back();
    if (gradient)
        canvas.paint(covered, opacity, [&gradient](Point p) { return gradient->at(p); });
    else
        canvas.paint(covered, opacity, [own = rgbaOf(colour)](Point) { return own; });
}

} // namespace ovosvg
