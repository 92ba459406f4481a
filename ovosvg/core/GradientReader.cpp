#include <ovosvg/core/GradientReader.h>

#include <ovosvg/core/Style.h>

#include <algorithm>
#include <cmath>

namespace ovosvg
{

namespace
{

constexpr std::size_t kMostReferences = 8;

class GradientReader
{
public:
    GradientReader(const XmlElement& element, const Definitions& definitions, const GradientUse& use,
                   const std::function<void(const char*, const XmlElement&)>& note)
        : m_definitions(definitions)
        , m_use(use)
        , m_note(note)
    {
        for (const XmlElement* next = &element; next && m_chain.size() < kMostReferences;
             next = definitions.referredBy(*next)) {
            m_use.budget.spend(next->cost());
            m_chain.push_back(next);
            if (Definitions::refers(*next) && !definitions.referredBy(*next))
                m_note("href", *next);
        }
    }

    std::optional<Gradient> read()
    {
        Gradient gradient;
        gradient.radial = localName(m_chain.front()->name) == "radialGradient";
        gradient.stops = stops();
        if (gradient.stops.empty())
            return std::nullopt;
        gradient.spread = spread();
        m_byBounds = choice("gradientUnits", {"objectBoundingBox", "userSpaceOnUse"}) == 0;
        if (m_byBounds && (m_use.bounds.width <= 0 || m_use.bounds.height <= 0))
            return std::nullopt;
        if (gradient.radial)
            readCircle(gradient);
        else
            readLine(gradient);
        const Matrix toPicture = m_use.toPicture * units() * transform();
        if (!toPicture.invertible())
            return std::nullopt;
        gradient.fromPicture = toPicture.inverse();
        if (gradient.radial ? gradient.radius <= 0 : gradient.from == gradient.to)
            gradient = plain(gradient.stops.back());
        return gradient;
    }

private:
    /// Where there is no way to go, all has the last colour.
    static Gradient plain(const GradientStop& stop)
    {
        Gradient gradient;
        gradient.to = {1, 0};
        gradient.stops = {{0, stop.colour}};
        return gradient;
    }

    /// The first one that has it gives an attribute.
    std::string_view attribute(const char* name, const XmlElement** owner = nullptr) const
    {
        for (const XmlElement* const element : m_chain)
            if (const std::string* const value = element->find(name)) {
                if (owner)
                    *owner = element;
                return trimmed(*value);
            }
        return {};
    }

    double coordinate(const char* name, Length otherwise, double whole) const
    {
        const XmlElement* owner = nullptr;
        const std::string_view text = attribute(name, &owner);
        std::optional<Length> length = text.data() ? lengthFrom(text) : otherwise;
        if (!length) {
            m_note(name, *owner);
            length = otherwise;
        }
        return length->of(m_byBounds ? 1 : whole);
    }

    void readLine(Gradient& gradient) const
    {
        const Box& view = m_use.viewport;
        gradient.from = {coordinate("x1", {0, true}, view.width), coordinate("y1", {0, true}, view.height)};
        gradient.to = {coordinate("x2", {1, true}, view.width), coordinate("y2", {0, true}, view.height)};
    }

    void readCircle(Gradient& gradient) const
    {
        const Box& view = m_use.viewport;
        const double diagonal = std::sqrt((view.width * view.width + view.height * view.height) / 2);
        gradient.to = {coordinate("cx", {0.5, true}, view.width), coordinate("cy", {0.5, true}, view.height)};
        gradient.radius = coordinate("r", {0.5, true}, diagonal);
        if (gradient.radius < 0) {
            const XmlElement* owner = nullptr;
            attribute("r", &owner);
            m_note("r", *owner);
            gradient.radius = 0.5 * (m_byBounds ? 1 : diagonal);
        }
        gradient.from = {coordinate("fx", {gradient.to.x, false}, view.width),
                         coordinate("fy", {gradient.to.y, false}, view.height)};
        const XmlElement* owner = nullptr;
        if (attribute("fr", &owner).data() && coordinate("fr", {0, false}, diagonal) != 0)
            m_note("fr", *owner);
    }

