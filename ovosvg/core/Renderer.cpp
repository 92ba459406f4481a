// The walk over the elements. Shapes are in RendererShapes.cpp.
#include <ovosvg/core/Renderer.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ovosvg
{

namespace
{

template <std::size_t count>
bool isOneOf(std::string_view name, const std::string_view (&names)[count])
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// Elements that show nothing where they stand.
constexpr std::string_view kNotDrawn[] = {"defs",   "symbol",  "linearGradient", "radialGradient", "stop",
                                          "title",  "desc",    "metadata",       "clipPath",       "mask",
                                          "marker", "pattern", "filter"};

/// What drawings may ask for as a condition: the parts of the recommendation that are drawn here.
constexpr std::string_view kFeatures[] = {"CoreAttribute",    "BasicStructure",        "Shape",
                                          "PaintAttribute",   "BasicPaintAttribute",   "Gradient",
                                          "OpacityAttribute", "ConditionalProcessing", "XlinkAttribute"};

/// Addresses of features, apart by blanks. An empty list is a condition that does not hold.
bool hasFeatures(std::string_view list)
{
    std::string_view rest = trimmed(list);
    if (rest.empty())
        return false;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of(" \t\r\n\f"), rest.size());
        const std::string_view address = rest.substr(0, end);
        const std::size_t mark = std::min(address.find('#'), address.size() - 1);
        if (!isOneOf(address.substr(mark + 1), kFeatures))
            return false;
        rest = trimmed(rest.substr(end));
    }
    return true;
}

/// Whether a child of a `switch` may be the one that is drawn. No extension is known, and a drawing looks the
/// same in every language.
bool conditionsHold(const XmlElement& element)
{
    const std::string* const features = element.find("requiredFeatures");
    return !element.find("requiredExtensions") && !element.find("systemLanguage") &&
           (!features || hasFeatures(*features));
}

/// The prefixes of a drawing's elements, with their colons: that of the outermost one, and what it declares.
std::set<std::string, std::less<>> prefixesOf(const XmlElement& root)
{
    std::set<std::string, std::less<>> all{root.name.substr(0, root.name.find(':') + 1)};
    for (const auto& [name, value, place] : root.attributes) {
        if (trimmed(value) != "http://www.w3.org/2000/svg")
            continue;
        if (name == "xmlns")
            all.insert("");
        else if (name.starts_with("xmlns:"))
            all.insert(name.substr(name.find(':') + 1) + ":");
    }
    return all;
}

} // namespace

Renderer::Renderer(const XmlElement& root, int width, int height, std::vector<SvgNote>& notes,
                   const Budget& budget)
    : m_root(root)
    , m_prefixes(prefixesOf(root))
    , m_definitions(root)
    , m_width(width)
    , m_height(height)
    , m_notes(notes)
    , m_budget(budget)
{
}

Canvas Renderer::render(std::uint32_t currentColour)
{
    m_layers.emplace_back(m_width, m_height);
    Context context;
    m_currentColour = currentColour;
    context.style.colour = currentColour;
    context.style = styleFor(m_root, context.style);
    if (transformOf(m_root) != Matrix{})
        note(SvgIssue::NotSupported, m_root, "transform");
    context.viewport = {0, 0, static_cast<double>(m_width), static_cast<double>(m_height)};
    Box room = context.viewport;
    if (!viewBoxOf(m_root)) {
        // A drawing without a view box has that of its size, if it says one.
        const auto width = maybeLength(m_root, "width", room, Axis::X);
        const auto height = maybeLength(m_root, "height", room, Axis::Y);
        if (width && height && *width > 0 && *height > 0)
            context.matrix = Fit().matrix({0, 0, *width, *height}, room);
        if (width && height)
            context.viewport = {0, 0, *width, *height};
        if (context.style.displayed)
            inLayer(context.style.opacity, [&] { drawChildren(m_root, context); });
    } else if (context.style.displayed) {
        inLayer(context.style.opacity, [&] { drawViewport(m_root, context, room); });
    }
    noteStyleSheets(m_root);
    return std::move(m_layers.front());
}

/// Style sheets count wherever they stand, and editors put them among what is not drawn there.
void Renderer::noteStyleSheets(const XmlElement& element)
{
    for (const XmlElement& child : element.children) {
        if (nameOf(child) == "style")
            note(SvgIssue::NotSupported, child, "style");
        noteStyleSheets(child);
    }
}

