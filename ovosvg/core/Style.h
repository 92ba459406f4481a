/// How shapes are painted. Plain values, no windows.
#pragma once

#include <ovosvg/core/Coverage.h>
#include <ovosvg/core/Stroker.h>
#include <ovosvg/core/Values.h>
#include <ovosvg/core/XmlReader.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace ovosvg
{

/// What an area is painted with.
struct Paint
{
    enum class Kind
    {
        None,
        Solid,
        Current, ///< the colour of the property color
        Server   ///< what has an id
    };
    Kind kind = Kind::None;
    std::uint32_t colour = 0;    ///< 0xAARRGGBB, of Solid
    std::string id;              ///< of Server
    Kind otherwise = Kind::None; ///< of Server, when no gradient has the id; Solid with `colour`
};

/// Properties that children take over, and what an element has for itself.
struct Style
{
    Paint fill{Paint::Kind::Solid, 0xFF000000, {}};
    double fillOpacity = 1;
    FillRule fillRule = FillRule::NonZero;

    Paint stroke;
    double strokeOpacity = 1;
    Length strokeWidth{1, false};
    LineCap cap = LineCap::Butt;
    LineJoin join = LineJoin::Miter;
    double miterLimit = 4;
    std::vector<Length> dashes;
    Length dashOffset;

    std::uint32_t colour = 0xFF000000; ///< 0xAARRGGBB, for currentColor
    bool visible = true;

    // Of the element alone
    double opacity = 1;
    bool displayed = true;

    /// What a copy costs of a drawing's budget.
    std::int64_t cost() const;
};

/// What comes of a property that is set.
enum class Setting
{
    Done,
    Unknown, ///< no property that matters to drawings
    BadValue,
    NotSupported
};

/// Sets one property of a presentation attribute or a style declaration; what cannot be read changes nothing.
/// `parent` is the style of what the element lies in.
Setting setProperty(Style& style, const Style& parent, std::string_view name, std::string_view value);

/// Told of a property and what has come of it.
using Report = std::function<void(const std::string& name, Setting setting, XmlPlace place)>;

/// What an element has of the style of what it lies in: its attributes, then its style attribute.
Style styleOf(const XmlElement& element, const Style& parent, const Report& report);

/// Each declaration of a style attribute, the important ones at last.
void forEachDeclaration(std::string_view style,
                        const std::function<void(std::string_view name, std::string_view value)>& see);

/// The value of a property in the style attribute, else that of the attribute; empty if there is neither.
std::string_view propertyOf(const XmlElement& element, std::string_view name);

} // namespace ovosvg