    Matrix units() const
    {
        const Box& box = m_use.bounds;
        return m_byBounds ? Matrix{box.width, 0, 0, box.height, box.x, box.y} : Matrix{};
    }

    Matrix transform() const
    {
        const XmlElement* owner = nullptr;
        const std::string_view text = attribute("gradientTransform", &owner);
        const std::optional<Matrix> matrix = transformFrom(text);
        if (!matrix)
            m_note("gradientTransform", *owner);
        return matrix.value_or(Matrix{});
    }

    /// Which of the words an attribute is; the first where it is none of them.
    std::size_t choice(const char* name, const std::vector<std::string_view>& words) const
    {
        const XmlElement* owner = nullptr;
        const std::string_view text = attribute(name, &owner);
        const auto found = std::find(words.begin(), words.end(), text);
        if (found != words.end())
            return static_cast<std::size_t>(found - words.begin());
        if (owner)
            m_note(name, *owner);
        return 0;
    }

    Gradient::Spread spread() const
    {
        constexpr Gradient::Spread kSpreads[] = {Gradient::Spread::Pad, Gradient::Spread::Reflect,
                                                 Gradient::Spread::Repeat};
        return kSpreads[choice("spreadMethod", {"pad", "reflect", "repeat"})];
    }

    std::vector<GradientStop> stops() const
    {
        for (const XmlElement* const element : m_chain) {
            std::vector<GradientStop> stops;
            for (const XmlElement& child : element->children) {
                m_use.budget.spend(child.cost());
                if (localName(child.name) == "stop")
                    stops.push_back(stop(child, stops.empty() ? 0 : stops.back().offset));
            }
            if (!stops.empty())
                return stops;
        }
        return {};
    }

    GradientStop stop(const XmlElement& element, double least) const
    {
        const auto share = [&](const char* name, std::string_view text, double otherwise) {
            if (text.empty())
                return otherwise;
            const std::optional<double> value = shareFrom(text);
            if (!value)
                m_note(name, element);
            return value.value_or(otherwise);
        };
        const std::string* const offset = element.find("offset");
        const double at = share("offset", offset ? *offset : std::string_view(), 0);
        Rgba colour = rgbaOf(colourOf(element));
        colour[3] *= share("stop-opacity", propertyOf(element, "stop-opacity"), 1);
        return {std::max(at, least), colour};
    }

    /// The color of a stop, its own or that of what it lies in: what is painted with it has no say.
    std::uint32_t currentColourOf(const XmlElement& stop) const
    {
        for (const XmlElement* each = &stop; each; each = m_definitions.parentOf(*each)) {
            m_use.budget.spend(each->cost());
            if (const std::optional<std::uint32_t> colour = colourFrom(propertyOf(*each, "color")))
                return *colour;
        }
        return m_use.colour;
    }

    std::uint32_t colourOf(const XmlElement& element) const
    {
        const std::string_view text = propertyOf(element, "stop-color");
        if (isCurrentColour(text))
            return currentColourOf(element);
        const std::optional<std::uint32_t> colour = text.empty() ? 0xFF000000 : colourFrom(text);
        if (!colour)
            m_note("stop-color", element);
        return colour.value_or(0xFF000000);
    }

    const Definitions& m_definitions;
    const GradientUse& m_use;
    const std::function<void(const char*, const XmlElement&)>& m_note;
    std::vector<const XmlElement*> m_chain; ///< the gradient and what it refers to
    bool m_byBounds = true;
};

} // namespace

std::optional<Gradient> readGradient(const XmlElement& element, const Definitions& definitions,
                                     const GradientUse& use,
                                     const std::function<void(const char*, const XmlElement&)>& note)
{
    return GradientReader(element, definitions, use, note).read();
}

} // namespace ovosvg