/// The name without its prefix; empty for an element of another name space.
std::string_view Renderer::nameOf(const XmlElement& element) const
{
    const std::string_view name = localName(element.name);
    const std::string_view prefix =
        std::string_view(element.name).substr(0, element.name.size() - name.size());
    return m_prefixes.contains(prefix) && name.find(':') == std::string_view::npos ? name
                                                                                   : std::string_view();
}

/// What stands in a shape, such as animations.
void Renderer::noteContent(const XmlElement& shape)
{
    m_budget.spend(static_cast<std::int64_t>(shape.children.size()));
    for (const XmlElement& child : shape.children) {
        const std::string_view name = nameOf(child);
        if (!name.empty() && !isOneOf(name, kNotDrawn))
            note(SvgIssue::NotSupported, child, std::string(name));
    }
}

void Renderer::drawChildren(const XmlElement& element, const Context& context)
{
    m_budget.spend(static_cast<std::int64_t>(element.children.size())); // of which many may not be drawn
    for (const XmlElement& child : element.children)
        drawElement(child, context);
}

void Renderer::drawElement(const XmlElement& element, const Context& parent)
{
    const std::string_view name = nameOf(element);
    if (name.empty() || isOneOf(name, kNotDrawn))
        return; // an editor's own, or drawn elsewhere
    if (parent.depth >= kMostDepth)
        throw SvgFailure{{SvgIssue::TooLarge, element.place.line, element.place.column, "depth"}};
    if (++m_elements > kMostElements)
        throw SvgFailure{{SvgIssue::TooLarge, element.place.line, element.place.column, "elements"}};
    m_budget.spend(element.cost() + parent.style.cost());
    Context context = parent;
    ++context.depth;
    context.style = styleFor(element, parent.style);
    context.matrix = parent.matrix * transformOf(element);
    if (context.style.displayed && context.style.opacity > 0)
        inLayer(context.style.opacity, [&] { drawByName(name, element, context); });
}

void Renderer::drawByName(std::string_view name, const XmlElement& element, const Context& context)
{
    if (name == "g" || name == "a") {
        drawChildren(element, context);
    } else if (name == "switch") {
        drawFirstChoice(element, context);
    } else if (name == "use") {
        drawReference(element, context);
    } else if (name == "svg") {
        const Box& view = context.viewport;
        drawViewport(element, context,
                     {length(element, "x", view, Axis::X), length(element, "y", view, Axis::Y),
                      size(element, "width", view, Axis::X, {1, true}),
                      size(element, "height", view, Axis::Y, {1, true})});
    } else if (const std::optional<Path> shape = shapeOf(name, element, context)) {
        noteContent(element);
        drawShape(*shape, element, context, name != "line");
    } else {
        note(SvgIssue::NotSupported, element, std::string(name));
    }
}

/// The first child that shows something and whose conditions hold; no other, even if it cannot be drawn.
void Renderer::drawFirstChoice(const XmlElement& element, const Context& context)
{
    for (const XmlElement& child : element.children) {
        m_budget.spend(child.cost());
        const std::string_view name = nameOf(child);
        if (name.empty() || isOneOf(name, kNotDrawn) || !conditionsHold(child))
            continue;
        drawElement(child, context);
        return;
    }
}

void Renderer::drawReference(const XmlElement& use, const Context& context)
{
    const XmlElement* const target = m_definitions.referredBy(use);
    if (!target) {
        note(SvgIssue::BadValue, use, "href");
        return;
    }
    const Box& view = context.viewport;
    Context moved = context;
    moved.matrix = context.matrix *
                   Matrix::translation(length(use, "x", view, Axis::X), length(use, "y", view, Axis::Y));
    const std::string_view name = localName(target->name);
    if (name != "symbol" && name != "svg") {
        drawElement(*target, moved);
        return;
    }
    if (moved.depth >= kMostDepth)
        throw SvgFailure{{SvgIssue::TooLarge, use.place.line, use.place.column, "depth"}};
    ++moved.depth;
    m_budget.spend(target->cost() + context.style.cost());
    moved.style = styleFor(*target, context.style);
    moved.matrix = moved.matrix * transformOf(*target);
    const auto side = [&](const char* attribute, Axis axis) {
        const XmlElement& owner = use.find(attribute) ? use : *target;
        return size(owner, attribute, view, axis, {1, true});
    };
    const Box room{length(*target, "x", view, Axis::X), length(*target, "y", view, Axis::Y),
                   side("width", Axis::X), side("height", Axis::Y)};
    if (moved.style.displayed)
        inLayer(moved.style.opacity, [&] { drawViewport(*target, moved, room); });
}

