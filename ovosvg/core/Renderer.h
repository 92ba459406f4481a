/// Walks over a drawing and paints it. Plain values, no windows.
#pragma once

#include <ovosvg/core/Canvas.h>
#include <ovosvg/core/Definitions.h>
#include <ovosvg/core/Path.h>
#include <ovosvg/core/Style.h>

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ovosvg
{

/// Makes one picture of a drawing, which must stay meanwhile. Raises SvgFailure, TooLarge, beyond the limits.
class Renderer
{
public:
    /// What cannot be drawn is added to `notes`, once each.
    Renderer(const XmlElement& root, int width, int height, std::vector<SvgNote>& notes,
             const Budget& budget);

    Canvas render(std::uint32_t currentColour);

private:
    /// Where and how an element is drawn.
    struct Context
    {
        Matrix matrix; ///< from the element's units to the picture
        Style style;   ///< of what it lies in
        Box viewport;  ///< what percentages refer to
        int depth = 0; ///< of elements and references
    };

    // Elements
    void drawElement(const XmlElement& element, const Context& parent);
    void drawChildren(const XmlElement& element, const Context& context);
    void drawByName(std::string_view name, const XmlElement& element, const Context& context);
    void drawFirstChoice(const XmlElement& element, const Context& context);
    void drawReference(const XmlElement& use, const Context& context);
    void drawViewport(const XmlElement& element, const Context& context, const Box& room);
    template <class Draw>
    void inLayer(double opacity, const Draw& draw);

    // Shapes
    std::optional<Path> shapeOf(std::string_view name, const XmlElement& element, const Context& context);
    Path pathOf(const XmlElement& element);
    Path rectangleOf(const XmlElement& element, const Box& viewport);
    Path linesOf(const XmlElement& element, bool closed);
    void drawShape(const Path& path, const XmlElement& element, const Context& context, bool hasArea);
    void fill(const std::vector<Polyline>& lines, const XmlElement& element, const Context& context,
              const Box& bounds);
    void stroke(const std::vector<Polyline>& lines, const XmlElement& element, const Context& context,
                const Box& bounds, double tolerance);
    void paintArea(const std::vector<Polygon>& area, FillRule rule, const Paint& paint, double opacity,
                   const XmlElement& element, const Context& context, const Box& bounds);
    const XmlElement* gradientOf(const Paint& paint, const XmlElement& element);
    Pen penOf(const Style& style, const Box& viewport) const;

    // Values
    enum class Axis
    {
        X,
        Y,
        Both
    };
    double length(const XmlElement& element, const char* attribute, const Box& viewport, Axis axis,
                  Length otherwise = {});
    std::optional<double> maybeLength(const XmlElement& element, const char* attribute, const Box& viewport,
                                      Axis axis);
    /// Of shapes: not negative.
    double size(const XmlElement& element, const char* attribute, const Box& viewport, Axis axis,
                Length otherwise = {});
    Matrix transformOf(const XmlElement& element);
    std::optional<Box> viewBoxOf(const XmlElement& element);
    Style styleFor(const XmlElement& element, const Style& parent);
    std::string_view nameOf(const XmlElement& element) const;
    void noteStyleSheets(const XmlElement& element);
    void noteContent(const XmlElement& shape);
    void note(SvgIssue issue, const XmlElement& element, std::string what);
    void note(SvgIssue issue, XmlPlace place, std::string what);

    const XmlElement& m_root;
    const std::set<std::string, std::less<>> m_prefixes; ///< of the drawing's elements, with their colons
    const Definitions m_definitions;
    const int m_width;
    const int m_height;
    std::vector<SvgNote>& m_notes;
    Budget m_budget;
    int m_elements = 0;
    std::uint32_t m_currentColour = 0; ///< the host's
    std::vector<Canvas> m_layers;      ///< the picture, and on it those that are laid over it as a whole
};

} // namespace ovosvg