/// The children in the room that they are given. What reaches beyond it is not cut off.
void Renderer::drawViewport(const XmlElement& element, const Context& context, const Box& room)
{
    if (room.width <= 0 || room.height <= 0)
        return;
    Context inner = context;
    const std::optional<Box> viewBox = viewBoxOf(element);
    if (viewBox && (viewBox->width <= 0 || viewBox->height <= 0))
        return;
    const std::string* const text = element.find("preserveAspectRatio");
    const std::optional<Fit> fit = text ? fitFrom(*text) : Fit();
    if (!fit)
        note(SvgIssue::BadValue, element, "preserveAspectRatio");
    inner.matrix = context.matrix * (viewBox ? fit.value_or(Fit()).matrix(*viewBox, room)
                                             : Matrix::translation(room.x, room.y));
    const Box own = viewBox.value_or(room);
    inner.viewport = {0, 0, own.width, own.height};
    drawChildren(element, inner);
}

/// Draws onto a layer of its own if the result is to be seen through.
template <class Draw>
void Renderer::inLayer(double opacity, const Draw& draw)
{
    if (opacity >= 1) {
        draw();
        return;
    }
    const auto pixels = static_cast<std::int64_t>(m_width) * m_height;
    if (static_cast<std::int64_t>(m_layers.size() + 1) * pixels > kMostPixels)
        throw SvgFailure{{SvgIssue::TooLarge, 0, 0, "layers"}};
    m_budget.spend(pixels);
    m_layers.emplace_back(m_width, m_height);
    draw();
    const Canvas layer = std::move(m_layers.back());
    m_layers.pop_back();
    m_layers.back().lay(layer, opacity);
}

// Values

double Renderer::length(const XmlElement& element, const char* attribute, const Box& viewport, Axis axis,
                        Length otherwise)
{
    const std::string* const text = element.find(attribute);
    std::optional<Length> length = text && trimmed(*text) != "auto" ? lengthFrom(*text) : otherwise;
    if (!length) {
        note(SvgIssue::BadValue, element, attribute);
        length = otherwise;
    }
    const double diagonal =
        std::sqrt((viewport.width * viewport.width + viewport.height * viewport.height) / 2);
    return length->of(axis == Axis::X ? viewport.width : axis == Axis::Y ? viewport.height : diagonal);
}

double Renderer::size(const XmlElement& element, const char* attribute, const Box& viewport, Axis axis,
                      Length otherwise)
{
    const double value = length(element, attribute, viewport, axis, otherwise);
    if (value >= 0)
        return value;
    note(SvgIssue::BadValue, element, attribute);
    return 0;
}

/// None without the attribute, and where it cannot be read.
std::optional<double> Renderer::maybeLength(const XmlElement& element, const char* attribute,
                                            const Box& viewport, Axis axis)
{
    const std::string* const text = element.find(attribute);
    if (!text || trimmed(*text) == "auto")
        return std::nullopt;
    const std::optional<Length> written = lengthFrom(*text);
    if (written && written->value >= 0)
        return length(element, attribute, viewport, axis);
    note(SvgIssue::BadValue, element, attribute);
    return std::nullopt;
}

Matrix Renderer::transformOf(const XmlElement& element)
{
    const std::string_view text = propertyOf(element, "transform");
    const std::optional<Matrix> matrix = transformFrom(text);
    if (!matrix)
        note(SvgIssue::BadValue, element, "transform");
    return matrix.value_or(Matrix{});
}

std::optional<Box> Renderer::viewBoxOf(const XmlElement& element)
{
    const std::string* const text = element.find("viewBox");
    const auto numbers = text ? numbersFrom(*text) : std::nullopt;
    if (numbers && numbers->size() == 4 && (*numbers)[2] >= 0 && (*numbers)[3] >= 0)
        return Box{(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]};
    if (text)
        note(SvgIssue::BadValue, element, "viewBox");
    return std::nullopt;
}

Style Renderer::styleFor(const XmlElement& element, const Style& parent)
{
    return styleOf(element, parent, [this](const std::string& name, Setting setting, XmlPlace place) {
        note(setting == Setting::NotSupported ? SvgIssue::NotSupported : SvgIssue::BadValue, place, name);
    });
}

void Renderer::note(SvgIssue issue, const XmlElement& element, std::string what)
{
    note(issue, element.place, std::move(what));
}

void Renderer::note(SvgIssue issue, XmlPlace place, std::string what)
{
    constexpr std::size_t kMostNotes = 100;
    SvgNote note{issue, place.line, place.column, std::move(what)};
    if (m_notes.size() < kMostNotes && std::find(m_notes.begin(), m_notes.end(), note) == m_notes.end())
        m_notes.push_back(std::move(note));
}

} // namespace ovosvg
